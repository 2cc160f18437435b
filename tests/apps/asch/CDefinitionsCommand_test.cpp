#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"
#include "framework/systems/CSystemManager.h"

#include <filesystem>
#include <fstream>

using aschtest::run;

namespace {

// A workspace with one water system (topology type 8) holding the demo repository.
class DefinitionsCommand : public ::testing::Test {
protected:
    void SetUp() override {
        std::ofstream(folder / "workspace.xml") << "<workspace name=\"Test\" language=\"en\"/>";
        std::wstring error;
        auto* systems = XimoGis::System::CSystemManager::Instance();
        ASSERT_TRUE(systems->OpenWorkspace(folder.path().wstring(), error, true));
        ASSERT_TRUE(systems->CreateSystem(1, L"Vodovod", 8, {}, error));
        systems->CloseWorkspace();
        std::filesystem::create_directories(folder / "systems/1");
        std::filesystem::copy_file(std::filesystem::path(XIMO_SOURCE_DIR) / "data/demo/systems/1/AS.xml",
                                   folder / "systems/1/AS.xml");
    }
    aschtest::Result Definitions(const std::string& arguments) {
        return run("definitions " + arguments + " --workspace '" + folder.path().string() + "'");
    }
    std::string Repository() const { return aschtest::readAll(folder / "systems/1/AS.xml"); }

    aschtest::TempFolder folder{"definitions"};
};

}  // namespace

TEST_F(DefinitionsCommand, ListsAndShowsTheDemoSheets) {
    const auto list = Definitions("list");
    ASSERT_EQ(list.code, 0) << list.err;
    EXPECT_NE(list.out.find("  A4 portrait  210 x 297  5 component(s)\n"), std::string::npos) << list.out;
    EXPECT_NE(list.out.find("  A3 landscape  420 x 297  5 component(s)\n"), std::string::npos) << list.out;
    const auto show = Definitions("show 'A3 landscape'");
    ASSERT_EQ(show.code, 0) << show.err;
    EXPECT_EQ(show.out.rfind("definition \"A3 landscape\" {", 0), 0u) << show.out;
    EXPECT_NE(show.out.find("  properties:\n    [Sheet]\n      LS_SCALE_X = 0.05  (Drawing scale)\n"
                            "      ASPW = 420  (Paper width)\n"),
              std::string::npos)
        << show.out;
}

TEST_F(DefinitionsCommand, MakesAndEditsDefinitionsAndSavesThem) {
    const auto made =
        Definitions("new --name 'A4 with BOM' --set ASPH=300 --add 01SCHEME@10,20 --add 03POS --add 04BOM");
    ASSERT_EQ(made.code, 0) << made.err;
    EXPECT_EQ(made.out.rfind("saved {", 0), 0u) << made.out;
    const auto show = Definitions("show 'A4 with BOM'");
    EXPECT_NE(show.out.find("topology type 8, topology function 50001"), std::string::npos) << show.out;
    EXPECT_NE(show.out.find("    01SCHEME  Scheme  {"), std::string::npos) << show.out;
    EXPECT_NE(show.out.find("  offset 10.000, 20.000\n      03POS  Position labels  {"), std::string::npos) << show.out;
    EXPECT_NE(show.out.find("      ASPH = 300  (Paper height)"), std::string::npos) << show.out;

    const auto edited = Definitions("edit 'A4 with BOM' --set ASDPF=0 --name 'A4 framed'");
    ASSERT_EQ(edited.code, 0) << edited.err;
    EXPECT_NE(Definitions("show 'A4 framed'").out.find("ASDPF = 0"), std::string::npos);
    EXPECT_NE(Repository().find("name=\"A4 framed\""), std::string::npos);
}

TEST_F(DefinitionsCommand, RefusedOrCancelledEditsSaveNothing) {
    const std::string before = Repository();
    const auto cancelled = Definitions("edit 'A4 portrait' --set ASPW=100 --input 'text Cancel'");
    EXPECT_EQ(cancelled.code, 1);
    EXPECT_NE(cancelled.err.find("asch definitions: cancelled; nothing was saved"), std::string::npos);
    const auto refused = Definitions("new --set ASPW=wide");
    EXPECT_EQ(refused.code, 1);
    EXPECT_NE(refused.err.find("\"wide\" is not a valid value of \"ASPW\""), std::string::npos) << refused.err;
    EXPECT_EQ(Definitions("edit 'A5'").err, "asch definitions: no definition \"A5\" in system 1\n");
    EXPECT_EQ(Definitions("new --add 04BOM@x").code, 1);
    EXPECT_EQ(Definitions("show").code, 1);
    EXPECT_EQ(Definitions("drop").code, 1);
    EXPECT_EQ(Repository(), before);
    std::ofstream(folder / "systems/1/AS.xml") << "<schemes>";
    const auto broken = Definitions("list");
    EXPECT_EQ(broken.code, 1);
    EXPECT_NE(broken.err.find("AS.xml"), std::string::npos) << broken.err;
}
