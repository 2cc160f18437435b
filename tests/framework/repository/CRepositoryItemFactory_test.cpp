#include "framework/repository/CRepositoryItemFactory.h"

#include "framework/systems/CGisSystem.h"

#include <gtest/gtest.h>

#include <memory>

using XimoGis::CRepositoryItem;
using XimoGis::CRepositoryItemFactory;
using XimoGis::System::CGisSystem;

TEST(CRepositoryItemFactory, CopiesAndCreatesPlainItems) {
    CRepositoryItemFactory factory;
    CRepositoryItem source;
    source.SetId(L"{S}");
    source.SetName(L"Source");
    source.SetTopologyFunction(50001);
    std::unique_ptr<CRepositoryItem> copy(factory.CreateRepositoryItemUI(&source));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetXML(), source.GetXML());
    EXPECT_EQ(factory.CreateRepositoryItem(nullptr), nullptr);

    CGisSystem sewer(2, L"Kanalizacija", 8, {}, L"/tmp");
    std::unique_ptr<CRepositoryItem> made(factory.CreateRepositoryItem(XimoGis::etAssemblyScheme,
                                                                       &sewer));
    EXPECT_EQ(made->GetEntType(), 256);
    EXPECT_EQ(made->GetTopologyType(), 8);
    std::unique_ptr<CRepositoryItem> without(factory.CreateRepositoryItemUI(XimoGis::etUndefined, nullptr));
    EXPECT_EQ(without->GetTopologyType(), 0);
    EXPECT_EQ(factory.EditRepositoryItemUI(made.get()), 0);
}
