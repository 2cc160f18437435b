#pragma once
// The repository of scheme definitions of one network system: repository key "AS", kept in the
// system's sub-document "AS" (systems/<id>/AS.xml in the workspace):
//   <schemes version="1" exploded="0|1"><asDefinition .../>...</schemes>
// "version" is not used; only "exploded" 1 sets the exploded flag. Definitions that do not read
// are skipped; two definitions with one id are both kept (look-ups find the first).

#include "framework/repository/CDefinitionRepository.h"

namespace XimoGis::AssemblySchemes {

class CASRepository : public CDefinitionRepository {
public:
    static constexpr const wchar_t* kRepositoryKey = L"AS";
    static constexpr const wchar_t* kRootElement = L"schemes";

    // A base repository: every system that carries schemes has one.
    CASRepository();
    ~CASRepository() override;

    // Empties the repository, then reads the definitions; 0 (and an empty repository) when the
    // root element is not "schemes".
    int ReadXML(const wchar_t* xml) override;
    // Schemes never keep a system from being deleted.
    int OnSystemDelete(System::CGisSystem* system) override;
};

}  // namespace XimoGis::AssemblySchemes
