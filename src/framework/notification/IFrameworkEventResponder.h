#pragma once
// Receiver of the framework's notifications. A module derives from it, overrides what concerns
// it and registers an instance with CNotificationFramework. Every operation answers 1 by default;
// answering 0 to a "Before" notification stops the operation that raised it (later responders
// are then not asked). Answers to other notifications are not used.

#include <string>
#include <vector>

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis {

class IFrameworkEventResponder {
public:
    using CGisSystem = System::CGisSystem;

    virtual ~IFrameworkEventResponder() = default;

    // Workspace.
    virtual int OnAfterWorkspaceOpened(const wchar_t* /*folder*/) { return 1; }
    virtual int OnBeforeWorkspaceClosed(const wchar_t* /*folder*/) { return 1; }

    // Network systems.
    virtual int OnAfterCreateSystem(CGisSystem* /*system*/) { return 1; }
    virtual int OnBeforeDeleteSystem(CGisSystem* /*system*/) { return 1; }
    virtual int OnAfterDeleteSystem() { return 1; }
    virtual int OnBeforeSystemEntitiesDeleted(CGisSystem* /*system*/) { return 1; }
    virtual int OnAfterSystemEntitiesDeleted(CGisSystem* /*system*/) { return 1; }
    // The system is null when no system is active any more.
    virtual int OnActiveSystemChanged(CGisSystem* /*system*/) { return 1; }
    virtual int OnAfterSystemLayersRecreated(CGisSystem* /*system*/) { return 1; }

    // Definition repositories of a system.
    virtual int OnAfterRepositoryLoaded(CGisSystem* /*system*/, const wchar_t* /*repositoryName*/) { return 1; }
    virtual int OnAfterRepositorySaved(CGisSystem* /*system*/, const wchar_t* /*repositoryName*/) { return 1; }

    // Drawing documents, by file path.
    virtual int OnAfterDrawingOpened(const wchar_t* /*path*/) { return 1; }
    virtual int OnBeforeDrawingClosed(const wchar_t* /*path*/) { return 1; }
    virtual int OnAfterDrawingSaved(const wchar_t* /*path*/) { return 1; }

    // Topology nodes, by GUID.
    virtual int OnAfterNodeCreated(CGisSystem* /*system*/, const wchar_t* /*nodeGuid*/) { return 1; }
    virtual int OnAfterNodeModified(CGisSystem* /*system*/, const wchar_t* /*nodeGuid*/) { return 1; }
    virtual int OnBeforeNodeDeleted(CGisSystem* /*system*/, const wchar_t* /*nodeGuid*/) { return 1; }

    // Topology sections, by GUID.
    virtual int OnAfterSectionCreated(CGisSystem* /*system*/, const wchar_t* /*sectionGuid*/) { return 1; }
    virtual int OnAfterSectionModified(CGisSystem* /*system*/, const wchar_t* /*sectionGuid*/) { return 1; }
    virtual int OnBeforeSectionDeleted(CGisSystem* /*system*/, const wchar_t* /*sectionGuid*/) { return 1; }

    // Any entities of a system, by GUID.
    virtual int OnBeforeEntitiesDeleted(CGisSystem* /*system*/, const std::vector<std::wstring>& /*guids*/) {
        return 1;
    }
    virtual int OnAfterEntitiesDeleted(CGisSystem* /*system*/) { return 1; }

    // Catalogs, by name.
    virtual int OnAfterCatalogChanged(const wchar_t* /*catalogName*/) { return 1; }

    // Edit transactions of the framework.
    virtual int OnAfterTransactionCommitted() { return 1; }
    virtual int OnAfterTransactionRolledBack() { return 1; }
};

}  // namespace XimoGis
