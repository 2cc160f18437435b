#include "host/svg/AcSvgPalette.h"

#include <gtest/gtest.h>

TEST(AcSvgPalette, GivesTheHostsColoursByIndex) {
    EXPECT_EQ(acsvgAciToRgb(1), 0xFF0000u);
    EXPECT_EQ(acsvgAciToRgb(5), 0x0000FFu);
    EXPECT_EQ(acsvgAciToRgb(7), 0xFFFFFFu);
    EXPECT_EQ(acsvgAciToRgb(8), 0x808080u);
    // Hues 15 degrees apart, five brightnesses, full and half saturation.
    EXPECT_EQ(acsvgAciToRgb(10), 0xFF0000u);
    EXPECT_EQ(acsvgAciToRgb(11), 0xFF7F7Fu);
    EXPECT_EQ(acsvgAciToRgb(12), 0xA50000u);
    EXPECT_EQ(acsvgAciToRgb(23), 0xA56752u);
    EXPECT_EQ(acsvgAciToRgb(30), 0xFF7F00u);
    EXPECT_EQ(acsvgAciToRgb(43), 0xA59152u);
    EXPECT_EQ(acsvgAciToRgb(94), 0x007F00u);
    EXPECT_EQ(acsvgAciToRgb(109), 0x132617u);
    EXPECT_EQ(acsvgAciToRgb(171), 0x7F7FFFu);
    EXPECT_EQ(acsvgAciToRgb(249), 0x261317u);
    // Greys.
    EXPECT_EQ(acsvgAciToRgb(250), 0x333333u);
    EXPECT_EQ(acsvgAciToRgb(251), 0x5B5B5Bu);
    EXPECT_EQ(acsvgAciToRgb(255), 0xFFFFFFu);
    // By block and by layer have no colour of their own.
    EXPECT_EQ(acsvgAciToRgb(0), 0u);
    EXPECT_EQ(acsvgAciToRgb(256), 0u);
    EXPECT_EQ(acsvgRgbHex(0xA56752), "#a56752");
}
