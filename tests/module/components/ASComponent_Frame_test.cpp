#include "module/components/ASComponent_Frame.h"

#include "module/editor/EditorFixture.h"

#include "host/entities/AcDbLine.h"

#include <vector>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCEntityPtr;

namespace {

class FrameTest : public Testing::EditorFixture {
protected:
    // The frame's edges, as lines from-to, on a 210 x 297 sheet of the record at the base point.
    std::vector<std::pair<AcGePoint3d, AcGePoint3d>> Edges(const boost::shared_ptr<CASComponentData>& record,
                                                           AcGePoint3d base = {0, 0, 0}) {
        CASInstance sheet;
        sheet.SetBasePoint(base);
        sheet.SetWidth(210.0);
        sheet.SetHeight(297.0);
        AcDbObjectIdArray ids;
        EXPECT_EQ(frame.DrawComponent(record.get(), &sheet, ids), 1);
        std::vector<std::pair<AcGePoint3d, AcGePoint3d>> edges;
        for (const AcDbObjectId& id : ids) {
            CXimoCEntityPtr entity(id, AcDb::kForRead);
            const auto* line = dynamic_cast<const AcDbLine*>(entity.get());
            edges.emplace_back(line->startPoint(), line->endPoint());
            colors.push_back(line->colorIndex());
            linetypes.push_back(line->linetype());
        }
        return edges;
    }
    void Set(CASComponentData& record, const wchar_t* tag, const XimoGis::Data::CPropertyValue& value) {
        ASSERT_TRUE(record.GetDrawData()->GetProperties()->SetPropertyValue(tag, value)) << tag;
    }

    CASComponent_Frame frame;
    std::vector<int> colors;
    std::vector<std::wstring> linetypes;
};

}  // namespace

TEST(FrameComponent, ANewRecordHoldsFourSettingsPerSideWithTheBindingMarginOnTheLeft) {
    const auto record = CASComponent_Frame().CreateComponentData();
    const auto& categories = record->GetDrawData()->GetProperties()->GetCategories();
    ASSERT_EQ(categories.size(), 1u);
    EXPECT_EQ(categories[0]->GetNameMsg(), 1098);
    std::vector<std::wstring> tags, values;
    std::vector<int> editors, messages;
    for (const auto& property : categories[0]->GetProperties()) {
        tags.push_back(property->GetTag());
        values.push_back(property->GetDefaultHiddenValue().GetText());
        editors.push_back(property->GetEditorType());
        messages.push_back(property->GetNameMsg());
        EXPECT_EQ(property->GetOrder(), static_cast<int>(tags.size()));
        EXPECT_EQ(property->GetPictureReference(), L"AS_" + property->GetTag());
        EXPECT_TRUE(property->IsRequired());
    }
    ASSERT_EQ(tags.size(), 16u);
    const wchar_t* sides[] = {L"LEFT", L"RIGHT", L"TOP", L"BOTTOM"};
    const int switches[] = {6623, 6621, 6622, 6620};
    for (int i = 0; i < 4; ++i) {
        const std::wstring side = sides[i];
        EXPECT_EQ(std::vector<std::wstring>(tags.begin() + i * 4, tags.begin() + i * 4 + 4),
                  (std::vector<std::wstring>{L"DF_" + side, L"LT_" + side, L"LC_" + side, L"OFFSET_" + side}));
        EXPECT_EQ(std::vector<int>(editors.begin() + i * 4, editors.begin() + i * 4 + 4),
                  (std::vector<int>{7, 10, 6, 0}));
        EXPECT_EQ(std::vector<int>(messages.begin() + i * 4, messages.begin() + i * 4 + 4),
                  (std::vector<int>{switches[i], 6624, 6039, 4382}));
        EXPECT_EQ(values[i * 4 + 1], L"Continuous");
        EXPECT_EQ(std::stod(values[i * 4 + 3]), i == 0 ? 5.0 : 2.0);
        EXPECT_EQ(categories[0]->GetProperties()[i * 4]->GetDependency(),
                  L"0:0:LT_" + side + L"#LC_" + side + L"$1:1:LT_" + side + L"#LC_" + side);
    }
}

TEST_F(FrameTest, DefaultFrameOfAnA4SheetLiesAtTheInsetsDrawnBottomLeftRightTop) {
    const AcGePoint3d p1(5, 2, 0), p2(208, 2, 0), p3(208, 295, 0), p4(5, 295, 0);
    const std::vector<std::pair<AcGePoint3d, AcGePoint3d>> expected = {{p1, p2}, {p1, p4}, {p2, p3}, {p3, p4}};
    EXPECT_EQ(Edges(frame.CreateComponentData()), expected);
    EXPECT_EQ(colors, std::vector<int>(4, 7));
    EXPECT_EQ(linetypes, std::vector<std::wstring>(4, L"Continuous"));
}

TEST_F(FrameTest, SidesSwitchOffAndAMissingInsetReadsOneWhileTwoCornersKeepTheBaseElevation) {
    auto record = frame.CreateComponentData();
    for (const wchar_t* tag : {L"DF_LEFT", L"DF_RIGHT", L"DF_TOP", L"DF_BOTTOM"}) Set(*record, tag, 0);
    EXPECT_TRUE(Edges(record).empty());  // and still 1

    Set(*record, L"DF_LEFT", 1);
    Set(*record, L"DF_RIGHT", 1);
    Set(*record, L"LT_RIGHT", L"DASHED");
    Set(*record, L"LC_RIGHT", 1);
    ASSERT_TRUE(record->GetDrawData()->GetProperties()->RemoveProperty(L"OFFSET_LEFT"));
    const auto edges = Edges(record, {0, 0, 4.0});
    ASSERT_EQ(edges.size(), 2u);
    EXPECT_EQ(edges[0], std::make_pair(AcGePoint3d(1, 2, 4), AcGePoint3d(1, 295, 0)));  // P1 to P4
    EXPECT_EQ(edges[1], std::make_pair(AcGePoint3d(208, 2, 0), AcGePoint3d(208, 295, 4)));  // P2 to P3
    EXPECT_EQ(colors.back(), 1);
    EXPECT_EQ(linetypes.back(), L"DASHED");
}
