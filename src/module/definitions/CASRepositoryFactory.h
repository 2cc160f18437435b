#pragma once
// Makes and frees the "AS" repositories for the framework's repository manager.

#include "framework/repository/CRepositoryFactory.h"

namespace XimoGis::AssemblySchemes {

class CASRepositoryFactory : public CRepositoryFactory {
public:
    // A new, empty CASRepository whatever the name.
    CDefinitionRepository* GetRepository(const wchar_t* name) override;
    void FreeRepositoryMemory(CDefinitionRepository* repository) override;
    // The text of message 21000.
    std::wstring GetRepositoryName() override;
};

}  // namespace XimoGis::AssemblySchemes
