#include "module/support/CASXmlCursor.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CASXmlCursor;

TEST(CASXmlCursor, FindsElementsAmongTheFollowingSiblingsLevelByLevel) {
    CASXmlCursor cursor;
    ASSERT_TRUE(cursor.SetDoc(L"<root a=\"1\"><x n=\"1\"/><y/><x n=\"2\"><z/></x><x n=\"3\"/></root>"));
    EXPECT_FALSE(cursor.FindElem(L"x"));  // not at the top level
    ASSERT_TRUE(cursor.FindElem(L"root"));
    ASSERT_TRUE(cursor.IntoElem());
    ASSERT_TRUE(cursor.FindElem(L"y"));
    // The search goes on after the current element: the first "x" lies behind it.
    ASSERT_TRUE(cursor.FindElem(L"x"));
    EXPECT_EQ(cursor.GetAttrib("n"), L"2");
    EXPECT_EQ(cursor.GetSubDoc(), L"<x n=\"2\"><z/></x>");
    ASSERT_TRUE(cursor.IntoElem());
    EXPECT_FALSE(cursor.FindElem(L"x"));
    ASSERT_TRUE(cursor.OutOfElem());
    EXPECT_EQ(cursor.GetAttrib("n"), L"2");
    ASSERT_TRUE(cursor.FindElem(L"x"));
    EXPECT_EQ(cursor.GetAttrib("n"), L"3");
    EXPECT_FALSE(cursor.FindElem(L"y"));
    EXPECT_EQ(cursor.GetAttrib("n"), L"3");  // a failed search keeps the position
    ASSERT_TRUE(cursor.OutOfElem());
    EXPECT_EQ(cursor.GetAttrib("a"), L"1");
    EXPECT_FALSE(cursor.OutOfElem());
}

TEST(CASXmlCursor, NumbersAreReadLeniently) {
    CASXmlCursor cursor;
    ASSERT_TRUE(cursor.SetDoc(L"<e i=\"42\" neg=\"-7\" junk=\"abc\" lead=\"12abc\" d=\" 0.500\" "
                              L"big=\"99999999999\" t=\"&lt;&amp;&gt;&apos;&quot;\"/>"));
    ASSERT_TRUE(cursor.FindElem(L"e"));
    EXPECT_EQ(cursor.GetIntAttrib("i"), 42);
    EXPECT_EQ(cursor.GetIntAttrib("neg"), -7);
    EXPECT_EQ(cursor.GetIntAttrib("junk"), 0);
    EXPECT_EQ(cursor.GetIntAttrib("lead"), 12);
    EXPECT_EQ(cursor.GetIntAttrib("missing"), 0);
    EXPECT_EQ(cursor.GetIntAttrib("big"), 2147483647);
    EXPECT_DOUBLE_EQ(cursor.GetDblAttrib("d"), 0.5);
    EXPECT_DOUBLE_EQ(cursor.GetDblAttrib("junk"), 0.0);
    EXPECT_DOUBLE_EQ(cursor.GetDblAttrib("missing"), 0.0);
    EXPECT_EQ(cursor.GetAttrib("t"), L"<&>'\"");
    EXPECT_EQ(cursor.GetAttrib("missing"), L"");
}

TEST(CASXmlCursor, MalformedTextGivesAnEmptyDocument) {
    CASXmlCursor cursor;
    EXPECT_FALSE(cursor.SetDoc(L"<a><b></a>"));
    EXPECT_FALSE(cursor.FindElem(L"a"));
    EXPECT_FALSE(cursor.IntoElem());
    EXPECT_EQ(cursor.GetSubDoc(), L"");
    EXPECT_FALSE(cursor.SetDoc(nullptr));
    EXPECT_FALSE(cursor.FindElem(L"a"));
}
