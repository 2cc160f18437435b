#include "module/definitions/CASRepository.h"

#include "module/definitions/CASDefinition.h"
#include "module/support/CASXmlCursor.h"

#include <memory>

namespace XimoGis::AssemblySchemes {

CASRepository::CASRepository() {
    SetRepositoryKey(kRepositoryKey);
    SetRootElementName(kRootElement);
    SetBaseFlag(1);
}

CASRepository::~CASRepository() { ClearRepository(); }

int CASRepository::ReadXML(const wchar_t* xml) {
    ClearRepository();
    CASXmlCursor cursor;
    cursor.SetDoc(xml);
    if (!cursor.FindElem(kRootElement)) return 0;
    SetExploded(cursor.GetIntAttrib("exploded") == 1 ? 1 : 0);
    cursor.IntoElem();
    while (cursor.FindElem(L"asDefinition")) {
        auto definition = std::make_unique<CASDefinition>();
        if (definition->ParseXML(cursor.GetSubDoc().c_str())) AddRepositoryItem(definition.release(), 1);
    }
    return 1;
}

int CASRepository::OnSystemDelete(System::CGisSystem* /*system*/) { return 1; }

}  // namespace XimoGis::AssemblySchemes
