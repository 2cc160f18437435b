#include "module/editor/CASEntityMover.h"

#include "module/editor/EditorFixture.h"

#include "framework/logging/CLogEngine.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbLine.h"

#include <regex>
#include <sstream>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Logging::CLogEngine;

namespace {

using EntityMover = Testing::EditorFixture;

}  // namespace

TEST_F(EntityMover, MovesScalesAndDoesItAgainLoggingEachEntityAsWritten) {
    CLogEngine* engine = CLogEngine::Instance();
    engine->Configure(true, 3, folder.Text() + L"/editor.log");
    const AcDbObjectId line = Line({0, 0, 0}, {10, 0, 0});
    const auto end = [&] { return AcDbObjectPointer<AcDbLine>(line, AcDb::kForRead)->endPoint(); };
    CASEntityMover mover;
    EXPECT_EQ(mover.ReScale(), 0);  // nothing remembered yet
    const AcDbObjectIdArray ids{line, AcDbObjectId()};
    EXPECT_EQ(mover.Move(ids, {1, 2, 0}), 1);
    EXPECT_EQ(mover.ReMove(), 1);
    EXPECT_EQ(mover.Scale(ids, 2.0, {2, 4, 0}), 1);
    EXPECT_EQ(end(), AcGePoint3d(22, 4, 0));
    engine->SetLoggingOn(false);
    EXPECT_EQ(mover.ReScale(), 1);
    EXPECT_EQ(end(), AcGePoint3d(42, 4, 0));
    engine->Configure(false, 3, L"");

    // Each line after "[time] file(line): ", which varies.
    std::vector<std::string> lines;
    std::istringstream log(folder.Read("editor.log"));
    for (std::string text; std::getline(log, text);)
        lines.push_back(std::regex_replace(text, std::regex(R"(^\[[^\]]*\] AssemblySchemes_Editor +\(\d{5}\): )"), ""));
    const std::string id = std::to_string(line.handle());
    EXPECT_EQ(lines, (std::vector<std::string>{"[CXimoCEdit::moveEntity], ELEMID: " + id + " - MOVE OK!",
                                               "[CXimoCEdit::moveEntity], ELEMID: 0 - MOVE ERROR!",
                                               "[ReMove          ], ELEMID: " + id + " - RE-MOVE OK!",
                                               "[ReMove          ], ELEMID: 0 - RE-MOVE ERROR!",
                                               "[scaleEntity     ], ELEMID: " + id + " - SCALE OK!",
                                               "[scaleEntity     ], ELEMID: 0 - SCALE ERROR!"}));
    mover.Forget();
    EXPECT_EQ(mover.ReMove(), 0);
}
