#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"

using aschtest::run;

TEST(CWorkspaceCommand, InitBuildsTheDemoAgainAndAgainAndInfoListsIt) {
    const aschtest::TempFolder folder("workspace_demo");
    const std::string workspace = "'" + folder / "demo" + "'";
    for (int i = 0; i < 2; ++i) {
        const auto init = run("workspace init " + workspace + " --demo");
        ASSERT_EQ(init.code, 0) << init.err;
        EXPECT_NE(init.out.find("workspace written to"), std::string::npos);
    }
    const auto info = run("workspace info " + workspace);
    ASSERT_EQ(info.code, 0) << info.err;
    EXPECT_NE(info.out.find("system 1 \"Vodovod Demo\", topology type 8, active: 14 layers, 13 nodes, 13 sections"),
              std::string::npos)
        << info.out;
    EXPECT_NE(info.out.find("system 2 \"Kanalizacija Demo\""), std::string::npos);
    EXPECT_NE(info.out.find("nodes.pressure  Operating pressure [bar], numeric"), std::string::npos);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);  // nothing left beside
}

TEST(CWorkspaceCommand, ImportReplacesANetworkAndBadInputNamesTheFile) {
    const aschtest::TempFolder folder("workspace_import");
    const std::string workspace = "'" + folder / "ws" + "'";
    ASSERT_EQ(run("workspace init " + workspace + " --demo").code, 0);
    const std::string demo = std::string(XIMO_SOURCE_DIR) + "/data/demo/network/";
    const auto imported = run("workspace import " + workspace + " --system 2 --nodes '" + demo +
                              "sewer_nodes.geojson' --sections '" + demo + "sewer_sections.geojson'");
    ASSERT_EQ(imported.code, 0) << imported.err;
    EXPECT_EQ(imported.out, "system 2: 7 nodes, 6 sections imported\n");

    std::ofstream(folder / "broken.geojson") << "{\"type\": \"FeatureCollection\"";
    const auto broken = run("workspace import " + workspace + " --system 2 --nodes '" + folder / "broken.geojson" +
                            "' --sections '" + demo + "sewer_sections.geojson'");
    EXPECT_EQ(broken.code, 1);
    EXPECT_NE(broken.err.find("asch workspace: Layer source \"" + folder / "broken.geojson" + "\": not JSON"),
              std::string::npos)
        << broken.err;
    EXPECT_NE(run("workspace info " + workspace).out.find("7 nodes, 6 sections"), std::string::npos);

    EXPECT_EQ(run("workspace import " + workspace + " --system 2").code, 2);
    EXPECT_EQ(run("workspace paint " + workspace).code, 2);
    const auto missing = run("workspace info '" + folder / "nowhere" + "'");
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.err.find("nowhere"), std::string::npos) << missing.err;
}
