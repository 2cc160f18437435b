#pragma once
// The arguments of one command, parsed with Boost.Program_options. Commands declare what they
// take with the shared declarations (a drawing, a workspace, an output, a window) so that every
// command spells and checks them the same way, and add their own options beside.

#include <boost/program_options.hpp>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "host/database/AcDbExtents.h"
#include "host/geometry/AcGePoint3d.h"

namespace XimoGis::Asch {

class CAschArguments {
public:
    explicit CAschArguments(std::string command);

    // The drawing file, the first argument after the command; required.
    CAschArguments& AddDrawing(const char* help = "the drawing, a DXF file");
    // "--drawing D.dxf": the drawing as an option, for commands that work over a workspace; required.
    CAschArguments& AddDrawingOption(const char* help = "the drawing, a DXF file (made when it does not exist)");
    // A further word in its place after the command (after the drawing, when there is one), in the
    // order of declaration, e.g. "asch workspace init DIR"; `name` also names it in messages.
    CAschArguments& AddPositional(const char* name, const char* help, bool required = true);
    // "--workspace W": the folder of a workspace; required when asked for.
    CAschArguments& AddWorkspace(bool required = true);
    // "-o PATH" / "--output PATH"; required.
    CAschArguments& AddOutput(const char* help);
    // "--window X1,Y1,X2,Y2": a rectangle in drawing coordinates; optional.
    CAschArguments& AddWindow();
    // The command's own options.
    boost::program_options::options_description_easy_init AddOptions();

    // Parses the words after the command name. False with a message for a usage error.
    bool Parse(const std::vector<std::string>& words, std::string& error);

    bool WantsHelp() const { return m_values.count("help") > 0; }
    std::wstring GetDrawing() const { return Wide("drawing"); }
    std::wstring GetWorkspace() const { return Wide("workspace"); }
    std::wstring GetOutput() const { return Wide("output"); }
    // A text value by name (a positional or an option); empty when not given.
    std::wstring GetText(const char* name) const { return Wide(name); }
    // The point "X,Y" or "X,Y,Z" of an option; false with a message naming the option when the
    // text is not such a point.
    static bool ParsePoint(const std::string& option, const std::string& text, AcGePoint3d& point, std::string& error);
    // The point of an option: false with a message when it was not given or is not a point.
    bool GetPoint(const char* name, AcGePoint3d& point, std::string& error) const;
    // The same for an option that may be left out: true, with `point` empty, when it was.
    bool GetPoint(const char* name, std::optional<AcGePoint3d>& point, std::string& error) const;
    // The window when one was given.
    const std::optional<AcDbExtents>& GetWindow() const { return m_window; }
    const boost::program_options::variables_map& GetValues() const { return m_values; }
    void PrintOptions(std::ostream& out) const;

private:
    std::wstring Wide(const char* name) const;
    bool ParseWindow(const std::string& text, std::string& error);

    std::string m_command;
    boost::program_options::options_description m_options;
    boost::program_options::options_description m_hidden;
    boost::program_options::positional_options_description m_positional;
    boost::program_options::variables_map m_values;
    // Required values with what to tell when one is missing.
    std::vector<std::pair<std::string, std::string>> m_required;
    std::optional<AcDbExtents> m_window;
};

}  // namespace XimoGis::Asch
