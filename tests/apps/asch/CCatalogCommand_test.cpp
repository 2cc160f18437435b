#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"

using aschtest::run;

namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

}  // namespace

TEST(CCatalogCommand, ListsShowsAndDrawsTheDemoItemsByProviderAndFromBlockFiles) {
    const aschtest::TempFolder folder("catalog");
    ASSERT_EQ(run("workspace init '" + folder / "demo" + "' --demo").code, 0);
    const std::string workspace = " --workspace '" + folder / "demo" + "'";

    const auto list = run("catalog list" + workspace);
    ASSERT_EQ(list.code, 0) << list.err;
    EXPECT_TRUE(Has(list.out, "ASSEMBLYSCHEMES_CATALOG: 51 entries, 8 element type provider(s)\n")) << list.out;
    EXPECT_TRUE(Has(list.out, "Elbows/\n  Elbows 90° (Q)/\n    Q 80 PN16  [Q-080-16]  FITTING_ELBOW90 (provider)"));
    EXPECT_TRUE(Has(list.out, "  T 100x100 PN16  [T-100-100-16]  ELEMENT_BLOCK01 (block files)"));

    const auto valve = run("catalog show 'E 100 PN16'" + workspace);
    ASSERT_EQ(valve.code, 0) << valve.err;
    EXPECT_TRUE(Has(valve.out, "  AS_CATALOGNUM = E 100 PN16 (hidden: E-100-16)\n"));
    EXPECT_TRUE(Has(valve.out, "element type ELEMENT_BLOCK01: no provider, drawn from block files\n"));
    EXPECT_TRUE(Has(valve.out, "  top (1): block file " + folder / "demo/support/AssemblyElements/" +
                                   "Valves_E_100_PN16_E-100-16_1.dxf\n"));
    EXPECT_TRUE(Has(valve.out, "  left (5): none (No block file")) << valve.out;
    const auto tee = run("catalog show '{2761AEBD-F37E-5918-9F42-755B282BA026}'" + workspace);
    EXPECT_TRUE(Has(tee.out, "element type FITTING_TEE: provider \"All-flanged tee\"\n")) << tee.out;
    EXPECT_TRUE(Has(tee.out, "  right (6): provider FITTING_TEE\n"));

    const auto drawn = run("catalog draw 'T 100x80 PN16' --view front -o '" + folder / "tee.dxf" + "'" + workspace);
    EXPECT_EQ(drawn.out, "wrote " + folder / "tee.dxf" + ": T 100x80 PN16, 1 view(s)\n") << drawn.err;
    EXPECT_TRUE(Has(aschtest::readAll(folder / "tee.dxf"), "AMS_PRIRUBNICA"));
    const auto blocks = run("catalog draw 'FFR 100x80 PN16' -o '" + folder / "reducer.svg" + "'" + workspace);
    EXPECT_TRUE(Has(blocks.out, "FFR 100x80 PN16, 4 view(s)")) << blocks.err;

    const auto unknown = run("catalog show 'No such thing'" + workspace);
    EXPECT_EQ(unknown.code, 1);
    EXPECT_TRUE(Has(unknown.err, "the catalog has no item \"No such thing\"")) << unknown.err;
    EXPECT_EQ(run("catalog draw 'E 100 PN16'" + workspace).code, 2);  // no output
    EXPECT_EQ(run("catalog draw 'E 100 PN16' --view up -o x.svg" + workspace).code, 2);
    EXPECT_EQ(run("catalog list --workspace '" + folder / "nowhere" + "'").code, 1);
}
