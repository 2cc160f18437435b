#pragma once
// A workspace drawing opened for a command that draws or edits schemes: the workspace is opened
// with its active system (which must carry schemes), the drawing becomes the current document (a
// new drawing when the file does not exist yet) and its schemes are scanned. Save writes the
// drawing back as DXF through a temporary file, so a failed save leaves the old file whole. The
// document is closed when the object goes.
//
// The module's interactive code reads the input script: commands fill it with what the user
// would do (picks, cursor moves, keywords) before they call the module.

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

class AcApDocument;

namespace XimoGis::System {
class CGisSystem;
}
namespace XimoGis::Topology {
class CNode;
}
namespace XimoGis::AssemblySchemes {
class CASDefinition;
class CASInstance;
}  // namespace XimoGis::AssemblySchemes

namespace XimoGis::Asch {

class CSchemeDrawing {
public:
    CSchemeDrawing() = default;
    ~CSchemeDrawing();
    CSchemeDrawing(const CSchemeDrawing&) = delete;
    CSchemeDrawing& operator=(const CSchemeDrawing&) = delete;

    // False with `error` naming the folder or file and what is wrong.
    bool Open(const std::wstring& workspace, const std::wstring& drawing, std::wstring& error);
    bool Save(std::wstring& error) const;

    System::CGisSystem* GetSystem() const { return m_system; }
    const std::wstring& GetFileName() const { return m_fileName; }
    // A definition of the active system by id, else by name.
    AssemblySchemes::CASDefinition* FindDefinition(const std::wstring& reference, std::wstring& error) const;
    // A node of the active system's network by GUID, else by name.
    boost::shared_ptr<Topology::CNode> FindNode(const std::wstring& reference, std::wstring& error) const;
    // Every node of the active system's network, in layer order; false when it cannot be read.
    bool GetNodes(std::vector<boost::shared_ptr<Topology::CNode>>& nodes, std::wstring& error) const;
    // A scheme of the drawing by its id.
    boost::shared_ptr<AssemblySchemes::CASInstance> FindScheme(const std::wstring& id, std::wstring& error) const;

private:
    AcApDocument* m_document = nullptr;
    System::CGisSystem* m_system = nullptr;
    std::wstring m_fileName;
};

}  // namespace XimoGis::Asch
