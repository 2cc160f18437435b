#include "module/definitions/CASRepository.h"

#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepositoryFactory.h"

#include "host/base/AcString.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CDefinitionRepository;

namespace {

const wchar_t* kTwoWithOneId =
    L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    L"<schemes version=\"7\" exploded=\"1\">\n"
    L"<asDefinition id=\"{A4}\" name=\"A4 portrait\" topologyType=\"8\"/>\n"
    L"<asDefinition id=\"{A4}\" name=\"A4 again\"/>\n"
    L"<comment>not a definition</comment>\n"
    L"<asDefinition id=\"{A3}\" name=\"A3 landscape\"/>\n"
    L"</schemes>\n";

}  // namespace

TEST(CASRepository, KeepsBothDefinitionsOfOneId) {
    CASRepository repository;
    EXPECT_EQ(repository.GetRepositoryKey(), L"AS");
    EXPECT_EQ(repository.GetRootElementName(), L"schemes");
    EXPECT_EQ(repository.GetBaseFlag(), 1);
    EXPECT_EQ(repository.OnSystemDelete(nullptr), 1);
    ASSERT_EQ(repository.ReadXML(kTwoWithOneId), 1);
    ASSERT_EQ(repository.GetItemCount(), 3u);
    const auto items = repository.GetRepositoryItems();
    EXPECT_EQ(items[1]->GetName(), L"A4 again");
    EXPECT_EQ(items[1]->GetId(), L"{A4}");
    EXPECT_EQ(repository.GetRepositoryItemById(L"{A4}"), items[0]);  // look-ups find the first
    ASSERT_TRUE(dynamic_cast<CASDefinition*>(items[0]));
    EXPECT_EQ(items[0]->GetTopologyType(), 8);
}

TEST(CASRepository, AWrongRootLoadsNothingAndDropsWhatWasLoaded) {
    CASRepository repository;
    ASSERT_EQ(repository.ReadXML(kTwoWithOneId), 1);
    EXPECT_EQ(repository.ReadXML(L"<definitions><asDefinition id=\"{X}\"/></definitions>"), 0);
    EXPECT_EQ(repository.GetItemCount(), 0u);
    ASSERT_EQ(repository.ReadXML(kTwoWithOneId), 1);
    EXPECT_EQ(repository.ReadXML(L"<schemes"), 0);
    EXPECT_EQ(repository.GetItemCount(), 0u);
}

TEST(CASRepository, OnlyExplodedOneSetsTheFlag) {
    CASRepository repository;
    for (const auto& [text, flag] : {std::pair{L"<schemes exploded=\"1\"/>", 1},
                                     std::pair{L"<schemes exploded=\"2\"/>", 0},
                                     std::pair{L"<schemes exploded=\"1\"/>", 1}, std::pair{L"<schemes/>", 0}}) {
        ASSERT_EQ(repository.ReadXML(text), 1) << text;
        EXPECT_EQ(repository.IsExploded(), flag) << text;
    }
}

TEST(CASRepositoryFactory, MakesAndFreesEmptySchemeRepositories) {
    CASRepositoryFactory factory;
    CDefinitionRepository* made = factory.GetRepository(L"whatever");
    ASSERT_TRUE(dynamic_cast<CASRepository*>(made));
    factory.FreeRepositoryMemory(made);
    factory.FreeRepositoryMemory(nullptr);
    EXPECT_EQ(factory.GetRepositoryName(), L"Assembly schemes");
}

TEST(CASRepository, TheDemoRepositoryHoldsAnA4AndAnA3Sheet) {
    std::ifstream file(std::filesystem::path(XIMO_SOURCE_DIR) / "data/demo/systems/1/AS.xml", std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    const std::wstring xml = acutUtf8ToWchar(text.str());
    CASRepository repository;
    ASSERT_EQ(repository.ReadXML(xml.c_str()), 1);
    ASSERT_EQ(repository.GetItemCount(), 2u);
    const auto items = repository.GetRepositoryItems();
    const struct {
        const wchar_t* name;
        double width, height;
    } sheets[] = {{L"A4 portrait", 210.0, 297.0}, {L"A3 landscape", 420.0, 297.0}};
    for (std::size_t i = 0; i < 2; ++i) {
        const auto* definition = dynamic_cast<const CASDefinition*>(items[i]);
        ASSERT_NE(definition, nullptr);
        EXPECT_EQ(definition->GetName(), sheets[i].name);
        EXPECT_DOUBLE_EQ(definition->GetPaperWidth(), sheets[i].width);
        EXPECT_DOUBLE_EQ(definition->GetPaperHeight(), sheets[i].height);
        EXPECT_EQ(definition->GetTopologyType(), 8);
        EXPECT_EQ(definition->GetTopologyFunction(), 50001);
        EXPECT_EQ(definition->GetId().size(), 38u);
        EXPECT_EQ(definition->GetProperties()->GetPropertyCount(), 6u);
    }
    EXPECT_NE(items[0]->GetId(), items[1]->GetId());
    // The file is as the repository writes it, so saving it changes nothing.
    EXPECT_EQ(repository.GetXML(), xml);
}
