#include "framework/repository/CRepositoryManager.h"

#include "framework/logging/CLogEngine.h"
#include "framework/notification/CNotificationFramework.h"
#include "framework/systems/CGisSystem.h"
#include "framework/systems/CSystemManager.h"

#include <boost/make_shared.hpp>

namespace XimoGis {

// Keeps the cache in step with the systems: a repository must not outlive its system.
class CRepositoryManager::CSystemWatcher : public IFrameworkEventResponder {
public:
    explicit CSystemWatcher(CRepositoryManager& manager) : m_manager(manager) {}

    int OnBeforeDeleteSystem(CGisSystem* system) override {
        if (!system) return 1;
        for (const auto& [key, repository] : m_manager.m_repositories) {
            if (key.first == system->GetSystemId() && !repository->OnSystemDelete(system)) return 0;
        }
        m_manager.m_leavingSystems.insert(system->GetSystemId());
        return 1;
    }
    // Freed only now: other responders may still use the repositories while the system goes.
    int OnAfterDeleteSystem() override {
        const std::set<int> leaving = std::move(m_manager.m_leavingSystems);
        m_manager.m_leavingSystems.clear();
        for (int systemId : leaving) {
            if (!System::CSystemManager::Instance()->GetSystemById(systemId)) FreeSystemRepositories(systemId);
        }
        return 1;
    }
    int OnBeforeWorkspaceClosed(const wchar_t*) override {
        FreeAllRepositories();
        return 1;
    }

private:
    CRepositoryManager& m_manager;
};

CRepositoryManager::CRepositoryManager() : m_watcher(boost::make_shared<CSystemWatcher>(*this)) {
    CNotificationFramework::Instance()->RegisterEventResponder(m_watcher);
}

CRepositoryManager::~CRepositoryManager() {
    CNotificationFramework::Instance()->UnregisterEventResponder(m_watcher.get());
}

CRepositoryManager& CRepositoryManager::Get() {
    static CRepositoryManager instance;
    return instance;
}

bool CRepositoryManager::RegisterRepositoryFactory(const wchar_t* name,
                                                   const boost::shared_ptr<CRepositoryFactory>& factory) {
    if (!name || !*name || !factory) return false;
    CRepositoryManager& manager = Get();
    manager.FreeRepositoriesOfName(name);
    manager.m_factories[name] = factory;
    return true;
}

bool CRepositoryManager::UnregisterRepositoryFactory(const wchar_t* name) {
    if (!name) return false;
    CRepositoryManager& manager = Get();
    manager.FreeRepositoriesOfName(name);
    return manager.m_factories.erase(name) > 0;
}

CRepositoryFactory* CRepositoryManager::GetRepositoryFactory(const wchar_t* name) {
    if (!name) return nullptr;
    const auto& factories = Get().m_factories;
    const auto found = factories.find(name);
    return found == factories.end() ? nullptr : found->second.get();
}

CDefinitionRepository* CRepositoryManager::GetSystemRepository(System::CGisSystem* system, const wchar_t* name,
                                                               int flag) {
    if (!system || !name) return nullptr;
    CRepositoryManager& manager = Get();
    const auto factoryFound = manager.m_factories.find(name);
    if (factoryFound == manager.m_factories.end()) return nullptr;

    const Key key(system->GetSystemId(), name);
    auto& cached = manager.m_repositories[key];
    bool read = (flag & kReload) != 0;
    if (!cached || cached->GetSystem() != system) {
        const boost::shared_ptr<CRepositoryFactory> factory = factoryFound->second;
        CDefinitionRepository* made = factory->GetRepository(name);
        if (!made) {
            manager.m_repositories.erase(key);
            return nullptr;
        }
        cached.reset(made, [factory](CDefinitionRepository* repository) { factory->FreeRepositoryMemory(repository); });
        if (cached->GetRepositoryKey().empty()) cached->SetRepositoryKey(name);
        cached->SetSystem(system);
        read = true;
    }
    CDefinitionRepository* repository = cached.get();
    std::wstring error;
    if (read && !repository->Load(error))
        Logging::CLogEngine::Instance()->Write(L"CRepositoryManager", __LINE__,
                                               L"XimoGis::CRepositoryManager::GetSystemRepository", 1, error);
    return repository;
}

void CRepositoryManager::FreeSystemRepositories(int systemId) {
    auto& repositories = Get().m_repositories;
    for (auto it = repositories.begin(); it != repositories.end();)
        it = it->first.first == systemId ? repositories.erase(it) : std::next(it);
}

void CRepositoryManager::FreeAllRepositories() { Get().m_repositories.clear(); }

void CRepositoryManager::FreeRepositoriesOfName(const std::wstring& name) {
    for (auto it = m_repositories.begin(); it != m_repositories.end();)
        it = it->first.second == name ? m_repositories.erase(it) : std::next(it);
}

}  // namespace XimoGis
