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

PipeItem* MakePipe(const std::wstring& id, const std::wstring& name, int diameter = 0) {
    auto* pipe = new PipeItem();
    pipe->SetId(id);
    pipe->SetName(name);
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
    repository.AddRepositoryItem(MakePipe(L"{P1}", L"Main <\"A&B\"> 'Šaht'\nline two", 110), 1);
    repository.AddRepositoryItem(MakePipe(L"{P2}", L"Branch", 63), 1);
    repository.SetExploded(1);
    ASSERT_TRUE(repository.Save(error)) << error;
    EXPECT_EQ(folder.Read("systems/4/PIPES.xml").rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pipes", 0), 0u);

    PipeRepository reloaded;
    reloaded.SetSystem(&system);
    ASSERT_TRUE(reloaded.Load(error)) << error;
    EXPECT_EQ(reloaded.IsExploded(), 1);
    ASSERT_EQ(reloaded.GetItemCount(), 2u);
    const auto* main = dynamic_cast<PipeItem*>(reloaded.GetRepositoryItemById(L"{P1}"));
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(main->GetName(), L"Main <\"A&B\"> 'Šaht'\nline two");
    EXPECT_EQ(main->diameter, 110);
    EXPECT_EQ(reloaded.GetXML(), repository.GetXML());
}

TEST_F(RepositoryTest, PlainRepositoryKeepsEveryItemField) {
    CDefinitionRepository plain[2];
    for (auto& repository : plain) {
        repository.SetRepositoryKey(L"PLAIN");
        repository.SetRootElementName(L"items");
        repository.SetSystem(&system);
    }
    auto* item = new CRepositoryItem();
    item->SetName(L"<Item & \"co\">");
    item->SetEntType(256);
    item->SetTopologyFunction(50001);
    item->SetTopologyType(8);
    item->SetReadOnly(1);
    item->SetHidden(1);
    ASSERT_TRUE(plain[0].AddRepositoryItem(item, 0));
    ASSERT_TRUE(plain[0].Save(error)) << error;
    ASSERT_TRUE(plain[1].Load(error)) << error;
    ASSERT_EQ(plain[1].GetItemCount(), 1u);
    EXPECT_EQ(plain[1].GetRepositoryItems().front()->GetXML(), item->GetXML());
    EXPECT_NE(item->GetXML().find(L"topologyFunction=\"50001\" readOnly=\"1\" hidden=\"1\""), std::wstring::npos);
}

TEST_F(RepositoryTest, MissingFileGivesAnEmptyRepositoryThatMaySaveAnew) {
    repository.AddRepositoryItem(MakePipe(L"{OLD}", L"Old"), 1);
    EXPECT_FALSE(repository.Load(error));
    EXPECT_EQ(repository.GetItemCount(), 0u);
    EXPECT_NE(error.find(L"\"" + system.GetSubXMLPath(L"PIPES") + L"\" does not exist"), std::wstring::npos) << error;
    EXPECT_EQ(repository.GetLastError(), error);

    repository.AddRepositoryItem(MakePipe(L"{NEW}", L"New"), 0);
    ASSERT_TRUE(repository.Save(error)) << error;
    ASSERT_TRUE(repository.Load(error)) << error;
    EXPECT_NE(repository.GetRepositoryItemById(L"{NEW}"), nullptr);
}

TEST_F(RepositoryTest, BrokenFileGivesAnEmptyRepositoryAndStaysAsItIs) {
    const std::vector<std::pair<std::string, std::wstring>> broken = {
        {"<pipes><pipe id=\"{A}\" name=\"cut", L"malformed XML"},
        {"<schemes><pipe id=\"{A}\"/></schemes>", L"root element \"schemes\" instead of \"pipes\""},
        {"<pipes><pipe name=\"\xFF\xFE\"/></pipes>", L"not UTF-8"},
    };
    for (const auto& [content, problem] : broken) {
        folder.Write("systems/4/PIPES.xml", content);
        repository.AddRepositoryItem(MakePipe(L"{OLD}", L"Old"), 1);
        EXPECT_FALSE(repository.Load(error));
        EXPECT_EQ(repository.GetItemCount(), 0u);
        EXPECT_NE(error.find(system.GetSubXMLPath(L"PIPES")), std::wstring::npos) << error;
        EXPECT_NE(error.find(problem), std::wstring::npos) << error;

        repository.AddRepositoryItem(MakePipe(L"{NEW}", L"New"), 0);
        EXPECT_FALSE(repository.Save(error));
        EXPECT_NE(error.find(L"not overwritten"), std::wstring::npos) << error;
        EXPECT_EQ(folder.Read("systems/4/PIPES.xml"), content);
    }
    // Once repaired, the file loads and may be written again; only "1" marks it exploded.
    folder.Write("systems/4/PIPES.xml", "<pipes exploded=\"2\"><pipe id=\"{A}\"/></pipes>");
    ASSERT_TRUE(repository.Load(error)) << error;
    EXPECT_EQ(repository.IsExploded(), 0);
    EXPECT_TRUE(repository.Save(error)) << error;
}

TEST_F(RepositoryTest, UserItemsGetAnIdAndDuplicateIdsAreKept) {
    auto* fromUser = new CRepositoryItem();
    EXPECT_TRUE(repository.AddRepositoryItem(fromUser, 0));
    EXPECT_EQ(fromUser->GetId().size(), 38u);
    EXPECT_FALSE(repository.AddRepositoryItem(fromUser, 0));
    EXPECT_FALSE(repository.AddRepositoryItem(nullptr, 0));

    EXPECT_EQ(repository.ReadXML(L"<pipes><pipe id=\"{A}\" name=\"1\"/><pipe id=\"{A}\" name=\"2\"/></pipes>"), 1);
    ASSERT_EQ(repository.GetItemCount(), 2u);
    CRepositoryItem* first = repository.GetRepositoryItemById(L"{A}");
    EXPECT_EQ(first->GetName(), L"1");
    EXPECT_TRUE(repository.RemoveRepositoryItem(first));
    EXPECT_EQ(repository.GetRepositoryItemById(L"{A}")->GetName(), L"2");

    EXPECT_EQ(repository.ReadXML(L"<schemes><pipe id=\"{A}\"/></schemes>"), 0);
    EXPECT_EQ(repository.GetItemCount(), 0u);
}

TEST_F(RepositoryTest, NextNameIsTheFirstFreeNumber) {
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 1");
    for (const wchar_t* name : {L"Scheme 1", L"Scheme 2", L"Scheme 4", L"scheme 3"})
        repository.AddRepositoryItem(MakePipe(L"", name), 0);
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 3");
    repository.RemoveRepositoryItem(repository.GetRepositoryItemByName(L"Scheme 1"));
    EXPECT_EQ(repository.GetNextRepositoryItemName(L"Scheme"), L"Scheme 1");
}
