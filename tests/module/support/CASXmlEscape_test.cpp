#include "module/support/CASXmlEscape.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CASXmlEscape;

TEST(CASXmlEscape, AttributesEncodeEveryMarkupCharacter) {
    EXPECT_EQ(CASXmlEscape::EncodeAttribute(L"<&>'\" &amp;"), L"&lt;&amp;&gt;&apos;&quot; &amp;amp;");
    EXPECT_EQ(CASXmlEscape::EncodeAttribute(L"a\nb\tc\r"), L"a&#10;b&#9;c&#13;");
}

TEST(CASXmlEscape, StoredTextKeepsItsEntityReferences) {
    EXPECT_EQ(CASXmlEscape::Escape(L"a<b>c'd\"e R&D"), L"a&lt;b&gt;c&apos;d\"e R&amp;D");
    EXPECT_EQ(CASXmlEscape::Escape(L"&amp; &#10; &#x1F; &lt &#; &1a;"), L"&amp; &#10; &#x1F; &amp;lt &amp;#; &amp;1a;");
    const std::wstring once = CASXmlEscape::Escape(L"<{#prefix#:#a&b#}>");
    EXPECT_EQ(CASXmlEscape::Escape(once), once);
}
