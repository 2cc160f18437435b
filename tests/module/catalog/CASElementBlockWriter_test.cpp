#include "module/catalog/CASElementBlockWriter.h"

#include "module/catalog/CatalogTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace XimoGis::AssemblySchemes;

TEST(CASElementBlockWriter, SavesTheProvidersDrawingUnderANewNameAndReplacesNoFile) {
    XimoGis::Testing::TempFolder folder;
    const std::wstring blocks = folder.Text() + L"/support/AssemblyElements/";  // made when missing
    XimoGis::Data::CCatalog catalog(L"ASSEMBLYSCHEMES_CATALOG");
    auto* lines = Testing::AddGroup(catalog, nullptr, L"Lines");
    auto* item = Testing::AddElement(catalog, lines, L"L1", L"L-1");
    Testing::LineProvider provider;
    std::wstring error;
    EXPECT_EQ(CASElementBlockWriter::Write(blocks, eViewTop, item, provider, error), L"Lines_L1_L-1_1") << error;
    EXPECT_EQ(CASElementBlockWriter::Write(blocks, eViewTop, item, provider, error), L"Lines_L1_L-1_1_1") << error;
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);  // as it was
    AcDbDatabase saved(false);
    EXPECT_EQ(saved.dxfIn((blocks + L"Lines_L1_L-1_1.dxf").c_str(), &error), Acad::eOk) << error;

    // A name with blanks can come out taken: the file is kept.
    auto* blank = Testing::AddElement(catalog, lines, L"L 2");
    EXPECT_EQ(CASElementBlockWriter::Write(blocks, eViewTop, blank, provider, error), L"Lines_L_2_1") << error;
    EXPECT_EQ(CASElementBlockWriter::Write(blocks, eViewTop, blank, provider, error), L"");
    EXPECT_NE(error.find(L"Lines_L_2_1.dxf\" of the top view of catalog item \"L 2\" by provider TEST_LINE exists"),
              std::wstring::npos)
        << error;
    // A view the provider does not draw is not saved.
    EXPECT_EQ(CASElementBlockWriter::Write(blocks, eViewFront, item, provider, error), L"");
    EXPECT_NE(error.find(L"Cannot draw the front view of catalog item \"L1\""), std::wstring::npos) << error;
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "support/AssemblyElements/Lines_L1_L-1_4.dxf"));
}
