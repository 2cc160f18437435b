#include "module/support/CASXmlEscape.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CASXmlEscape;

TEST(CASXmlEscape, AttributesEncodeEveryMarkupCharacter) {
    EXPECT_EQ(CASXmlEscape::EncodeAttribute(L"<&>'\" &amp;"), L"&lt;&amp;&gt;&apos;&quot; &amp;amp;");
    EXPECT_EQ(CASXmlEscape::EncodeAttribute(L"a\nb\tc\r"), L"a&#10;b&#9;c&#13;");
    EXPECT_EQ(CASXmlEscape::EncodeAttribute(L"\u0160ibenik 0.1;0.1;0"), L"\u0160ibenik 0.1;0.1;0");
}

TEST(CASXmlEscape, EscapesMarkupButLeavesEntityReferences) {
    EXPECT_EQ(CASXmlEscape::Escape(L"a<b>c'd\"e"), L"a&lt;b&gt;c&apos;d\"e");
    EXPECT_EQ(CASXmlEscape::Escape(L"R&D & co"), L"R&amp;D &amp; co");
    EXPECT_EQ(CASXmlEscape::Escape(L"&amp; &#10; &#x1F; &lt;"), L"&amp; &#10; &#x1F; &lt;");
    // Escaping twice changes nothing more.
    const std::wstring once = CASXmlEscape::Escape(L"<{#Data#:{#prefix#:#a&b#}}>");
    EXPECT_EQ(once, L"&lt;{#Data#:{#prefix#:#a&amp;b#}}&gt;");
    EXPECT_EQ(CASXmlEscape::Escape(once), once);
}

TEST(CASXmlEscape, RecognisesOnlyCompleteReferences) {
    EXPECT_TRUE(CASXmlEscape::StartsEntityReference(L"&lt;", 0));
    EXPECT_TRUE(CASXmlEscape::StartsEntityReference(L"x&a1;", 1));
    EXPECT_TRUE(CASXmlEscape::StartsEntityReference(L"&#123;", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"&lt", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"&;", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"&#;", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"&#12a;", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"&1a;", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"& b;", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"a", 0));
    EXPECT_FALSE(CASXmlEscape::StartsEntityReference(L"&lt;", 9));
}
