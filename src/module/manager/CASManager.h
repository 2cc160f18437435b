#pragma once
// The module's root: the process-wide scheme manager. It holds the registry of component types
// (keyed and ordered by component id), the registry of element type providers, the instance
// storage of each drawing document and the module's framework event responder; it finds scheme
// definitions in the network systems and hands the scheme events to the component types.
//
// Created by the first Instance() call and never destroyed while the process runs.

#include "module/catalog/enmViewDirection.h"
#include "module/manager/IAssemblyElementTypeProvider.h"
#include "module/manager/IASListener.h"

#include "host/documents/AcApDataManager.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>
#include <vector>

namespace XimoGis::Data {
class CCatalogItem;
}
namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis::AssemblySchemes {

class CASEventResponder;
class CASInstanceStorage;
class IASComponentInterface;

class CASManager {
public:
    // Both registries iterate in ascending ordinal order of their keys; the component order is
    // the order in which the component types hear events.
    using ComponentRegistry = std::map<std::wstring, boost::shared_ptr<IASComponentInterface>>;
    using ElementTypeRegistry = std::map<std::wstring, boost::shared_ptr<IAssemblyElementTypeProvider>>;

    // The manager, created on the first call: it is stored before element plug-ins load, so that
    // plug-ins reach this same object, then the component types, the custom property dialogs,
    // the event responder and the "AS" repository factory are registered.
    static CASManager* Instance();

    CASManager(const CASManager&) = delete;
    CASManager& operator=(const CASManager&) = delete;
    ~CASManager();

    // Exact, case-sensitive look-up; empty when absent ("00DIM" is never registered).
    boost::shared_ptr<IASComponentInterface> GetASComponentById(const wchar_t* id) const;
    // Appends every registered component type, in id order; `components` is not cleared first.
    void GetASComponents(std::vector<boost::shared_ptr<IASComponentInterface>>& components) const;

    // Registers the provider under its id; when the id is taken, the provider registered first
    // stays (plug-ins load in the order the file system lists them).
    void RegisterAssemblyElement(const boost::shared_ptr<IAssemblyElementTypeProvider>& provider);
    boost::shared_ptr<IAssemblyElementTypeProvider> GetAETypeProvider(const wchar_t* id) const;
    ElementTypeRegistry* GetAssemblyElementTypeRegistry() { return &m_elementTypes; }

    // The definition with that id in the active system's "AS" repository; null when no system is
    // active, it does not carry schemes (topology type 8), it has no such repository or no such
    // definition. The repository keeps the definition.
    CASDefinition* GetASDefinitionById(const wchar_t* id) const;
    // The first loaded system of topology type 8 whose "AS" repository, read again from its file,
    // holds a definition with that id; null when none does.
    System::CGisSystem* GetSystemByASDefinitionId(const wchar_t* id) const;

    // The instance storage of the host's current document, created on first access, so never
    // empty; it is dropped when its document closes.
    boost::shared_ptr<CASInstanceStorage>& GetASIStorage();
    // Empties the current document's storage and rescans its drawing for the schemes of every
    // system.
    void ReloadInstanceStorage();
    // Nothing to do: instances write themselves onto their entities whenever they change.
    void SaveInstanceStorage() {}

    // Any non-zero value blocks every event, 0 lets them through again. A flag, not a counter.
    void SetBlockASListeners(int block) { m_listenersBlocked = block; }
    int AreASListenersBlocked() const { return m_listenersBlocked; }

    // Each event goes to every registered component type in ascending id order, unless the
    // listeners are blocked or the instance (or the element, where there is one) is null. A null
    // definition is looked up by the instance's definition id and may stay null.
    void Raise_OnAfterASElementInserted(CASInstance* instance, CASDefinition* definition, CASElementInstance* element);
    void Raise_OnBeforeASElementDeleted(CASInstance* instance, CASDefinition* definition, CASElementInstance* element);
    void Raise_OnElementPositionChanged(CASInstance* instance, CASDefinition* definition,
                                        std::vector<CASElementInstance*>& elements);
    void Raise_OnRequestUpdateBOM(CASInstance* instance, CASDefinition* definition);
    void Raise_OnRequestUpdatePositionLabels(CASInstance* instance, CASDefinition* definition);

    // The element block folder: the configuration's "support" folder followed by
    // "AssemblyElements/" ('/' being this system's path separator); empty when no support folder
    // is configured.
    std::wstring GetASElementsBlockPath() const;
    // A name for a new block file of the item seen from `view`, not yet taken in the element
    // block folder, without folder and extension (see CASBlockFileName); empty for a null item.
    std::wstring GetBlockFileName(enmViewDirection view, Data::CCatalogItem* catalogItem) const;

    // The module's dialogs, with the module's resources current. This build has no windows: each
    // writes what it would show to the workspace's message log.
    void ShowASManager();
    void ShowASElementEditor();
    void ShowCatalogConverter();

private:
    // Tests put recording component types in place of the registered ones.
    friend class CASManagerTestAccess;

    CASManager() = default;

    // Loads the element plug-ins of the configuration's "install" folder (CASPluginLoader).
    void LoadAssemblyElementsPlugins();
    void RegisterSchemeComponents();
    void AddSchemeComponent(const boost::shared_ptr<IASComponentInterface>& component);
    CASDefinition* DefinitionForEvent(CASInstance* instance, CASDefinition* definition) const;

    int m_listenersBlocked = 0;
    ElementTypeRegistry m_elementTypes;
    AcApDataManager<boost::shared_ptr<CASInstanceStorage>> m_storages;
    ComponentRegistry m_components;
    boost::shared_ptr<CASEventResponder> m_responder;

    static CASManager* m_pInstance;
};

}  // namespace XimoGis::AssemblySchemes
