#include "module/catalog/CASElementDrawing.h"

#include "module/catalog/CASCatalog.h"
#include "module/catalog/CASElementBlock.h"
#include "module/definitions/CASDefinition.h"
#include "module/manager/CASManager.h"

#include "framework/cad/CXimoCEntityPtr.h"
#include "framework/catalog/CCatalogItem.h"
#include "host/entities/AcDbBlockReference.h"

namespace XimoGis::AssemblySchemes {

CASElementDrawing::Source CASElementDrawing::Find(enmViewDirection view, const Data::CCatalogItem* item,
                                                  const std::wstring& blockFolder) {
    Source source;
    const std::wstring type = CASCatalog::GetElementType(item);
    auto provider = CASManager::Instance()->GetAETypeProvider(type.c_str());
    if (provider && provider->IsProjectionSupported(view)) {
        source.provider = provider;
        return source;
    }
    source.blockFile = CASElementBlock::FindFile(blockFolder, view, item, &source.problem);
    return source;
}

int CASElementDrawing::Draw(const AcGePoint3d& point, enmViewDirection view, Data::CCatalogItem* item,
                            CASDefinition* definition, const std::wstring& blockFolder, AcArray<AcDbObjectId>& ids,
                            std::wstring& error) {
    if (!item) {
        error = L"No catalog item given";
        return 0;
    }
    const Source source = Find(view, item, blockFolder);
    if (source.provider) {
        if (source.provider->DrawAEProjection(point, view, item, definition, ids)) return 1;
        std::wstring problem;
        error = L"Provider " + source.provider->GetProviderId() + L" cannot draw catalog item \"" +
                item->GetName() + L"\"";
        if (!source.provider->CheckCatalogItem(item, problem)) error += L": " + problem;
        return 0;
    }
    AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
    if (source.blockFile.empty() || !db) {
        error = db ? source.problem : L"No working drawing to draw catalog item \"" + item->GetName() + L"\" into";
        return 0;
    }
    AcDbObjectId block;
    if (CASElementBlock::InsertDefinition(*db, source.blockFile, block, error) != Acad::eOk) return 0;
    const double scale = definition && definition->GetScale() ? definition->GetScale()->x() : 1.0;
    auto* reference = new AcDbBlockReference(point, block);
    reference->setScaleFactors(AcGeScale3d(scale));
    CXimoCEntityPtr entity(reference);
    if (entity.addToDrawing() != Acad::eOk) {
        error = L"Cannot add a reference to block file \"" + source.blockFile + L"\" to the drawing";
        return 0;
    }
    ids.append(entity.objectId());
    return 1;
}

}  // namespace XimoGis::AssemblySchemes
