#include "module/support/CASXmlCursor.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CASXmlCursor;

TEST(CASXmlCursor, FindsElementsAfterTheCurrentOneLevelByLevel) {
    CASXmlCursor cursor;
    ASSERT_TRUE(cursor.SetDoc(L"<root a=\"1\"><x n=\"1\"/><y/><x n=\"2\"><z/></x></root>"));
    EXPECT_FALSE(cursor.FindElem(L"x"));  // not at the top level
    ASSERT_TRUE(cursor.FindElem(L"root") && cursor.IntoElem() && cursor.FindElem(L"y"));
    ASSERT_TRUE(cursor.FindElem(L"x"));  // the first "x" lies behind "y"
    EXPECT_EQ(cursor.GetAttrib("n"), L"2");
    EXPECT_EQ(cursor.GetSubDoc(), L"<x n=\"2\"><z/></x>");
    EXPECT_FALSE(cursor.FindElem(L"y"));
    EXPECT_EQ(cursor.GetAttrib("n"), L"2");  // a failed search keeps the position
    ASSERT_TRUE(cursor.OutOfElem());
    EXPECT_EQ(cursor.GetAttrib("a"), L"1");
    EXPECT_FALSE(cursor.OutOfElem());
    EXPECT_FALSE(cursor.SetDoc(L"<a><b></a>"));
    EXPECT_FALSE(cursor.FindElem(L"a"));
}

TEST(CASXmlCursor, NumbersAreReadLeniently) {
    CASXmlCursor cursor;
    ASSERT_TRUE(cursor.SetDoc(L"<e i=\"-7\" junk=\"abc\" lead=\"12abc\" d=\" 0.500\" big=\"99999999999\" "
                              L"t=\"&lt;&amp;&gt;&apos;&quot;\"/>"));
    ASSERT_TRUE(cursor.FindElem(L"e"));
    EXPECT_EQ(cursor.GetIntAttrib("i"), -7);
    EXPECT_EQ(cursor.GetIntAttrib("junk"), 0);
    EXPECT_EQ(cursor.GetIntAttrib("lead"), 12);
    EXPECT_EQ(cursor.GetIntAttrib("missing"), 0);
    EXPECT_EQ(cursor.GetIntAttrib("big"), 2147483647);
    EXPECT_DOUBLE_EQ(cursor.GetDblAttrib("d"), 0.5);
    EXPECT_DOUBLE_EQ(cursor.GetDblAttrib("junk"), 0.0);
    EXPECT_EQ(cursor.GetAttrib("t"), L"<&>'\"");
}
