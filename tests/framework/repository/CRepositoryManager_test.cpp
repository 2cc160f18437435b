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
        std::wstring error;
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
    boost::shared_ptr<PipeRepositoryFactory> factory = boost::make_shared<PipeRepositoryFactory>();
    CGisSystem* water = nullptr;
    CGisSystem* sewer = nullptr;
};

}  // namespace

TEST_F(RepositoryManagerTest, OneRepositoryPerSystemAndNameReadOnFirstUse) {
    folder.Write("systems/1/PIPES.xml", "<pipes><pipe id=\"{A}\" name=\"A\"/></pipes>");
    CDefinitionRepository* first = CRepositoryManager::GetSystemRepository(water, L"PIPES", 0);
    ASSERT_NE(first, nullptr);
    EXPECT_NE(dynamic_cast<PipeRepository*>(first), nullptr);
    EXPECT_EQ(first->GetSystem(), water);
    EXPECT_NE(first->GetRepositoryItemById(L"{A}"), nullptr);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), first);
    EXPECT_EQ(factory->made, 1);

    CDefinitionRepository* other = CRepositoryManager::GetSystemRepository(sewer, L"PIPES", 0);
    ASSERT_NE(other, nullptr);
    EXPECT_NE(other, first);
    EXPECT_EQ(other->GetItemCount(), 0u);
    EXPECT_NE(other->GetLastError().find(L"does not exist"), std::wstring::npos);

    // The cached repository is read again only when asked to.
    folder.Write("systems/1/PIPES.xml", "<pipes><pipe id=\"{B}\"/><pipe id=\"{C}\"/></pipes>");
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0)->GetItemCount(), 1u);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"PIPES", CRepositoryManager::kReload)->GetItemCount(),
              2u);
    EXPECT_EQ(factory->made, 2);
}

TEST_F(RepositoryManagerTest, UnknownNamesAndMissingSystemsGiveNothing) {
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, L"AS", 0), nullptr);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(nullptr, L"PIPES", 0), nullptr);
    EXPECT_EQ(CRepositoryManager::GetSystemRepository(water, nullptr, 0), nullptr);
    EXPECT_EQ(CRepositoryManager::GetRepositoryFactory(L"PIPES"), factory.get());
    EXPECT_FALSE(CRepositoryManager::RegisterRepositoryFactory(L"", factory));
    EXPECT_FALSE(CRepositoryManager::RegisterRepositoryFactory(L"X", nullptr));
    EXPECT_EQ(factory->made, 0);
}

TEST_F(RepositoryManagerTest, BrokenFileGivesAnEmptyRepositoryWithItsError) {
    folder.Write("systems/2/PIPES.xml", "<pipes><pipe");
    CDefinitionRepository* repository = CRepositoryManager::GetSystemRepository(sewer, L"PIPES", 0);
    ASSERT_NE(repository, nullptr);
    EXPECT_EQ(repository->GetItemCount(), 0u);
    EXPECT_NE(repository->GetLastError().find(L"not well-formed"), std::wstring::npos);
    std::wstring error;
    EXPECT_FALSE(repository->Save(error));
    EXPECT_EQ(folder.Read("systems/2/PIPES.xml"), "<pipes><pipe");
}

TEST_F(RepositoryManagerTest, RepositoriesGoWithTheirSystemAfterAllRespondersHeardOfIt) {
    ASSERT_NE(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), nullptr);
    ASSERT_NE(CRepositoryManager::GetSystemRepository(sewer, L"PIPES", 0), nullptr);
    std::wstring error;
    ASSERT_TRUE(CSystemManager::Instance()->DeleteSystem(sewer, error)) << error;
    EXPECT_EQ(PipeRepository::systemDeletes, 1);
    EXPECT_EQ(factory->freed, 1);

    // The other system keeps its cached repository.
    CRepositoryManager::GetSystemRepository(water, L"PIPES", 0);
    EXPECT_EQ(factory->made, 2);

    CSystemManager::Instance()->CloseWorkspace();
    EXPECT_EQ(factory->freed, 2);
}

TEST_F(RepositoryManagerTest, RepositoryMayKeepItsSystem) {
    ASSERT_NE(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), nullptr);
    PipeRepository::deleteAnswer = 0;
    std::wstring error;
    EXPECT_FALSE(CSystemManager::Instance()->DeleteSystem(water, error));
    EXPECT_EQ(CSystemManager::Instance()->GetSystemById(1), water);
    EXPECT_EQ(factory->freed, 0);
}

TEST_F(RepositoryManagerTest, ReplacingAFactoryFreesTheRepositoriesItMade) {
    ASSERT_NE(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), nullptr);
    auto replacement = boost::make_shared<PipeRepositoryFactory>();
    ASSERT_TRUE(CRepositoryManager::RegisterRepositoryFactory(L"PIPES", replacement));
    EXPECT_EQ(factory->freed, 1);
    ASSERT_NE(CRepositoryManager::GetSystemRepository(water, L"PIPES", 0), nullptr);
    EXPECT_EQ(replacement->made, 1);
}
