#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <cstdio>
#include <memory>

#include "host/base/AcString.h"
#include "host/dxf/DxfTestDrawing.h"
#include "host/dxf/DxfTestFiles.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbLine.h"

namespace fs = std::filesystem;

namespace {
constexpr const char* kPython = "/usr/bin/python3";

std::string run(const std::string& command) {
    std::string output;
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
    if (!pipe) return output;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof(buffer), pipe.get())) > 0;) output.append(buffer, n);
    return output;
}

bool haveEzdxf() { return std::system((std::string(kPython) + " -c 'import ezdxf' 2>/dev/null").c_str()) == 0; }

std::string hex(Adesk::UInt32 handle) {
    char text[16];
    std::snprintf(text, sizeof(text), "%X", handle);
    return text;
}

// Every object of the drawing that carries extended data, with its handle.
std::vector<const AcDbObject*> objectsWithXData(const AcDbDatabase& db) {
    std::vector<const AcDbObject*> out;
    const auto add = [&](AcDbObjectId id) {
        const AcDbObject* object = AcDbDatabase::peekObject(id);
        if (object && !id.isErased() && !object->xDataList().empty()) out.push_back(object);
    };
    for (const AcDbObjectId table : {db.layerTableId(), db.linetypeTableId(), db.textStyleTableId(), db.blockTableId()})
        for (const AcDbObjectId& id : static_cast<const AcDbSymbolTable*>(AcDbDatabase::peekObject(table))->recordIds())
            add(id);
    const auto* blocks = static_cast<const AcDbBlockTable*>(AcDbDatabase::peekObject(db.blockTableId()));
    for (const AcDbObjectId& blockId : blocks->recordIds())
        for (const AcDbObjectId& id : static_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(blockId))->entityIds()) {
            add(id);
            if (const auto* reference = dynamic_cast<const AcDbBlockReference*>(AcDbDatabase::peekObject(id)))
                for (const AcDbObjectId& attribute : reference->attributeIds()) add(attribute);
        }
    return out;
}

// Differences between an object's extended data and what ezdxf read for it.
void expectSameXData(const AcDbObject& object, const rapidjson::Value& apps) {
    const std::string what = "handle " + hex(object.objectId().handle());
    const AcDbXDataList& xdata = object.xDataList();
    ASSERT_EQ(apps.Size(), xdata.size()) << what;
    for (rapidjson::SizeType i = 0; i < apps.Size(); ++i) {
        EXPECT_EQ(apps[i][0].GetString(), acutWcharToUtf8(xdata[i].application)) << what;
        const auto& values = apps[i][1];
        ASSERT_EQ(values.Size(), xdata[i].values.size()) << what;
        for (rapidjson::SizeType k = 0; k < values.Size(); ++k) {
            const AcDbXDataValue& expected = xdata[i].values[k];
            const auto& actual = values[k][1];
            EXPECT_EQ(values[k][0].GetInt(), expected.code) << what;
            if (const auto* s = std::get_if<std::wstring>(&expected.value)) {
                EXPECT_EQ(actual.GetString(), acutWcharToUtf8(*s)) << what;
            } else if (const auto* d = std::get_if<double>(&expected.value)) {
                EXPECT_DOUBLE_EQ(actual.GetDouble(), *d) << what;
            } else if (const auto* i16 = std::get_if<Adesk::Int16>(&expected.value)) {
                EXPECT_EQ(actual.GetInt(), *i16) << what;
            } else if (const auto* i32 = std::get_if<Adesk::Int32>(&expected.value)) {
                EXPECT_EQ(actual.GetInt(), *i32) << what;
            }
            if (const auto* p = std::get_if<AcGePoint3d>(&expected.value)) {
                EXPECT_DOUBLE_EQ(actual[0].GetDouble(), p->x) << what;
                EXPECT_DOUBLE_EQ(actual[1].GetDouble(), p->y) << what;
                EXPECT_DOUBLE_EQ(actual[2].GetDouble(), p->z) << what;
            }
        }
    }
}
}  // namespace

TEST(DxfDatabaseWriter, AnIndependentReaderFindsNoErrorsAndTheSameExtendedData) {
    if (!haveEzdxf())
        GTEST_SKIP() << "ezdxf is not installed for " << kPython << " (scripts/setup.sh installs python3-ezdxf)";
    const fs::path file = dxfTestFolder() / "scheme.dxf";
    const auto db = makeDxfTestDrawing();
    ASSERT_EQ(db->dxfOut(file.wstring().c_str()), Acad::eOk);

    const std::string script = XIMO_SOURCE_DIR "/tests/host/dxf/dxf_read_back.py";
    const std::string json = run(std::string(kPython) + " " + script + " '" + file.string() + "'");
    rapidjson::Document report;
    ASSERT_FALSE(report.Parse(json.c_str()).HasParseError()) << json;
    std::vector<std::string> errors;
    for (const auto& e : report["errors"].GetArray()) errors.emplace_back(e.GetString());
    EXPECT_THAT(errors, testing::IsEmpty());

    const auto objects = objectsWithXData(*db);
    EXPECT_GE(objects.size(), 20u);
    const auto& xdata = report["xdata"];
    EXPECT_EQ(xdata.MemberCount(), objects.size());
    for (const AcDbObject* object : objects) {
        const std::string handle = hex(object->objectId().handle());
        ASSERT_TRUE(xdata.HasMember(handle.c_str())) << "no extended data read for handle " << handle;
        expectSameXData(*object, xdata[handle.c_str()]);
    }
}

TEST(DxfDatabaseWriter, WritesAsciiR2000WithTheHandleSeedAfterEveryHandle) {
    const fs::path file = dxfTestFolder() / "scheme.dxf";
    const auto db = makeDxfTestDrawing();
    ASSERT_EQ(db->dxfOut(file.wstring().c_str()), Acad::eOk);
    const std::string text = readBytes(file);
    EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }));
    EXPECT_NE(text.find("$ACADVER\n  1\nAC1015\n"), std::string::npos);
    EXPECT_NE(text.find("$INSUNITS\n 70\n4\n"), std::string::npos);
    EXPECT_NE(text.find("\\U+010Cvor \\U+0161-\\U+017E \\U+0110\\U+0106 \\U+20AC"), std::string::npos);
    // Every handle in the file lies below the seed, and none is given twice.
    const std::size_t seedAt = text.find("$HANDSEED\n  5\n");
    ASSERT_NE(seedAt, std::string::npos);
    const unsigned long seed = std::stoul(text.substr(seedAt + 14), nullptr, 16);
    EXPECT_GE(seed, db->handseed());
    std::set<unsigned long> handles;
    for (std::size_t at = text.find("\n  5\n"); at != std::string::npos; at = text.find("\n  5\n", at + 1)) {
        if (at == seedAt + 9) continue;
        const unsigned long handle = std::stoul(text.substr(at + 5), nullptr, 16);
        EXPECT_LT(handle, seed);
        EXPECT_TRUE(handles.insert(handle).second) << "handle " << std::hex << handle << " given twice";
    }
    // Saving again writes the same file.
    ASSERT_EQ(db->dxfOut(file.wstring().c_str()), Acad::eOk);
    EXPECT_EQ(readBytes(file), text);
}

TEST(DxfDatabaseWriter, AFailedSaveLeavesTheOldFileAsItWas) {
    const fs::path folder = dxfTestFolder();
    const fs::path file = folder / "scheme.dxf";
    writeBytes(file, "the old drawing");
    std::wstring error;

    // A value that is not a number: the file would not read back, so nothing is saved.
    AcDbDatabase broken;
    {
        AcDbBlockTableRecord* model = nullptr;
        acdbOpenObject(model, broken.modelSpaceId(), AcDb::kForWrite);
        auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(std::nan(""), 1, 0));
        model->appendAcDbEntity(line);
        line->close();
        model->close();
    }
    EXPECT_NE(broken.dxfOut(file.wstring().c_str(), &error), Acad::eOk);
    EXPECT_THAT(acutWcharToUtf8(error), testing::HasSubstr(file.string()));
    EXPECT_THAT(acutWcharToUtf8(error), testing::HasSubstr("not finite"));
    EXPECT_EQ(readBytes(file), "the old drawing");

    // A folder in the way of the file, a folder that does not exist.
    const auto db = makeDxfTestDrawing();
    fs::create_directory(folder / "taken.dxf");
    EXPECT_NE(db->dxfOut((folder / "taken.dxf").wstring().c_str(), &error), Acad::eOk);
    EXPECT_THAT(acutWcharToUtf8(error), testing::HasSubstr("taken.dxf"));
    EXPECT_NE(db->dxfOut((folder / "missing" / "scheme.dxf").wstring().c_str(), &error), Acad::eOk);
    EXPECT_THAT(acutWcharToUtf8(error), testing::HasSubstr("missing/scheme.dxf"));

    // A folder that cannot be written to (the superuser writes anywhere).
    if (::geteuid() != 0) {
        fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_NE(db->dxfOut(file.wstring().c_str(), &error), Acad::eOk);
        fs::permissions(folder, fs::perms::owner_all);
        EXPECT_EQ(readBytes(file), "the old drawing");
    }
    // No temporary files are left behind.
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2);
}

TEST(DxfDatabaseWriter, SavingThroughALinkReplacesTheFileItPointsTo) {
    const fs::path folder = dxfTestFolder();
    writeBytes(folder / "real.dxf", "the old drawing");
    fs::create_symlink("real.dxf", folder / "link.dxf");
    ASSERT_EQ(makeDxfTestDrawing()->dxfOut((folder / "link.dxf").wstring().c_str()), Acad::eOk);
    EXPECT_TRUE(fs::is_symlink(folder / "link.dxf"));
    EXPECT_NE(readBytes(folder / "real.dxf"), "the old drawing");
}
