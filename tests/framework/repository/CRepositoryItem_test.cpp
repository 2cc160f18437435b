#include "framework/repository/CRepositoryItem.h"

#include <gtest/gtest.h>

using XimoGis::CRepositoryItem;

TEST(CRepositoryItem, PlainItemWritesEveryFieldWithEncodedText) {
    CRepositoryItem item;
    item.SetId(L"{1}");
    item.SetName(L"a<b & \"c\" 'd'>\n");
    item.SetEntType(256);
    item.SetTopologyType(8);
    item.SetTopologyFunction(50001);
    item.SetReadOnly(1);
    EXPECT_EQ(item.GetXML(),
              L"<repositoryItem id=\"{1}\" name=\"a&lt;b &amp; &quot;c&quot; &apos;d&apos;&gt;&#10;\" entType=\"256\" "
              L"topologyType=\"8\" topologyFunction=\"50001\" readOnly=\"1\" hidden=\"0\"/>");
    EXPECT_EQ(item.GetWsDescription(), L"");
    EXPECT_EQ(item.DependsOn(L"x", &item), 0);
}
