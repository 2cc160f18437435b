#include "module/components/ASComponent_Frame.h"

#include "module/components/CASDependencyRules.h"
#include "module/definitions/CASComponentData.h"
#include "module/instances/CASInstance.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/data/CPropertiesEx.h"

#include <boost/make_shared.hpp>

namespace XimoGis::AssemblySchemes {

using Data::CPropertiesEx;
using Data::CPropertyEx;
using Data::CPropertyValue;
using Data::enmPropertyValueType;

namespace {

constexpr int kCategory = 0;

struct SideSettings {
    const wchar_t* side;  // "LEFT"...
    int switchMsg;
    double inset;
};

// Creation order of the sides; the left inset is wider for the binding margin.
constexpr SideSettings kSides[] = {
    {L"LEFT", 6623, 5.0},
    {L"RIGHT", 6621, 2.0},
    {L"TOP", 6622, 2.0},
    {L"BOTTOM", 6620, 2.0},
};

void Add(CPropertiesEx& properties, const std::wstring& tag, enmPropertyValueType type, const CPropertyValue& value,
         int editor, int msg, const std::wstring& dependency = L"") {
    auto property = boost::make_shared<CPropertyEx>(tag, type, editor, msg, msg);
    property->SetDefaultAndValue(value);
    property->SetRequired(true);
    property->SetPictureReference(L"AS_" + tag);
    if (!dependency.empty()) property->SetDependency(dependency);
    properties.AddProperty(kCategory, property);
}

// One edge's settings as read for drawing.
struct Edge {
    int draw;
    std::wstring linetype;
    int color;
};

Edge ReadEdge(const CPropertiesEx& properties, const std::wstring& side) {
    return {properties.GetIntProperty(L"DF_" + side, 1, 1), properties.GetStrProperty(L"LT_" + side, L"Continuous", 1),
            properties.GetIntProperty(L"LC_" + side, 7, 1)};
}

void DrawEdge(const Edge& edge, const AcGePoint3d& from, const AcGePoint3d& to, AcDbObjectIdArray& created) {
    if (!edge.draw) return;
    CXimoCEntityPtr line = CXimoCDraw::line(from, to);
    if (!line) return;
    line.setColorIndex(static_cast<Adesk::UInt16>(edge.color));
    line.setLinetype(edge.linetype.c_str());
    created.append(line.objectId());
    line.close();
}

}  // namespace

CASComponent_Frame::CASComponent_Frame()
    : IASComponentInterface(L"00FRAME", eASComponentFrame, 1505, 1505, L"IDI_AS_FRAME", 0, L"") {}

boost::shared_ptr<CASComponentData> CASComponent_Frame::CreateComponentData() {
    auto component = IASComponentInterface::CreateComponentData();
    auto properties = boost::make_shared<CPropertiesEx>();
    properties->AddCategory(kCategory, 1098, 1098);
    for (const SideSettings& side : kSides) {
        const std::wstring name = side.side;
        Add(*properties, L"DF_" + name, enmPropertyValueType::Integer, 1, Data::eEditorCheckBox, side.switchMsg,
            CASDependencyRules::FrameSide(name));
        Add(*properties, L"LT_" + name, enmPropertyValueType::Text, L"Continuous", Data::eEditorLineType, 6624);
        Add(*properties, L"LC_" + name, enmPropertyValueType::Integer, 7, Data::eEditorColor, 6039);
        Add(*properties, L"OFFSET_" + name, enmPropertyValueType::Double, side.inset, Data::eEditorNumber, 4382);
    }
    properties->ApplyAllDependencies();
    component->GetDrawData()->SetProperties(properties);
    return component;
}

int CASComponent_Frame::DrawComponent(CASComponentData* component, CASInstance* instance,
                                      AcDbObjectIdArray& createdEntities) {
    if (!component || !instance) return 0;
    const CPropertiesEx& properties = *component->GetDrawData()->GetProperties();
    const Edge bottom = ReadEdge(properties, L"BOTTOM");
    const Edge left = ReadEdge(properties, L"LEFT");
    const Edge right = ReadEdge(properties, L"RIGHT");
    const Edge top = ReadEdge(properties, L"TOP");
    // A record without an inset is an old one; it draws close to the sheet edge.
    const double insetBottom = properties.GetDblProperty(L"OFFSET_BOTTOM", 1.0, 1);
    const double insetLeft = properties.GetDblProperty(L"OFFSET_LEFT", 1.0, 1);
    const double insetRight = properties.GetDblProperty(L"OFFSET_RIGHT", 1.0, 1);
    const double insetTop = properties.GetDblProperty(L"OFFSET_TOP", 1.0, 1);

    const double width = instance->GetWidth();
    const double height = instance->GetHeight();
    AcGePoint3d base;
    instance->GetBasePoint(base);
    // Two opposite corners keep the base point's elevation and the other two lie at 0; on sheets
    // at elevation 0, the usual case, the frame is flat.
    const AcGePoint3d p1(base.x + insetLeft, base.y + insetBottom, base.z);
    const AcGePoint3d p2(base.x + width - insetRight, base.y + insetBottom, 0.0);
    const AcGePoint3d p3(base.x + width - insetRight, base.y + height - insetTop, base.z);
    const AcGePoint3d p4(base.x + insetLeft, base.y + height - insetTop, 0.0);
    DrawEdge(bottom, p1, p2, createdEntities);
    DrawEdge(left, p1, p4, createdEntities);
    DrawEdge(right, p2, p3, createdEntities);
    DrawEdge(top, p3, p4, createdEntities);
    return 1;
}

}  // namespace XimoGis::AssemblySchemes
