#include "CAschArguments.h"

#include <cmath>
#include <sstream>

#include "host/base/AcString.h"

namespace po = boost::program_options;

namespace XimoGis::Asch {

namespace {

// Finite numbers separated by commas; empty when one of them is not a number.
std::vector<double> ReadNumbers(const std::string& text) {
    std::vector<double> numbers;
    std::istringstream in(text);
    in.imbue(std::locale::classic());
    std::string part;
    while (std::getline(in, part, ',')) {
        std::istringstream number(part);
        number.imbue(std::locale::classic());
        double value = 0.0;
        if (!(number >> value) || !(number >> std::ws).eof() || !std::isfinite(value)) return {};
        numbers.push_back(value);
    }
    return numbers;
}

}  // namespace

CAschArguments::CAschArguments(std::string command) : m_command(std::move(command)), m_options("Options") {
    m_options.add_options()("help,h", "show this help");
}

CAschArguments& CAschArguments::AddDrawing(const char* help) {
    m_hidden.add_options()("drawing", po::value<std::string>(), help);
    m_positional.add("drawing", 1);
    m_required.emplace_back("drawing", "no drawing given");
    return *this;
}

CAschArguments& CAschArguments::AddDrawingOption(const char* help) {
    m_options.add_options()("drawing", po::value<std::string>()->value_name("D.dxf"), help);
    m_required.emplace_back("drawing", "no drawing given (--drawing D.dxf)");
    return *this;
}

CAschArguments& CAschArguments::AddPositional(const char* name, const char* help, bool required) {
    m_hidden.add_options()(name, po::value<std::string>(), help);
    m_positional.add(name, 1);
    if (required) m_required.emplace_back(name, std::string("no ") + name + " given");
    return *this;
}

CAschArguments& CAschArguments::AddWorkspace(bool required) {
    m_options.add_options()("workspace", po::value<std::string>()->value_name("W"), "the workspace folder");
    if (required) m_required.emplace_back("workspace", "no workspace given (--workspace W)");
    return *this;
}

CAschArguments& CAschArguments::AddOutput(const char* help) {
    m_options.add_options()("output,o", po::value<std::string>()->value_name("PATH"), help);
    m_required.emplace_back("output", "no output given (-o PATH)");
    return *this;
}

CAschArguments& CAschArguments::AddWindow() {
    m_options.add_options()("window", po::value<std::string>()->value_name("X1,Y1,X2,Y2"),
                            "show only this rectangle of the drawing (drawing coordinates)");
    return *this;
}

po::options_description_easy_init CAschArguments::AddOptions() { return m_options.add_options(); }

bool CAschArguments::Parse(const std::vector<std::string>& words, std::string& error) {
    po::options_description all;
    all.add(m_options).add(m_hidden);
    try {
        po::store(po::command_line_parser(words).options(all).positional(m_positional).run(), m_values);
        po::notify(m_values);
    } catch (const po::error& e) {
        error = e.what();
        return false;
    }
    if (WantsHelp()) return true;
    for (const auto& [name, message] : m_required) {
        if (m_values.count(name) == 0 || m_values[name].as<std::string>().empty()) {
            error = message;
            return false;
        }
    }
    if (m_values.count("window") && !ParseWindow(m_values["window"].as<std::string>(), error)) return false;
    return true;
}

bool CAschArguments::ParseWindow(const std::string& text, std::string& error) {
    const std::vector<double> numbers = ReadNumbers(text);
    if (numbers.size() != 4) {
        error = "--window wants four numbers X1,Y1,X2,Y2, not '" + text + "'";
        return false;
    }
    if (numbers[0] == numbers[2] || numbers[1] == numbers[3]) {
        error = "--window '" + text + "' has no width or no height";
        return false;
    }
    // Any two opposite corners.
    m_window = AcDbExtents(AcGePoint3d(numbers[0], numbers[1], 0.0), AcGePoint3d(numbers[2], numbers[3], 0.0));
    return true;
}

bool CAschArguments::ParsePoint(const std::string& option, const std::string& text, AcGePoint3d& point,
                                std::string& error) {
    const std::vector<double> numbers = ReadNumbers(text);
    if (numbers.size() != 2 && numbers.size() != 3) {
        error = "--" + option + " wants a point X,Y or X,Y,Z, not '" + text + "'";
        return false;
    }
    point.set(numbers[0], numbers[1], numbers.size() == 3 ? numbers[2] : 0.0);
    return true;
}

bool CAschArguments::GetPoint(const char* name, AcGePoint3d& point, std::string& error) const {
    if (!m_values.count(name)) {
        error = std::string("no point given (--") + name + " X,Y)";
        return false;
    }
    return ParsePoint(name, m_values[name].as<std::string>(), point, error);
}

bool CAschArguments::GetPoint(const char* name, std::optional<AcGePoint3d>& point, std::string& error) const {
    point.reset();
    if (!m_values.count(name)) return true;
    AcGePoint3d value;
    if (!ParsePoint(name, m_values[name].as<std::string>(), value, error)) return false;
    point = value;
    return true;
}

std::wstring CAschArguments::Wide(const char* name) const {
    return m_values.count(name) ? acutUtf8ToWchar(m_values[name].as<std::string>()) : std::wstring();
}

void CAschArguments::PrintOptions(std::ostream& out) const { out << m_options; }

}  // namespace XimoGis::Asch
