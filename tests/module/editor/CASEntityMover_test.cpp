#include "module/editor/CASEntityMover.h"

#include "framework/TempFolder.h"
#include "framework/cad/CXimoCDraw.h"
#include "framework/logging/CLogEngine.h"
#include "host/documents/AcApDocManager.h"
#include "host/entities/AcDbLine.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <string>
#include <vector>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCDraw;
using XimoGis::CXimoCEntityPtr;
using XimoGis::Logging::CLogEngine;

namespace {

class EntityMover : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
        document = acDocManager->curDocument();
        engine->Configure(true, 3, folder.Text() + L"/editor.log");
        first = CXimoCDraw::line({0, 0, 0}, {10, 0, 0}).objectId();
        second = CXimoCDraw::line({0, 5, 0}, {10, 5, 0}).objectId();
    }
    void TearDown() override {
        engine->Configure(false, 3, L"");
        acDocManager->closeDocument(document);
    }
    static AcGePoint3d Start(AcDbObjectId id) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        return dynamic_cast<const AcDbLine*>(entity.get())->startPoint();
    }
    // The log's lines after the prefix "[time] file(line): ", which varies.
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        std::istringstream in(folder.Read("editor.log"));
        std::string line;
        const std::regex prefix(R"(^\[[^\]]*\] AssemblySchemes_Editor +\(\d{5}\): )");
        while (std::getline(in, line)) lines.push_back(std::regex_replace(line, prefix, ""));
        return lines;
    }
    static std::string Id(AcDbObjectId id) { return std::to_string(id.handle()); }

    XimoGis::Testing::TempFolder folder;
    CLogEngine* engine = CLogEngine::Instance();
    AcApDocument* document = nullptr;
    AcDbObjectId first;
    AcDbObjectId second;
    CASEntityMover mover;
};

}  // namespace

TEST_F(EntityMover, MovesAndMovesAgainLoggingEachEntity) {
    AcDbObjectId erased = CXimoCDraw::point({0, 0, 0}).objectId();
    {
        CXimoCEntityPtr point(erased, AcDb::kForWrite);
        point->erase();
    }
    EXPECT_EQ(mover.Move({first, erased, second}, {1, 2, 0}), 2);
    EXPECT_EQ(Start(first), AcGePoint3d(1, 2, 0));
    EXPECT_EQ(Start(second), AcGePoint3d(1, 7, 0));
    EXPECT_EQ(mover.ReMove(), 2);
    EXPECT_EQ(Start(first), AcGePoint3d(2, 4, 0));
    EXPECT_TRUE(mover.GetLastMoveMatrix().isEqualTo(AcGeMatrix3d::translation({1, 2, 0})));
    const std::vector<std::string> expected = {
        "[CXimoCEdit::moveEntity], ELEMID: " + Id(first) + " - MOVE OK!",
        "[CXimoCEdit::moveEntity], ELEMID: " + Id(erased) + " - MOVE ERROR!",
        "[CXimoCEdit::moveEntity], ELEMID: " + Id(second) + " - MOVE OK!",
        "[ReMove          ], ELEMID: " + Id(first) + " - RE-MOVE OK!",
        "[ReMove          ], ELEMID: " + Id(erased) + " - RE-MOVE ERROR!",
        "[ReMove          ], ELEMID: " + Id(second) + " - RE-MOVE OK!",
    };
    EXPECT_EQ(Lines(), expected);
}

TEST_F(EntityMover, ScalesAndScalesAgainAboutTheBasePoint) {
    EXPECT_EQ(mover.ReScale(), 0);  // nothing remembered yet
    EXPECT_EQ(mover.Scale({second}, 2.0, {0, 5, 0}), 1);
    EXPECT_EQ(Start(second), AcGePoint3d(0, 5, 0));
    CXimoCEntityPtr line(second, AcDb::kForRead);
    EXPECT_EQ(dynamic_cast<const AcDbLine*>(line.get())->endPoint(), AcGePoint3d(20, 5, 0));
    line.close();
    engine->SetLoggingOn(false);
    EXPECT_EQ(mover.ReScale(), 1);
    engine->SetLoggingOn(true);
    EXPECT_EQ(mover.Scale({AcDbObjectId()}, 3.0, {0, 0, 0}), 0);
    const std::vector<std::string> expected = {
        "[scaleEntity     ], ELEMID: " + Id(second) + " - SCALE OK!",
        "[scaleEntity     ], ELEMID: 0 - SCALE ERROR!",
    };
    EXPECT_EQ(Lines(), expected);
    mover.Forget();
    EXPECT_EQ(mover.ReMove(), 0);
}
