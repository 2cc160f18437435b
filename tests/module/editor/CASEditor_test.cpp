#include "module/editor/CASEditor.h"

#include "module/editor/CASFlange.h"
#include "module/editor/EditorFixture.h"

#include "framework/catalog/CCatalogItem.h"
#include "framework/topology/CNode.h"
#include "framework/ui/CProgressBar.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbPoint.h"
#include "host/entities/AcDbPolyline.h"
#include "host/input/AcEdScreen.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCEntityPtr;
using XimoGis::Data::CPropertyEx;
using XimoGis::Data::enmPropertyValueType;
using XimoGis::Topology::CNode;

namespace {

class EditorTest : public Testing::EditorFixture {
protected:
    static AcGePoint3d PointAt(AcDbObjectId id) {
        AcDbObjectPointer<AcDbPoint> point(id, AcDb::kForRead);
        return point ? point->position() : AcGePoint3d(-1, -1, -1);
    }
    // The stored sheets' base points and nodes, from the lowest row, left to right.
    std::vector<std::pair<AcGePoint3d, std::wstring>> Sheets() const {
        std::vector<std::pair<AcGePoint3d, std::wstring>> sheets;
        for (const auto& [id, sheet] : manager->GetASIStorage()->GetASRegistry()) {
            AcGePoint3d base;
            sheet->GetBasePoint(base);
            sheets.emplace_back(base, sheet->GetRefNode());
        }
        std::sort(sheets.begin(), sheets.end(), [](const auto& a, const auto& b) {
            return a.first.y != b.first.y ? a.first.y < b.first.y : a.first.x < b.first.x;
        });
        return sheets;
    }
};

}  // namespace

TEST_F(EditorTest, OneSheetHasCornerPointsAPaperFrameAtZeroAndItsComponentsOnTheirLayers) {
    auto definition = Definition(210, 297, 1, {L"00FRAME", L"01CMMNT"});
    definition->GetProperties()->SetPropertyValue(L"ASFLC", 0x10003);  // only the low 16 bits count
    definition->GetProperties()->SetPropertyValue(L"ASFLLT", L"DASHED");
    CNode node(1, L"{NODE-1}", L"Č-1", {});
    AcGePoint3d base(100, 200, 7.5);
    const auto sheet = editor->Draw(base, definition.get(), &node);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->GetDefinitionId(), definition->GetId());
    EXPECT_EQ(sheet->GetRefNode(), L"{NODE-1}");
    EXPECT_EQ(PointAt(sheet->GetSecondGeneralEntity()), AcGePoint3d(310, 497, 7.5));
    EXPECT_EQ(LayerOf(sheet->GetSecondGeneralEntity()), L"VOD_SCHEME_NP");

    AcDbObjectPointer<AcDbPolyline> frame(sheet->GetThirdGeneralEntity(), AcDb::kForRead);
    ASSERT_TRUE(frame);
    EXPECT_TRUE(frame->isClosed());
    EXPECT_EQ(frame->elevation(), 0.0);
    EXPECT_EQ(frame->colorIndex(), 3);
    EXPECT_EQ(frame->linetype(), L"DASHED");
    frame.close();
    EXPECT_EQ(editor->GetCollectedEntities().last(), sheet->GetThirdGeneralEntity());

    ASSERT_NE(sheet->GetDrawnEntitiesByComponent(L"00FRAME"), nullptr);
    EXPECT_EQ(LayerOf(sheet->GetDrawnEntitiesByComponent(L"00FRAME")->first()), L"VOD_FRAME");
    EXPECT_EQ(sheet->GetDrawnEntitiesByComponent(L"01CMMNT"), nullptr);  // interactive: placed later
    EXPECT_TRUE(manager->GetASIStorage()->GetASRegistry().empty());  // storing is the caller's
}

TEST_F(EditorTest, WithoutThePaperFrameASheetStillHasBothCornerPointsAndReadsBackWhole) {
    auto definition = Definition(420, 297, 0, {L"00FRAME"});
    const auto sheet = DrawStored(*definition, {0, 0, 0});
    EXPECT_TRUE(sheet->GetThirdGeneralEntity().isNull());
    EXPECT_EQ(PointAt(sheet->GetId()), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(PointAt(sheet->GetSecondGeneralEntity()), AcGePoint3d(420, 297, 0));
    manager->ReloadInstanceStorage();
    const auto read = manager->GetASIStorage()->GetASInstanceById(sheet->GetGuid().c_str());
    ASSERT_TRUE(read && read->GetDrawnEntitiesByComponent(L"00FRAME"));
    EXPECT_EQ(read->GetDefinitionId(), definition->GetId());
    EXPECT_EQ(read->GetWidth(), 420.0);
    EXPECT_EQ(read->GetDrawnEntitiesByComponent(L"00FRAME")->length(), 4);
}

TEST_F(EditorTest, AGridWithoutNodesDrawsRowsTimesColumnsSheetsUpwardsOnTheSchemeLayer) {
    auto definition = Definition(210, 297, 1);
    std::vector<std::string> drawn;
    XimoGis::UI::CProgressBar::Instance()->SetSink([&](const std::string& text) { drawn.push_back(text); });
    acedInputScript()->addPick({1000, 500, 0});
    EXPECT_EQ(editor->Draw(definition.get(), 2, 3, 10.0, 20.0, nullptr), 1);
    XimoGis::UI::CProgressBar::Instance()->SetSink(nullptr);

    manager->ReloadInstanceStorage();  // stored on the drawing
    const auto sheets = Sheets();
    ASSERT_EQ(sheets.size(), 6u);
    EXPECT_EQ(sheets[2].first, AcGePoint3d(1440, 500, 0));
    EXPECT_EQ(sheets[3].first, AcGePoint3d(1000, 817, 0));  // the second row above the first
    for (const auto& [base, node] : sheets) EXPECT_TRUE(node.empty());
    ASSERT_EQ(editor->GetCollectedEntities().length(), 6);
    EXPECT_EQ(LayerOf(editor->GetCollectedEntities().last()), L"VOD_SCHEME");
    EXPECT_EQ(drawn.front().rfind("\rDrawing assembly schemes... [", 0), 0u);
}

TEST_F(EditorTest, AGridGrowsRowsForMoreNodesAndCancellingOrNoActiveSystemDrawsNothing) {
    auto definition = Definition(100, 50, 0);
    CASEditor::NodeVector nodes;
    for (int i = 0; i < 5; ++i)
        nodes.push_back(boost::make_shared<CNode>(1, L"{N" + std::to_wstring(i) + L"}", L"N", AcGePoint3d()));
    acedInputScript()->addScript(L"escape; pick 0,0");
    EXPECT_EQ(editor->Draw(definition.get(), 1, 2, 0.0, 0.0, &nodes), 0);
    EXPECT_TRUE(Sheets().empty());
    ASSERT_EQ(editor->Draw(definition.get(), 1, 2, 0.0, 0.0, &nodes), 1);
    const auto sheets = Sheets();
    ASSERT_EQ(sheets.size(), 5u);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(sheets[i].first, AcGePoint3d((i % 2) * 100.0, (i / 2) * 50.0, 0)) << i;
        EXPECT_EQ(sheets[i].second, L"{N" + std::to_wstring(i) + L"}");
    }
    std::wstring error;
    ASSERT_TRUE(systems->SetActiveSystem(nullptr, error));
    acedInputScript()->addPick({0, 500, 0});
    EXPECT_EQ(editor->Draw(definition.get(), 1, 1, 0.0, 0.0, nullptr), 0);
    EXPECT_EQ(Sheets().size(), 5u);
}

TEST_F(EditorTest, SetLayerMakesMissingLayersAndTestsOnlyTheActiveSystemsTopology) {
    const AcDbObjectId line = Line({0, 0, 0}, {1, 1, 0});
    EXPECT_TRUE(database->layerId(L"VOD_COMMENTS").isNull());
    editor->SetLayer(line, nullptr, L"01CMMNT");
    EXPECT_EQ(LayerOf(line), L"VOD_COMMENTS");
    editor->SetLayer(line, nullptr, L"NO_SUCH_REFERENCE");
    EXPECT_EQ(LayerOf(line), L"VOD_COMMENTS");
    std::wstring error;
    auto* gas = systems->CreateSystem(3, L"Plin", 4, {{L"SCHEME", L"GAS_SCHEME", 3, L"Continuous"}}, error);
    editor->SetLayer(line, gas, L"SCHEME");  // passed in: its topology type is not asked
    EXPECT_EQ(LayerOf(line), L"GAS_SCHEME");
    ASSERT_TRUE(systems->SetActiveSystem(gas, error));
    editor->SetLayer(line, nullptr, L"SCHEME");  // active, but it carries no schemes
    EXPECT_EQ(LayerOf(line), L"GAS_SCHEME");
}

TEST_F(EditorTest, SheetsAreDeletedOneByOneByDefinitionOrAll) {
    auto a4 = Definition(210, 297, 1, {L"00FRAME"});
    auto a3 = Definition(420, 297, 1);
    const auto first = DrawStored(*a4, {0, 0, 0});
    const auto second = DrawStored(*a4, {300, 0, 0});
    const auto third = DrawStored(*a3, {600, 0, 0});
    CASEditor::InstanceVector one{first};
    editor->DeleteASInstances(one);
    EXPECT_TRUE(first->GetDrawnEntitiesByComponent(L"00FRAME")->first().isErased());
    EXPECT_EQ(manager->GetASIStorage()->GetASRegistry().size(), 2u);
    editor->DeleteASInstances(L"{def-2}", 0);  // ids compare exactly
    EXPECT_EQ(manager->GetASIStorage()->GetASRegistry().size(), 2u);
    editor->DeleteASInstances(a3->GetId(), 0);
    EXPECT_TRUE(third->GetThirdGeneralEntity().isErased());
    EXPECT_FALSE(second->GetId().isErased());
    editor->DeleteASInstances();
    EXPECT_TRUE(second->GetId().isErased());
    EXPECT_TRUE(manager->GetASIStorage()->GetASRegistry().empty());
}

TEST_F(EditorTest, TheCentreOfAGroupIsWhereItsFlangeAxesMeetAndEachCandidateIsShown) {
    acedScreen()->redraw();
    const AcDbObjectIdArray elbow = Elbow({5, 5, 0});
    EXPECT_EQ(CASEditor::GetCenterPoint(elbow), AcGePoint3d(15, 5, 0));
    EXPECT_FALSE(acedScreen()->transientVectors().empty());
    // A pipe piece: its axes are one line, whose point nearest the middle of the box is taken.
    const AcDbObjectIdArray pipe{Flange({0, -3, 0}, {0, 3, 0}), Flange({20, -3, 0}, {20, 3, 0}),
                                 Line({0, 5, 0}, {20, 5, 0})};
    EXPECT_EQ(CASEditor::GetCenterPoint(pipe), AcGePoint3d(10, 0, 0));
    EXPECT_EQ(CASEditor::GetCenterPoint(AcDbObjectIdArray{pipe[0], pipe[2]}), AcGePoint3d(10, 0, 0));
    EXPECT_EQ(CASEditor::GetCenterPoint(AcDbObjectIdArray{Line({0, 0, 0}, {10, 4, 0})}), AcGePoint3d(5, 2, 0));

    EXPECT_EQ(CASEditor::GetBlockCenterPoint(nullptr), AcGePoint3d::kOrigin);
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(database->getBlockTable(blocks, AcDb::kForWrite), Acad::eOk);
    auto* record = new AcDbBlockTableRecord;
    record->setName(L"ELBOW");
    AcDbObjectId block;
    blocks->add(block, record);
    blocks->close();
    for (const AcDbObjectId& part : elbow) {
        CXimoCEntityPtr entity(part, AcDb::kForRead);
        record->appendAcDbEntity(static_cast<AcDbEntity*>(entity->clone()));
    }
    record->close();
    AcDbBlockReference reference({100, 50, 0}, block);
    EXPECT_EQ(CASEditor::GetBlockCenterPoint(&reference), AcGePoint3d(115, 55, 0));
}

TEST_F(EditorTest, CommentsOnASheetTakeTheCommentComponentsTextSettingsAndBelongToTheSheet) {
    auto definition = Definition(210, 297, 0, {L"01CMMNT"});
    auto& settings = *definition->GetComponents().begin()->second->GetDrawData()->GetProperties();
    settings.AddCategory(0, 0, 0);
    settings.AddProperty(0, boost::make_shared<CPropertyEx>(L"TEXT_HEIGHT", enmPropertyValueType::Double));
    settings.AddProperty(0, boost::make_shared<CPropertyEx>(L"TEXT_COLOR", enmPropertyValueType::Integer));
    settings.SetPropertyValue(L"TEXT_HEIGHT", 3.5);
    settings.SetPropertyValue(L"TEXT_COLOR", 0x10002);
    Store({definition.get()});
    const auto sheet = DrawStored(*definition, {0, 0, 0});
    editor->DrawComment(L"");
    EXPECT_TRUE(acedInputScript()->prompts().empty());  // an empty text asks nothing

    acedInputScript()->addScript(L"pick 50,60; pick 500,500; enter");
    editor->DrawComment(L"Check the valve");
    EXPECT_EQ(acedInputScript()->prompts().back(), L"Pick the insertion point");
    const AcDbObjectIdArray* comments = sheet->GetDrawnEntitiesByComponent(L"01CMMNT");
    ASSERT_TRUE(comments && comments->length() == 1);
    AcDbObjectPointer<AcDbMText> comment(comments->first(), AcDb::kForRead);
    ASSERT_TRUE(comment);
    EXPECT_EQ(comment->contents(), L"Check the valve");
    EXPECT_EQ(comment->location(), AcGePoint3d(50, 60, 0));
    EXPECT_EQ(comment->textHeight(), 3.5);
    EXPECT_EQ(comment->colorIndex(), 2);
    EXPECT_EQ(comment->layer(), L"VOD_SCHEME");
}

namespace {

// Draws the fixture's elbow at the insertion point, from every view.
class ElbowProvider : public IAssemblyElementTypeProvider {
public:
    using Drawer = std::function<AcDbObjectIdArray(const AcGeVector3d&)>;
    explicit ElbowProvider(Drawer draw)
        : IAssemblyElementTypeProvider(L"TEST_ELBOW", eAssemblyElementFitting), m_draw(std::move(draw)) {}
    std::wstring GetDescription() const override { return L"elbow"; }
    int CheckCatalogItem(const XimoGis::Data::CCatalogItem*, std::wstring&) const override { return 1; }
    int DrawAEProjection(const AcGePoint3d& at, enmViewDirection, XimoGis::Data::CCatalogItem*, CASDefinition*,
                         AcArray<AcDbObjectId>& created) override {
        created.append(m_draw(at - AcGePoint3d::kOrigin));
        return 1;
    }
    int IsProjectionSupported(enmViewDirection) const override { return 1; }

private:
    Drawer m_draw;
};

class ElementPlacement : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        manager->RegisterAssemblyElement(provider);
        item.GetProperties().AddCategory(0, 0, 0);
        item.GetProperties().AddProperty(
            0, boost::make_shared<CPropertyEx>(L"AS_ELEMENTTYPE", enmPropertyValueType::Text));
        item.GetProperties().SetPropertyValue(L"AS_ELEMENTTYPE", L"TEST_ELBOW");
        auto definition = Definition(210, 297, 0, {L"01SCHEME"});
        Store({definition.get()});
        sheet = DrawStored(*definition, {0, 0, 0});
    }
    void TearDown() override {
        manager->GetAssemblyElementTypeRegistry()->erase(L"TEST_ELBOW");
        EditorTest::TearDown();
    }

    boost::shared_ptr<ElbowProvider> provider =
        boost::make_shared<ElbowProvider>([this](const AcGeVector3d& at) { return Elbow(at); });
    XimoGis::Data::CCatalogItem item{L"{ELBOW-1}", L"Q 100", false, L"ELEMENT_BLOCK01"};
    boost::shared_ptr<CASInstance> sheet;
};

}  // namespace

TEST_F(ElementPlacement, APlacedElementBelongsToTheSheetUnderItsHandleWithItsNumberTypeAndLayer) {
    acedInputScript()->addScript(L"move 50,50; text hello; text _Rot; move 50,80; text _Mir; pick 50,50");
    ASSERT_EQ(editor->DrawASElement(&item, eViewTop), 1);
    EXPECT_EQ(acedInputScript()->prompts().front(), L"ElementFlange SchemeFlange Mirror Rotate");
    EXPECT_EQ(acedInputScript()->prompts().size(), 4u);  // each keyword, and unknown text, asks again
    ASSERT_EQ(sheet->GetElementInstances().size(), 1u);
    const auto& element = sheet->GetElementInstances().begin()->second;
    EXPECT_EQ(element->GetCatalogId(), L"{ELBOW-1}");
    EXPECT_EQ(element->GetTypeProviderId(), L"TEST_ELBOW");
    EXPECT_EQ(element->GetElementNumber(), 1);
    const AcDbObjectIdArray& ids = *element->GetObjects();
    EXPECT_EQ(LayerOf(ids[0]), L"VOD_SCHEME");
    EXPECT_EQ(sheet->GetDrawnEntitiesByComponent(L"01SCHEME")->length(), 4);
    // Turned a quarter about (50, 50), then mirrored about its own axis there.
    const auto flanges = CASFlange::Find(ids);
    ASSERT_EQ(flanges.size(), 2u);
    EXPECT_EQ(flanges[0].GetMidPoint(), AcGePoint3d(50, 40, 0));
    EXPECT_EQ(flanges[1].GetMidPoint(), AcGePoint3d(60, 50, 0));

    EXPECT_FALSE(CASEditor::GetDragData()->AreButtonsShown());
}

TEST_F(ElementPlacement, CancellingOrPlacingOffEverySheetLeavesNothingDrawn) {
    acedInputScript()->addScript(L"move 50,50; escape; pick 5000,5000");
    EXPECT_EQ(editor->DrawASElement(&item, eViewFront), 0);
    EXPECT_EQ(editor->DrawASElement(&item, eViewFront), 0);
    EXPECT_EQ(editor->DrawASElement(nullptr, eViewFront), 0);
    EXPECT_TRUE(sheet->GetElementInstances().empty());
    AcDbObjectPointer<AcDbBlockTableRecord> space(database->modelSpaceId(), AcDb::kForRead);
    for (const AcDbObjectId& id : space->entityIds()) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        EXPECT_FALSE(CASFlange::IsFlangeLine(entity.get())) << id.handle();
    }
}
