#pragma once
// Test helpers of the element catalog: items of a catalog in memory, and a provider that draws,
// from the top view only, a flange line 100 units long along +X.

#include "framework/TempFolder.h"
#include "framework/cad/CXimoCDraw.h"
#include "framework/catalog/CCatalog.h"
#include "module/manager/IAssemblyElementTypeProvider.h"

namespace XimoGis::AssemblySchemes::Testing {

// A group, or an element with a catalog number, under `parent` (the root when null).
inline Data::CCatalogItem* AddGroup(Data::CCatalog& catalog, Data::CCatalogItem* parent, const std::wstring& name) {
    std::wstring error;
    return catalog.AddItem(parent, L"", name, true, L"", error);
}
inline Data::CCatalogItem* AddElement(Data::CCatalog& catalog, Data::CCatalogItem* parent, const std::wstring& name,
                                      const std::wstring& number = L"") {
    std::wstring error;
    Data::CCatalogItem* item = catalog.AddItem(parent, L"", name, false, L"ELEMENT_BLOCK01", error);
    if (!number.empty()) item->GetProperty(L"AS_CATALOGNUM")->SetValue(number);
    return item;
}

class LineProvider : public IAssemblyElementTypeProvider {
public:
    LineProvider() : IAssemblyElementTypeProvider(L"TEST_LINE", eAssemblyElementFitting) {}
    std::wstring GetDescription() const override { return L"A line"; }
    int CheckCatalogItem(const Data::CCatalogItem* item, std::wstring&) const override { return item ? 1 : 0; }
    int DrawAEProjection(const AcGePoint3d& at, enmViewDirection view, Data::CCatalogItem* item, CASDefinition*,
                         AcArray<AcDbObjectId>& ids) override {
        CXimoCEntityPtr line;
        if (item && IsProjectionSupported(view)) line = CXimoCDraw::line(at, at + AcGeVector3d(100, 0, 0));
        if (!line) return 0;
        line->database()->registerApplication(kFlangeApplication);
        line->setXData(AcDbXDataApp{kFlangeApplication, {AcDbXDataValue::int16(100)}});
        ids.append(line.objectId());
        return 1;
    }
    int IsProjectionSupported(enmViewDirection view) const override { return view == eViewTop; }
};

}  // namespace XimoGis::AssemblySchemes::Testing
