#pragma once
// Hands out the repositories of the network systems: one per system and repository name, made
// by the factory registered under that name, read from the system's sub-document on first use
// and kept until the system is deleted or the workspace closed (the manager listens to the
// notification framework for that). Read failures are kept in the repository's GetLastError and
// written to the log; the repository is then empty.

#include "framework/repository/CDefinitionRepository.h"
#include "framework/repository/CRepositoryFactory.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <set>
#include <string>
#include <utility>

namespace XimoGis {

class IFrameworkEventResponder;

class CRepositoryManager {
public:
    // Flags of GetSystemRepository.
    static constexpr int kReload = 1;  // read the file again, even when the repository is cached

    // A later registration under the same name replaces the factory; repositories made by the
    // old one are freed. False for an empty name or a null factory.
    static bool RegisterRepositoryFactory(const wchar_t* name, const boost::shared_ptr<CRepositoryFactory>& factory);
    static bool UnregisterRepositoryFactory(const wchar_t* name);
    static CRepositoryFactory* GetRepositoryFactory(const wchar_t* name);

    // Null for a null system, or a name without a factory; otherwise the repository, empty when
    // its file is missing or broken. The repository stays owned by the manager.
    static CDefinitionRepository* GetSystemRepository(System::CGisSystem* system, const wchar_t* name, int flag);
    static void FreeSystemRepositories(int systemId);
    static void FreeAllRepositories();

    CRepositoryManager(const CRepositoryManager&) = delete;
    CRepositoryManager& operator=(const CRepositoryManager&) = delete;
    ~CRepositoryManager();

private:
    class CSystemWatcher;
    using Key = std::pair<int, std::wstring>;  // system id, repository name

    CRepositoryManager();
    static CRepositoryManager& Get();
    void FreeRepositoriesOfName(const std::wstring& name);

    std::map<std::wstring, boost::shared_ptr<CRepositoryFactory>> m_factories;
    std::map<Key, boost::shared_ptr<CDefinitionRepository>> m_repositories;
    boost::shared_ptr<IFrameworkEventResponder> m_watcher;
    // Systems told that they are about to go, whose repositories are freed once they have gone.
    std::set<int> m_leavingSystems;
};

}  // namespace XimoGis
