#include "host/svg/AcSvgWriter.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>

TEST(AcSvgWriter, NestsElementsAndEscapesAttributesAndText) {
    AcSvgWriter out;
    out.start("svg").attribute("title", "a \"b\" & <c>");
    out.start("g").start("line").attribute("x1", 1.5).end();
    out.start("text").text(L"x < y & \u00e9\x02").end();
    const std::string doc = out.finish();
    pugi::xml_document parsed;
    ASSERT_TRUE(parsed.load_string(doc.c_str())) << doc;
    EXPECT_STREQ(parsed.child("svg").attribute("title").value(), "a \"b\" & <c>");
    EXPECT_STREQ(parsed.child("svg").child("g").child("line").attribute("x1").value(), "1.5");
    EXPECT_STREQ(parsed.child("svg").child("g").child("text").text().get(), "x < y & \u00e9");
}

TEST(AcSvgWriter, WritesShortLocaleFreeNumbers) {
    EXPECT_EQ(acsvgNumber(12.5), "12.5");
    EXPECT_EQ(acsvgNumber(-3.0), "-3");
    EXPECT_EQ(acsvgNumber(0.12345), "0.123");
    EXPECT_EQ(acsvgNumber(-0.0001), "0");
    EXPECT_EQ(acsvgNumber(1e6), "1000000");
}
