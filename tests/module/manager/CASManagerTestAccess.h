#pragma once
// Puts recording component types in place of the scheme manager's registered ones for the life of
// a test, so that tests can see which types hear which events, in which order.

#include "module/components/IASComponentInterface.h"
#include "module/definitions/CASDefinition.h"
#include "module/manager/CASManager.h"

#include <boost/make_shared.hpp>

#include <string>
#include <vector>

namespace XimoGis::AssemblySchemes {

class CASManagerTestAccess {
public:
    static CASManager::ComponentRegistry& Components() { return CASManager::Instance()->m_components; }
};

namespace Testing {

// One line per event heard: "<component id> <event> <definition id, or (null)>".
class RecordingComponent : public IASComponentInterface {
public:
    RecordingComponent(const std::wstring& id, std::vector<std::wstring>& journal)
        : IASComponentInterface(id.c_str(), eASComponentNone, 0, 0, L"", 0, L""), m_journal(journal) {}

    void OnAfterASElementInserted(CASInstance*, CASDefinition* definition, CASElementInstance*) override {
        Note(L"inserted", definition);
    }
    void OnBeforeASElementDeleted(CASInstance*, CASDefinition* definition, CASElementInstance*) override {
        Note(L"deleting", definition);
    }
    void OnElementPositionChanged(CASInstance*, CASDefinition* definition,
                                  std::vector<CASElementInstance*>& elements) override {
        Note(L"positions " + std::to_wstring(elements.size()), definition);
    }
    void OnRequestUpdateBOM(CASInstance*, CASDefinition* definition) override { Note(L"bom", definition); }
    void OnRequestUpdatePositionLabels(CASInstance*, CASDefinition* definition) override {
        Note(L"labels", definition);
    }
    // Says yes for one repository item name.
    int DependsOn(CASDefinition*, CASComponentData*, const wchar_t* name, CRepositoryItem*) override {
        return name && dependsOnName == name ? 7 : 0;
    }

    std::wstring dependsOnName;

private:
    void Note(const std::wstring& event, CASDefinition* definition) {
        m_journal.push_back(GetId() + L" " + event + L" " + (definition ? definition->GetId() : L"(null)"));
    }

    std::vector<std::wstring>& m_journal;
};

// Replaces every registered component type by a recorder of the same id; restores them after.
class ScopedRecorders {
public:
    ScopedRecorders() : m_saved(CASManagerTestAccess::Components()) {
        for (auto& [id, component] : CASManagerTestAccess::Components()) {
            auto recorder = boost::make_shared<RecordingComponent>(id, journal);
            recorders.push_back(recorder);
            component = recorder;
        }
    }
    ~ScopedRecorders() { CASManagerTestAccess::Components() = m_saved; }
    ScopedRecorders(const ScopedRecorders&) = delete;
    ScopedRecorders& operator=(const ScopedRecorders&) = delete;

    std::vector<std::wstring> journal;
    std::vector<boost::shared_ptr<RecordingComponent>> recorders;

private:
    CASManager::ComponentRegistry m_saved;
};

}  // namespace Testing
}  // namespace XimoGis::AssemblySchemes
