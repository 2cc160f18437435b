#include "module/manager/IAssemblyElementTypeProvider.h"

namespace XimoGis::AssemblySchemes {

const wchar_t* const IAssemblyElementTypeProvider::kFlangeApplication = L"AMS_PRIRUBNICA";

int IAssemblyElementTypeProvider::DrawAEProjection(const AcGePoint3d&, enmViewDirection, Data::CCatalogItem*,
                                                   CASDefinition*, AcArray<AcDbObjectId>&) {
    return 0;
}

int IAssemblyElementTypeProvider::IsProjectionSupported(enmViewDirection) const { return 0; }

}  // namespace XimoGis::AssemblySchemes
