// The README's main job: scripts/demo_sheets.sh with the asch built here.
#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"

#include <cstdlib>
#include <filesystem>

namespace {

bool Has(const std::string& program) { return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0; }

bool HasEzdxf() { return std::system("/usr/bin/python3 -c 'import ezdxf' >/dev/null 2>&1") == 0; }

}  // namespace

TEST(DemoSheets, DrawsEveryNodesSheetWithFittingsAndAChamberThatEzdxfAndLibreCadRead) {
    const aschtest::TempFolder folder("demo_sheets");
    const auto script = std::string(XIMO_SOURCE_DIR) + "/scripts/demo_sheets.sh";
    const std::string run = "'" + script + "' '" + XIMO_ASCH_PATH + "' '" + folder / "out" + "' >'" +
                            folder / "log.txt" + "' 2>&1";
    ASSERT_EQ(std::system(run.c_str()), 0) << aschtest::readAll(folder / "log.txt");
    EXPECT_NE(aschtest::readAll(folder / "log.txt").find("14 scheme(s), 5 element(s)"), std::string::npos);
    for (const char* file : {"schemes.dxf", "schemes.svg", "scheme_C-1.svg", "scheme_Z-3.svg"})
        EXPECT_TRUE(std::filesystem::exists(folder.path() / "out" / file)) << file;
    if (Has("librecad")) {
        EXPECT_TRUE(std::filesystem::exists(folder.path() / "out/schemes.pdf"));
    }

    if (!HasEzdxf()) GTEST_SKIP() << "no ezdxf for /usr/bin/python3";
    const std::string audit = folder / "audit.txt";
    const std::string command = "/usr/bin/python3 -c \"import ezdxf,sys; a=ezdxf.readfile(sys.argv[1]).audit(); "
                                "print(len(a.errors), len(a.fixes))\" '" + folder / "out/schemes.dxf" + "' >'" +
                                audit + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(aschtest::readAll(audit), "0 0\n");
}
