#pragma once
// Creates and frees the repositories of one name for the repository manager, which asks the
// factory registered under that name (CRepositoryManager::RegisterRepositoryFactory).

#include <string>

namespace XimoGis {

class CDefinitionRepository;
class CRepositoryItemFactory;

class CRepositoryFactory {
public:
    virtual ~CRepositoryFactory() = default;

    // A new, empty repository; it is given back to FreeRepositoryMemory when no longer used.
    virtual CDefinitionRepository* GetRepository(const wchar_t* name) = 0;
    virtual void FreeRepositoryMemory(CDefinitionRepository* repository);
    // The factory that makes items of the repository for the repository browser; none here.
    virtual CRepositoryItemFactory* GetRepositoryItemFactory(CDefinitionRepository* repository);
    // A line about the repository for the browser; empty here.
    virtual std::wstring GetRepositoryDescription();
    // The repository's name as the user sees it.
    virtual std::wstring GetRepositoryName() = 0;
};

}  // namespace XimoGis
