#include "framework/repository/CRepositoryManager.h"

#include "framework/TempFolder.h"
#include "framework/repository/PipeRepository.h"
#include "framework/systems/CSystemManager.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::CDefinitionRepository;
using XimoGis::CRepositoryManager;
using XimoGis::System::CGisSystem;
using XimoGis::System::CSystemManager;
using XimoGis::Testing::PipeRepository;
using XimoGis::Testing::PipeRepositoryFactory;
using XimoGis::Testing::TempFolder;

namespace {

class RepositoryManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(CSystemManager::Instance()->OpenWorkspace(folder.Text(), error, true)) << error;
        water = CSystemManager::Instance()->CreateSystem(1, L"Vodovod", 8, {}, error);
        sewer = CSystemManager::Instance()->CreateSystem(2, L"Kanalizacija", 8, {}, error);
        ASSERT_TRUE(water && sewer) << error;
        ASSERT_TRUE(CRepositoryManager::RegisterRepositoryFactory(L"PIPES", factory));
        PipeRepository::deleteAnswer = 1;
        PipeRepository::systemDeletes = 0;
    }
    void TearDown() override {
        CSystemManager::Instance()->CloseWorkspace();
        CRepositoryManager::UnregisterRepositoryFactory(L"PIPES");
    }

    TempFolder folder;
    std::wstring error;
    boost::shared_ptr<PipeRepositoryFactory> factory = boost::make_shared<PipeRepositoryFactory>();
    CGisSystem* water = nullptr;
    CGisSystem* sewer = nullptr;
};

}  // namespace

TEST_F(RepositoryManagerTest, OneRepositoryPerSystemAndNameReadOnFirstUse) {
    folder.Write("systems/1/PIPES.xml", "<pipes><pipe id=\"{A}\"/></pipes>");
    folder.Write("systems/2/PIPES.xml", "<pipes><pipe");
    CDefinitionRepository* first = CRepositoryManager::GetSystemRepository(water, L"PIPES", 0);
    ASSERT_NE(dynamic_cast<PipeRepository*>(first), nullptr);
    EXPECT_EQ(first->GetSystem(), water);
    EXPECT_NE(first->GetRepositoryItemById(L"{A}"), nullptr);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), first);

    CDefinitionRepository* broken = CRepositoryManager::GetSystemRepository(sewer, L"PIPES", 0);
    ASSERT_NE(broken, nullptr);
    EXPECT_NE(broken, first);
    EXPECT_EQ(broken->GetItemCount(), 0u);
    EXPECT_NE(broken->GetLastError().find(L"malformed XML"), std::wstring::npos);
    EXPECT_EQ(factory->made, 2);

    // The cached repository is read again only when asked to.
    folder.Write("systems/1/PIPES.xml", "<pipes><pipe id=\"{B}\"/><pipe id=\"{C}\"/></pipes>");
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0)->GetItemCount(), 1u);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"PIPES", CRepositoryManager::kReload)->GetItemCount(),
              2u);

    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"AS", 0), nullptr);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(nullptr, L"PIPES", 0), nullptr);

    // A new factory under the name frees the repositories of the old one.
    ASSERT_TRUE(CRepositoryManager::RegisterRepositoryFactory(L"PIPES", boost::make_shared<PipeRepositoryFactory>()));
    EXPECT_EQ(factory->freed, 2);
}

TEST_F(RepositoryManagerTest, RepositoriesGoWithTheirSystemUnlessOneKeepsIt) {
    ASSERT_NE(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), nullptr);
    ASSERT_NE(CRepositoryManager::GetSystemRepository(sewer, L"PIPES", 0), nullptr);
    PipeRepository::deleteAnswer = 0;
    EXPECT_FALSE(CSystemManager::Instance()->DeleteSystem(sewer, error));
    EXPECT_EQ(factory->freed, 0);

    PipeRepository::deleteAnswer = 1;
    ASSERT_TRUE(CSystemManager::Instance()->DeleteSystem(sewer, error)) << error;
    EXPECT_EQ(PipeRepository::systemDeletes, 2);
    EXPECT_EQ(factory->freed, 1);
    CRepositoryManager::GetSystemRepository(water, L"PIPES", 0);
    EXPECT_EQ(factory->made, 2);

    CSystemManager::Instance()->CloseWorkspace();
    EXPECT_EQ(factory->freed, 2);
}
