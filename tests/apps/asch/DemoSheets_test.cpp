// The README's main job: scripts/demo_sheets.sh with the asch built here.
#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"

#include <cstdlib>
#include <filesystem>

namespace {

bool Succeeds(const std::string& command) { return std::system((command + " >/dev/null 2>&1").c_str()) == 0; }

}  // namespace

TEST(DemoSheets, DrawEveryNodesSheetWithFittingsAndAChamberThatEzdxfAuditsAndLibreCadPrints) {
    const aschtest::TempFolder folder("demo_sheets");
    const std::string out = folder / "out";
    const std::string log = folder / "log.txt";
    const std::string script = std::string(XIMO_SOURCE_DIR) + "/scripts/demo_sheets.sh";
    ASSERT_EQ(std::system(("'" + script + "' '" + XIMO_ASCH_PATH + "' '" + out + "' >'" + log + "' 2>&1").c_str()), 0)
        << aschtest::readAll(log);
    EXPECT_NE(aschtest::readAll(log).find("14 scheme(s), 5 element(s)"), std::string::npos);
    for (const char* file : {"schemes.dxf", "schemes.svg", "scheme_C-1.svg", "scheme_Z-3.svg"})
        EXPECT_TRUE(std::filesystem::exists(folder.path() / "out" / file)) << file;
    EXPECT_EQ(std::filesystem::exists(folder.path() / "out/schemes.pdf"), Succeeds("command -v librecad"));

    if (!Succeeds("/usr/bin/python3 -c 'import ezdxf'")) GTEST_SKIP() << "no ezdxf for /usr/bin/python3";
    EXPECT_TRUE(Succeeds("/usr/bin/python3 -c \"import ezdxf,sys; a=ezdxf.readfile(sys.argv[1]).audit(); "
                         "sys.exit(len(a.errors))\" '" + out + "/schemes.dxf'"));
}
