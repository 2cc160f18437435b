#include "module/components/ASComponent_Frame.h"

#include "module/editor/EditorFixture.h"

#include "host/entities/AcDbLine.h"

#include <vector>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCEntityPtr;
using XimoGis::Data::CPropertyEx;

namespace {

struct Edge {
    AcGePoint3d from;
    AcGePoint3d to;
    int color;
    std::wstring linetype;
};

std::vector<Edge> Edges(const AcDbObjectIdArray& ids) {
    std::vector<Edge> edges;
    for (const AcDbObjectId& id : ids) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        const auto* line = dynamic_cast<const AcDbLine*>(entity.get());
        if (line) edges.push_back({line->startPoint(), line->endPoint(), line->colorIndex(), line->linetype()});
    }
    return edges;
}

class FrameTest : public Testing::EditorFixture {
protected:
    // The frame's edges on a sheet of the given record at the base point.
    std::vector<Edge> Draw(const boost::shared_ptr<CASComponentData>& record, AcGePoint3d base = {0, 0, 0},
                           int* result = nullptr) {
        CASInstance sheet;
        sheet.SetBasePoint(base);
        sheet.SetWidth(210.0);
        sheet.SetHeight(297.0);
        AcDbObjectIdArray ids;
        const int drawn = frame.DrawComponent(record.get(), &sheet, ids);
        if (result) *result = drawn;
        return Edges(ids);
    }
    void Set(CASComponentData& record, const wchar_t* tag, const XimoGis::Data::CPropertyValue& value) {
        ASSERT_TRUE(record.GetDrawData()->GetProperties()->SetPropertyValue(tag, value)) << tag;
    }

    CASComponent_Frame frame;
};

}  // namespace

TEST(FrameComponent, ANewRecordHoldsSixteenRequiredSettingsWithTheBindingMarginOnTheLeft) {
    CASComponent_Frame frame;
    const auto record = frame.CreateComponentData();
    EXPECT_EQ(record->GetType(), eASComponentFrame);
    EXPECT_EQ(record->GetId(), L"00FRAME");
    EXPECT_EQ(record->GetDrawData()->GetNameMsg(), 1505);
    const auto& categories = record->GetDrawData()->GetProperties()->GetCategories();
    ASSERT_EQ(categories.size(), 1u);
    EXPECT_EQ(categories[0]->GetOrder(), 0);
    EXPECT_EQ(categories[0]->GetNameMsg(), 1098);
    EXPECT_EQ(categories[0]->GetDescriptionMsg(), 1098);
    const auto& properties = categories[0]->GetProperties();
    ASSERT_EQ(properties.size(), 16u);

    struct Expected {
        const wchar_t* tag;
        const wchar_t* value;
        int editor;
        int msg;
    };
    const Expected expected[] = {
        {L"DF_LEFT", L"1", 7, 6623},      {L"LT_LEFT", L"Continuous", 10, 6624},   {L"LC_LEFT", L"7", 6, 6039},
        {L"OFFSET_LEFT", L"5", 0, 4382},  {L"DF_RIGHT", L"1", 7, 6621},           {L"LT_RIGHT", L"Continuous", 10, 6624},
        {L"LC_RIGHT", L"7", 6, 6039},     {L"OFFSET_RIGHT", L"2", 0, 4382},       {L"DF_TOP", L"1", 7, 6622},
        {L"LT_TOP", L"Continuous", 10, 6624}, {L"LC_TOP", L"7", 6, 6039},         {L"OFFSET_TOP", L"2", 0, 4382},
        {L"DF_BOTTOM", L"1", 7, 6620},    {L"LT_BOTTOM", L"Continuous", 10, 6624}, {L"LC_BOTTOM", L"7", 6, 6039},
        {L"OFFSET_BOTTOM", L"2", 0, 4382},
    };
    for (std::size_t i = 0; i < properties.size(); ++i) {
        const CPropertyEx& property = *properties[i];
        const Expected& want = expected[i];
        SCOPED_TRACE(want.tag);
        EXPECT_EQ(property.GetTag(), want.tag);
        EXPECT_EQ(property.GetOrder(), static_cast<int>(i) + 1);
        double number = 0.0;
        if (property.GetValue().ToDouble(number)) {
            double wanted = 0.0;
            XimoGis::Data::CPropertyValue(want.value).ToDouble(wanted);
            EXPECT_EQ(number, wanted);
        } else {
            EXPECT_EQ(property.GetValue().GetText(), want.value);
        }
        EXPECT_EQ(property.GetHiddenValue(), property.GetValue());
        EXPECT_EQ(property.GetDefaultValue(), property.GetValue());
        EXPECT_EQ(property.GetDefaultHiddenValue(), property.GetValue());
        EXPECT_EQ(property.GetEditorType(), want.editor);
        EXPECT_EQ(property.GetNameMsg(), want.msg);
        EXPECT_EQ(property.GetDescriptionMsg(), want.msg);
        EXPECT_EQ(property.GetPictureReference(), std::wstring(L"AS_") + want.tag);
        EXPECT_TRUE(property.IsRequired());
    }
    EXPECT_EQ(properties[0]->GetDependency(), L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    EXPECT_EQ(properties[12]->GetDependency(), L"0:0:LT_BOTTOM#LC_BOTTOM$1:1:LT_BOTTOM#LC_BOTTOM");
    EXPECT_TRUE(properties[1]->GetDependency().empty());
    // The switch greys out its side's linetype and colour.
    ASSERT_TRUE(record->GetDrawData()->GetProperties()->SetPropertyValue(L"DF_TOP", 0));
    EXPECT_FALSE(record->GetDrawData()->GetProperties()->GetProperty(L"LC_TOP")->IsEnabled());
    EXPECT_TRUE(record->GetDrawData()->GetProperties()->GetProperty(L"OFFSET_TOP")->IsEnabled());
}

TEST_F(FrameTest, DefaultFrameOfAnA4SheetHasItsEdgesAtTheInsetsInBottomLeftRightTopOrder) {
    int result = 0;
    const auto edges = Draw(frame.CreateComponentData(), {0, 0, 0}, &result);
    EXPECT_EQ(result, 1);
    ASSERT_EQ(edges.size(), 4u);
    const AcGePoint3d p1(5, 2, 0), p2(208, 2, 0), p3(208, 295, 0), p4(5, 295, 0);
    EXPECT_EQ(edges[0].from, p1);
    EXPECT_EQ(edges[0].to, p2);
    EXPECT_EQ(edges[1].from, p1);
    EXPECT_EQ(edges[1].to, p4);
    EXPECT_EQ(edges[2].from, p2);
    EXPECT_EQ(edges[2].to, p3);
    EXPECT_EQ(edges[3].from, p3);
    EXPECT_EQ(edges[3].to, p4);
    for (const Edge& edge : edges) {
        EXPECT_EQ(edge.color, 7);
        EXPECT_EQ(edge.linetype, L"Continuous");
    }
}

TEST_F(FrameTest, SidesSwitchOnAndOffAndTakeTheirOwnLinetypeAndColour) {
    auto record = frame.CreateComponentData();
    for (const wchar_t* tag : {L"DF_LEFT", L"DF_RIGHT", L"DF_TOP", L"DF_BOTTOM"}) Set(*record, tag, 0);
    int result = 0;
    EXPECT_TRUE(Draw(record, {0, 0, 0}, &result).empty());
    EXPECT_EQ(result, 1);  // nothing to draw is no failure

    Set(*record, L"DF_RIGHT", 1);
    Set(*record, L"LT_RIGHT", L"DASHED");
    Set(*record, L"LC_RIGHT", 1);
    Set(*record, L"OFFSET_RIGHT", 10.0);
    const auto edges = Draw(record, {100, 50, 0});
    ASSERT_EQ(edges.size(), 1u);
    EXPECT_EQ(edges[0].from, AcGePoint3d(300, 52, 0));
    EXPECT_EQ(edges[0].to, AcGePoint3d(300, 345, 0));
    EXPECT_EQ(edges[0].color, 1);
    EXPECT_EQ(edges[0].linetype, L"DASHED");
}

TEST_F(FrameTest, ARecordWithoutAnInsetDrawsThatSideOneUnitInAndTwoCornersTakeTheBaseElevation) {
    auto record = frame.CreateComponentData();
    ASSERT_TRUE(record->GetDrawData()->GetProperties()->RemoveProperty(L"OFFSET_LEFT"));
    const auto edges = Draw(record, {0, 0, 4.0});
    ASSERT_EQ(edges.size(), 4u);
    // Left edge (P1 to P4): P1 keeps the base point's elevation, P4 lies at 0.
    EXPECT_EQ(edges[1].from, AcGePoint3d(1, 2, 4));
    EXPECT_EQ(edges[1].to, AcGePoint3d(1, 295, 0));
    // Right edge (P2 to P3): the other way round.
    EXPECT_EQ(edges[2].from, AcGePoint3d(208, 2, 0));
    EXPECT_EQ(edges[2].to, AcGePoint3d(208, 295, 4));

    auto bare = boost::make_shared<CASComponentData>();  // no settings at all: every side, 1 in
    const auto defaults = Draw(bare);
    ASSERT_EQ(defaults.size(), 4u);
    EXPECT_EQ(defaults[0].from, AcGePoint3d(1, 1, 0));
    EXPECT_EQ(defaults[3].from, AcGePoint3d(209, 296, 0));
    EXPECT_EQ(defaults[3].color, 7);
}
