#include "module/instances/CASInstanceStorage.h"

#include "module/instances/SheetFixture.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/utility/CUtility.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Data::CDataBox;
using XimoGis::Data::CDDCache;

namespace {

using StorageTest = Testing::SheetFixture;

std::size_t ElementEntityCount(const CASInstanceStorage& storage) {
    std::size_t count = 0;
    for (const auto& [guid, sheet] : storage.GetASRegistry())
        for (const auto& [id, element] : sheet->GetElementInstances()) count += element->GetObjects()->length();
    return count;
}

// The findings as "CODE handle"; their order follows the drawing and the element ids.
std::multiset<std::wstring> Findings(const CASInstanceStorage& storage) {
    std::multiset<std::wstring> findings;
    for (const auto& problem : storage.GetProblems())
        findings.insert(CASAudit::GetCodeName(problem.code) + (L" " + CASAudit::FormatHandle(problem.handle)));
    return findings;
}

std::wstring At(const wchar_t* code, AcDbObjectId id) {
    return std::wstring(code) + L" " + CASAudit::FormatHandle(id.handle());
}

void Set(AcDbObjectId id, int attribute, const CDataBox& value) {
    ASSERT_TRUE(XimoGis::Data::CDataRW::Write(id, attribute, value));
}

}  // namespace

TEST_F(StorageTest, ReloadingTwiceWithoutClearingKeepsOneCopyOfEachElementEntity) {
    CASInstanceStorage storage;
    storage.ReloadInstanceStorage(nullptr);  // a drawing without schemes
    EXPECT_TRUE(storage.GetASRegistry().empty());
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    storage.ReloadInstanceStorage(nullptr);
    storage.ReloadInstanceStorage(nullptr);
    ASSERT_EQ(storage.GetASRegistry().size(), 1u);
    const auto reread = storage.GetASInstanceById(sheet->GetGuid().c_str());
    EXPECT_EQ(reread->GetElementInstances().size(), 2u);
    EXPECT_EQ(ElementEntityCount(storage), 4u);
    EXPECT_EQ(reread->GetElementInstances().begin()->second->GetSchemeInstance(), reread.get());
    EXPECT_TRUE(storage.GetProblems().empty());
    storage.DeleteASInstance(reread);
    EXPECT_FALSE(storage.GetASInstanceById(sheet->GetGuid().c_str()));
}

TEST_F(StorageTest, AGivenSystemTakesOnlyItsSheetsAndErasedEntitiesAreSkipped) {
    const auto ours = DrawSheet(&water, {0, 0, 0});
    const auto theirs = DrawSheet(&sewer, {500, 0, 0});
    const auto kept = AddElement(*ours, &water, L"{CAT-A}", L"", 50, 50);
    const auto gone = AddElement(*ours, &water, L"{CAT-B}", L"", 80, 50);
    AddElement(*theirs, &sewer, L"{CAT-A}", L"", 50, 50);
    CASInstanceStorage storage;
    storage.ReloadInstanceStorage(&water);
    ASSERT_EQ(storage.GetASRegistry().size(), 1u);
    EXPECT_EQ(storage.GetASRegistry().begin()->first, ours->GetGuid());
    EXPECT_EQ(ElementEntityCount(storage), 4u);

    XimoGis::Utility::CUtility::EraseElements({ours->GetDrawnEntitiesByComponent(L"00FRAME")->first()});
    XimoGis::Utility::CUtility::EraseElements(*gone->GetObjects());
    theirs->DeleteGraphics();
    storage.Clear();
    storage.ReloadInstanceStorage(nullptr);
    ASSERT_EQ(storage.GetASRegistry().size(), 1u);
    const auto reread = storage.GetASRegistry().begin()->second;
    EXPECT_EQ(reread->GetDrawnEntitiesByComponent(L"00FRAME")->length(), 1);
    ASSERT_EQ(reread->GetElementInstances().size(), 1u);
    EXPECT_EQ(reread->GetElementInstances().begin()->first, kept->GetElementId());
}

TEST_F(StorageTest, ADamagedDrawingRescansAndTellsWhatItSkipped) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto tee = AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    const auto valve = AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    const auto flange = AddElement(*sheet, &water, L"{CAT-C}", L"", 110, 50);
    const AcDbObjectIdArray& frame = *sheet->GetDrawnEntitiesByComponent(L"00FRAME");
    const AcDbObjectId bom = sheet->GetDrawnEntitiesByComponent(L"04BOM")->first();
    Set(sheet->GetId(), CDDCache::GetASWidth(), L"wide");  // general data is read from here alone
    Set(frame[0], CDDCache::GetASInternalTag(), CDataBox());
    Set(frame[1], CDDCache::GetASInternalTag(), 16);
    Set(bom, CDDCache::GetASComponentId(), L"99BOGUS");
    Set(tee->GetObjects()->last(), CDDCache::GetASElementId(), CDataBox());
    Set(valve->GetEntityHolder(), CDDCache::GetEntityType(), L"512");
    XimoGis::Data::CDataRW::Write(valve->GetEntityHolder(), CASElementInstance::kDataHolderAttribute, CDataBox());
    flange->SetElementAsIgnored(1, L"{NOT-ON-THE-SHEET}");
    // A component entity of a sheet without general entities, an element entity naming no sheet
    // and a line posing as a base point with a system id written as text.
    const AcDbObjectId orphan = Line({0, 0, 0}, 0, 0, 10, 10);
    const AcDbObjectId nameless = Line({0, 0, 0}, 0, 0, 20, 20);
    const AcDbObjectId fake = Line({0, 0, 0}, 0, 0, 30, 30);
    for (const auto& [id, attribute, value] : std::vector<std::tuple<AcDbObjectId, int, CDataBox>>{
             {orphan, CDDCache::GetGuid(), L"{ORPHAN}"}, {orphan, CDDCache::GetEntityType(), 256},
             {orphan, CDDCache::GetASInternalTag(), 8}, {orphan, CDDCache::GetASComponentId(), L"00FRAME"},
             {nameless, CDDCache::GetEntityType(), 512}, {fake, CDDCache::GetGuid(), L"{FAKE}"},
             {fake, CDDCache::GetEntityType(), 256}, {fake, CDDCache::GetASInternalTag(), 1},
             {fake, CDDCache::GetSystemId(), L"1"}})
        Set(id, attribute, value);

    CASInstanceStorage storage;
    storage.ReloadInstanceStorage(nullptr);
    EXPECT_EQ(Findings(storage),
              (std::multiset<std::wstring>{
                  At(L"WRONG_ATTRIBUTE_TYPE", sheet->GetId()), At(L"MISSING_INTERNAL_TAG", frame[0]),
                  At(L"UNKNOWN_INTERNAL_TAG", frame[1]), At(L"UNKNOWN_COMPONENT_ID", bom),
                  At(L"MISSING_ELEMENT_ID", tee->GetObjects()->last()),
                  At(L"WRONG_ATTRIBUTE_TYPE", valve->GetEntityHolder()), At(L"MISSING_GUID", nameless),
                  At(L"BASE_POINT_NOT_A_POINT", fake), At(L"NO_DATA_HOLDER", valve->GetObjects()->last()),
                  At(L"NO_REFERRED_NUMBER", flange->GetEntityHolder()), At(L"NO_GENERAL_DATA", orphan),
                  At(L"NO_GENERAL_DATA", fake)}));
    EXPECT_EQ(storage.GetProblems().front().message,
              L"attribute AS_WIDTH holds text (\"wide\") where a real number belongs; read as absent");
    ASSERT_EQ(storage.GetASRegistry().size(), 3u);
    const auto reread = storage.GetASInstanceById(sheet->GetGuid().c_str());
    EXPECT_EQ(reread->GetWidth(), 0.0);
    EXPECT_EQ(reread->GetHeight(), 297.0);
    EXPECT_EQ(reread->GetDrawnEntitiesByComponent(L"99BOGUS")->first(), bom);
    EXPECT_EQ(reread->GetDrawnEntitiesByComponent(L"00FRAME"), nullptr);
    EXPECT_EQ(reread->GetElementInstanceById(tee->GetElementId().c_str())->GetObjects()->length(), 1);
    EXPECT_EQ(reread->GetElementInstanceById(valve->GetElementId().c_str())->IsElementIgnored(), 1);

    storage.Clear();
    storage.ReloadInstanceStorage(&water);
    EXPECT_EQ(Findings(storage).count(At(L"WRONG_ATTRIBUTE_TYPE", fake)), 1u);
    EXPECT_FALSE(storage.GetASInstanceById(L"{FAKE}"));
    storage.Clear();
    EXPECT_TRUE(storage.GetProblems().empty());
}
