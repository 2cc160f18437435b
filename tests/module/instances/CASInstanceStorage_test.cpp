#include "module/instances/CASInstanceStorage.h"

#include "module/instances/SheetFixture.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/utility/CUtility.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <algorithm>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataRW;
using XimoGis::Data::CDDCache;

TEST(CASInstanceStorage, KeepsInstancesUnderTheirGuids) {
    CASInstanceStorage storage;
    auto first = boost::make_shared<CASInstance>();
    auto second = boost::make_shared<CASInstance>();
    storage.AddASInstance(first);
    storage.AddASInstance(second);
    EXPECT_EQ(storage.GetASInstanceById(first->GetGuid().c_str()), first);
    EXPECT_FALSE(storage.GetASInstanceById(L"{NONE}"));
    // A sheet read from a drawing takes its stored GUID and replaces one stored under it.
    auto reread = boost::make_shared<CASInstance>();
    reread->SetGuid(first->GetGuid());
    storage.AddASInstance(reread);
    EXPECT_EQ(storage.GetASInstanceById(first->GetGuid().c_str()), reread);
    storage.DeleteASInstance(second);
    EXPECT_EQ(storage.GetASRegistry().size(), 1u);
}

namespace {

using StorageTest = Testing::SheetFixture;

std::size_t ElementEntityCount(const CASInstanceStorage& storage) {
    std::size_t count = 0;
    for (const auto& [guid, sheet] : storage.GetASRegistry())
        for (const auto& [id, element] : sheet->GetElementInstances()) count += element->GetObjects()->length();
    return count;
}

// The findings as "CODE handle", in the order they were made.
std::vector<std::wstring> Findings(const CASInstanceStorage& storage) {
    std::vector<std::wstring> findings;
    for (const auto& problem : storage.GetProblems())
        findings.push_back(std::wstring(CASAudit::GetCodeName(problem.code)) + L" " +
                           CASAudit::FormatHandle(problem.handle));
    return findings;
}

std::wstring At(const wchar_t* code, AcDbObjectId id) { return std::wstring(code) + L" " + CASAudit::FormatHandle(id.handle()); }

void Set(AcDbObjectId id, int attribute, const CDataBox& value) { ASSERT_TRUE(CDataRW::Write(id, attribute, value)); }

}  // namespace

TEST_F(StorageTest, ReloadingFindsEverySheetOnceAndTwiceWithoutClearingKeepsOneCopyOfElementEntities) {
    CASInstanceStorage storage;
    storage.ReloadInstanceStorage(nullptr);
    EXPECT_TRUE(storage.GetASRegistry().empty());

    const auto sheet = DrawSheet(&water, {0, 0, 0});
    AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    storage.ReloadInstanceStorage(nullptr);
    storage.ReloadInstanceStorage(nullptr);
    ASSERT_EQ(storage.GetASRegistry().size(), 1u);
    const auto reread = storage.GetASInstanceById(sheet->GetGuid().c_str());
    ASSERT_TRUE(reread && reread != sheet);
    EXPECT_EQ(reread->GetElementInstances().size(), 2u);
    EXPECT_EQ(ElementEntityCount(storage), 4u);
    EXPECT_EQ(reread->GetElementInstances().begin()->second->GetSchemeInstance(), reread.get());
    EXPECT_TRUE(storage.GetProblems().empty());
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
    storage.Clear();
    storage.ReloadInstanceStorage(nullptr);
    EXPECT_EQ(storage.GetASRegistry().size(), 2u);

    // An erased frame line, a whole erased element and a whole erased sheet are not found.
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
    Set(frame[0], CDDCache::GetASInternalTag(), CDataBox());  // no tag
    Set(frame[1], CDDCache::GetASInternalTag(), 16);          // no such tag
    Set(bom, CDDCache::GetASComponentId(), L"99BOGUS");       // kept under it
    Set(sheet->GetId(), CDDCache::GetASWidth(), L"wide");  // general data is read from here alone
    Set(tee->GetObjects()->last(), CDDCache::GetASElementId(), CDataBox());
    Set(valve->GetEntityHolder(), CDDCache::GetEntityType(), L"512");
    CDataRW::Write(valve->GetEntityHolder(), CASElementInstance::kDataHolderAttribute, CDataBox());
    flange->SetElementAsIgnored(1, L"{NOT-ON-THE-SHEET}");
    // A component entity of a sheet that has no general entity, one naming no sheet at all, and
    // a line posing as a base point.
    const AcDbObjectId orphan = Testing::SheetFixture::Line({0, 0, 0}, 0, 0, 10, 10);
    Set(orphan, CDDCache::GetGuid(), L"{ORPHAN}");
    Set(orphan, CDDCache::GetEntityType(), 256);
    Set(orphan, CDDCache::GetASInternalTag(), 8);
    Set(orphan, CDDCache::GetASComponentId(), L"00FRAME");
    const AcDbObjectId nameless = Testing::SheetFixture::Line({0, 0, 0}, 0, 0, 20, 20);
    Set(nameless, CDDCache::GetEntityType(), 512);
    const AcDbObjectId fake = Testing::SheetFixture::Line({0, 0, 0}, 0, 0, 30, 30);
    Set(fake, CDDCache::GetGuid(), L"{FAKE}");
    Set(fake, CDDCache::GetEntityType(), 256);
    Set(fake, CDDCache::GetASInternalTag(), 1);
    Set(fake, CDDCache::GetSystemId(), L"1");

    CASInstanceStorage storage;
    storage.ReloadInstanceStorage(nullptr);
    const auto& holderOfTee = tee->GetEntityHolder();
    EXPECT_EQ(Findings(storage),
              (std::vector<std::wstring>{
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
    EXPECT_EQ(reread->GetDefinitionId(), L"{DEF-A3}");
    EXPECT_EQ(reread->GetWidth(), 0.0);
    EXPECT_EQ(reread->GetHeight(), 297.0);
    EXPECT_EQ(reread->GetDrawnEntitiesByComponent(L"99BOGUS")->first(), bom);
    EXPECT_EQ(reread->GetDrawnEntitiesByComponent(L"00FRAME"), nullptr);
    EXPECT_EQ(reread->GetElementInstanceById(tee->GetElementId().c_str())->GetObjects()->length(), 1);
    EXPECT_EQ(reread->GetElementInstanceById(tee->GetElementId().c_str())->GetEntityHolder(), holderOfTee);
    EXPECT_EQ(reread->GetElementInstanceById(valve->GetElementId().c_str())->IsElementIgnored(), 1);

    // With a system, a system id of the wrong type is one more finding; Clear() forgets them.
    storage.Clear();
    storage.ReloadInstanceStorage(&water);
    const auto withSystem = Findings(storage);
    EXPECT_NE(std::find(withSystem.begin(), withSystem.end(), At(L"WRONG_ATTRIBUTE_TYPE", fake)), withSystem.end());
    EXPECT_EQ(storage.GetASInstanceById(L"{FAKE}"), nullptr);
    storage.Clear();
    EXPECT_TRUE(storage.GetProblems().empty());
}
