#include "framework/repository/CDefinitionRepository.h"

#include "framework/TempFolder.h"
#include "framework/repository/PipeRepository.h"
#include "framework/systems/CGisSystem.h"

#include <gtest/gtest.h>

using XimoGis::CDefinitionRepository;
using XimoGis::CRepositoryItem;
using XimoGis::System::CGisSystem;
using XimoGis::Testing::PipeItem;
using XimoGis::Testing::PipeRepository;
using XimoGis::Testing::TempFolder;

namespace {

PipeItem* MakePipe(const std::wstring& id, const std::wstring& name, double diameter) {
    auto* pipe = new PipeItem();
    pipe->SetId(id);
    pipe->SetName(name);
    pipe->SetTopologyType(8);
    pipe->diameter = diameter;
    return pipe;
}

class RepositoryTest : public ::testing::Test {
protected:
    void SetUp() override { repository.SetSystem(&system); }

    TempFolder folder;
    CGisSystem system{4, L"Vodovod", 8, {}, folder.Text()};
    PipeRepository repository;
    std::wstring error;
};

}  // namespace

TEST_F(RepositoryTest, SavedAndReloadedRepositoryHoldsEqualItems) {
    repository.AddRepositoryItem(MakePipe(L"{P1}", L"Main <\"A&B\"> 'Šaht'", 110.5), 1);
    repository.AddRepositoryItem(MakePipe(L"{P2}", L"Two\nlines", 63.0), 1);
    repository.GetRepositoryItemById(L"{P2}")->SetReadOnly(1);
    repository.SetExploded(1);
    ASSERT_TRUE(repository.Save(error)) << error;
    EXPECT_EQ(folder.Read("systems/4/PIPES.xml").substr(0, 38), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");

    PipeRepository reloaded;
    reloaded.SetSystem(&system);
    ASSERT_TRUE(reloaded.Load(error)) << error;
    EXPECT_TRUE(reloaded.GetLastError().empty());
    EXPECT_EQ(reloaded.IsExploded(), 1);
    ASSERT_EQ(reloaded.GetItemCount(), 2u);
    for (const CRepositoryItem* original : repository.GetRepositoryItems()) {
        const auto* copy = dynamic_cast<PipeItem*>(reloaded.GetRepositoryItemById(original->GetId().c_str()));
        ASSERT_NE(copy, nullptr);
        EXPECT_EQ(copy->GetName(), original->GetName());
        EXPECT_EQ(copy->GetTopologyType(), 8);
        EXPECT_EQ(copy->GetReadOnly(), original->GetReadOnly());
        EXPECT_DOUBLE_EQ(copy->diameter, static_cast<const PipeItem*>(original)->diameter);
    }
    EXPECT_EQ(reloaded.GetXML(), repository.GetXML());
}

TEST_F(RepositoryTest, PlainRepositoryKeepsEveryItemField) {
    CDefinitionRepository plain;
    plain.SetRepositoryKey(L"PLAIN");
    plain.SetRootElementName(L"items");
    plain.SetSystem(&system);
    auto* item = new CRepositoryItem();
    item->SetName(L"Item");
    item->SetEntType(256);
    item->SetTopologyFunction(50001);
    item->SetTopologyType(8);
    item->SetReadOnly(1);
    item->SetHidden(1);
    ASSERT_TRUE(plain.AddRepositoryItem(item, 0));
    ASSERT_TRUE(plain.Save(error)) << error;

    CDefinitionRepository again;
    again.SetRepositoryKey(L"PLAIN");
    again.SetRootElementName(L"items");
    again.SetSystem(&system);
    ASSERT_TRUE(again.Load(error)) << error;
    ASSERT_EQ(again.GetItemCount(), 1u);
    const CRepositoryItem* read = again.GetRepositoryItems().front();
    EXPECT_EQ(read->GetXML(), item->GetXML());
    EXPECT_EQ(read->GetTopologyFunction(), 50001);
    EXPECT_EQ(read->GetHidden(), 1);
}

TEST_F(RepositoryTest, MissingFileGivesAnEmptyRepositoryThatMaySaveAnew) {
    repository.AddRepositoryItem(MakePipe(L"{OLD}", L"Old", 1.0), 1);
    EXPECT_FALSE(repository.Load(error));
    EXPECT_EQ(repository.GetItemCount(), 0u);
    EXPECT_NE(error.find(system.GetSubXMLPath(L"PIPES")), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"does not exist"), std::wstring::npos) << error;
    EXPECT_EQ(repository.GetLastError(), error);

    repository.AddRepositoryItem(MakePipe(L"{NEW}", L"New", 2.0), 0);
    ASSERT_TRUE(repository.Save(error)) << error;
    EXPECT_TRUE(repository.Load(error)) << error;
    EXPECT_NE(repository.GetRepositoryItemById(L"{NEW}"), nullptr);
}

TEST_F(RepositoryTest, BrokenFileGivesAnEmptyRepositoryAndStaysAsItIs) {
    const std::vector<std::pair<std::string, std::wstring>> broken = {
        {"<pipes><pipe id=\"{A}\" name=\"cut", L"not well-formed"},
        {"<schemes version=\"1\"><pipe id=\"{A}\"/></schemes>", L"root element \"schemes\" instead of \"pipes\""},
        {"<pipes><pipe name=\"\xFF\xFE\"/></pipes>", L"not UTF-8"},
        {"", L"not well-formed"},
    };
    for (const auto& [content, problem] : broken) {
        folder.Write("systems/4/PIPES.xml", content);
        repository.AddRepositoryItem(MakePipe(L"{OLD}", L"Old", 1.0), 1);
        EXPECT_FALSE(repository.Load(error));
        EXPECT_EQ(repository.GetItemCount(), 0u);
        EXPECT_NE(error.find(system.GetSubXMLPath(L"PIPES")), std::wstring::npos) << error;
        EXPECT_NE(error.find(problem), std::wstring::npos) << error;

        repository.AddRepositoryItem(MakePipe(L"{NEW}", L"New", 2.0), 0);
        EXPECT_FALSE(repository.Save(error));
        EXPECT_NE(error.find(L"not overwritten"), std::wstring::npos) << error;
        EXPECT_EQ(folder.Read("systems/4/PIPES.xml"), content);
        repository.ClearRepository();
    }

    // Once repaired, the file loads and may be written again.
    folder.Write("systems/4/PIPES.xml", "<pipes exploded=\"2\"><pipe id=\"{A}\" diameter=\"5\"/></pipes>");
    ASSERT_TRUE(repository.Load(error)) << error;
    EXPECT_EQ(repository.IsExploded(), 0);
    EXPECT_TRUE(repository.Save(error)) << error;
}

TEST_F(RepositoryTest, ItemsAddedByTheUserGetAnIdAndFileItemsStayAsTheyAre) {
    auto* fromUser = new CRepositoryItem();
    auto* fromFile = new CRepositoryItem();
    EXPECT_TRUE(repository.AddRepositoryItem(fromUser, 0));
    EXPECT_TRUE(repository.AddRepositoryItem(fromFile, 1));
    EXPECT_EQ(fromUser->GetId().size(), 38u);
    EXPECT_TRUE(fromFile->GetId().empty());
    EXPECT_FALSE(repository.AddRepositoryItem(fromUser, 0));
    EXPECT_FALSE(repository.AddRepositoryItem(nullptr, 0));

    auto* first = MakePipe(L"{SAME}", L"First", 1.0);
    auto* second = MakePipe(L"{SAME}", L"Second", 2.0);
    EXPECT_TRUE(repository.AddRepositoryItem(first, 1));
    EXPECT_TRUE(repository.AddRepositoryItem(second, 1));
    EXPECT_EQ(repository.GetItemCount(), 4u);
    EXPECT_EQ(repository.GetRepositoryItemById(L"{SAME}"), first);
    EXPECT_TRUE(repository.RemoveRepositoryItem(first));
    EXPECT_EQ(repository.GetRepositoryItemById(L"{SAME}"), second);
    EXPECT_FALSE(repository.RemoveRepositoryItem(first));
    EXPECT_EQ(repository.GetRepositoryItemById(nullptr), nullptr);
}

TEST_F(RepositoryTest, NextNameIsTheFirstFreeNumber) {
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 1");
    repository.AddRepositoryItem(MakePipe(L"{1}", L"Scheme 1", 0), 0);
    repository.AddRepositoryItem(MakePipe(L"{2}", L"Scheme 2", 0), 0);
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 3");
    repository.AddRepositoryItem(MakePipe(L"{4}", L"Scheme 4", 0), 0);
    repository.AddRepositoryItem(MakePipe(L"{5}", L"scheme 3", 0), 0);
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 3");
    repository.RemoveRepositoryItem(repository.GetRepositoryItemByName(L"Scheme 1"));
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 1");
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Shema"), L"Shema 1");
}

TEST_F(RepositoryTest, ReadingAnotherRootLoadsNothing) {
    repository.AddRepositoryItem(MakePipe(L"{OLD}", L"Old", 1.0), 1);
    EXPECT_EQ(repository.ReadXML(L"<schemes><pipe id=\"{A}\"/></schemes>"), 0);
    EXPECT_EQ(repository.GetItemCount(), 0u);
    EXPECT_EQ(repository.ReadXML(L"<pipes exploded=\"1\"><pipe id=\"{A}\"/><pipe id=\"{A}\"/></pipes>"), 1);
    EXPECT_EQ(repository.GetItemCount(), 2u);
    EXPECT_EQ(repository.IsExploded(), 1);
}

TEST_F(RepositoryTest, RepositoryWithoutSystemCannotLoadOrSave) {
    PipeRepository lonely;
    EXPECT_FALSE(lonely.Load(error));
    EXPECT_NE(error.find(L"PIPES"), std::wstring::npos);
    EXPECT_FALSE(lonely.Save(error));
}
