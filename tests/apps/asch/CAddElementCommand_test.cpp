#include "apps/asch/SchemeCommandSupport.h"

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbLine.h"

#include <rapidjson/document.h>

#include <map>
#include <vector>

using aschtest::run;

namespace {

struct Flange {
    AcGePoint3d middle;
    bool horizontal;
};

class AddElementCommand : public aschtest::SchemeCommand {
protected:
    AddElementCommand() : SchemeCommand("add_element") {}
    void SetUp() override {
        SchemeCommand::SetUp();
        const auto sheet = Run("draw", "--definition 'A4 portrait' --node Č-1 --at 0,0");
        ASSERT_EQ(Run("draw", "--definition 'A4 portrait' --at 300,0").code, 0);
        scheme = SchemeId(sheet);
        ASSERT_FALSE(scheme.empty()) << sheet.err;
    }
    aschtest::Result Add(const std::string& options) { return Run("add-element", options); }

    // The flange lines of each element of the sheet, by position number and catalog id, as a
    // fresh process lists them and the saved drawing holds them.
    std::multimap<int, std::vector<Flange>> Elements() {
        const auto listed = run("list " + drawing + " --workspace " + workspace + " --json");
        EXPECT_EQ(listed.code, 0) << listed.err;
        rapidjson::Document json;
        json.Parse(listed.out.c_str());
        AcDbDatabase db(false);
        EXPECT_EQ(db.dxfIn(acutUtf8ToWchar(folder / "schemes.dxf").c_str()), Acad::eOk);
        std::multimap<int, std::vector<Flange>> elements;
        for (const auto& sheet : json["schemes"].GetArray()) {
            if (sheet["id"].GetString() != scheme) continue;
            for (const auto& element : sheet["elements"].GetArray()) {
                std::vector<Flange> flanges;
                for (const auto& handle : element["entities"].GetArray()) {
                    const AcDbObjectId id = db.idFromHandle(std::stoul(handle.GetString(), nullptr, 16));
                    AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
                    if (!line || !line->xDataFor(L"AMS_PRIRUBNICA")) continue;
                    const AcGePoint3d a = line->startPoint(), b = line->endPoint();
                    flanges.push_back({AcGePoint3d((a.x + b.x) / 2, (a.y + b.y) / 2, 0), std::abs(a.y - b.y) < 1e-9});
                }
                elements.emplace(element["position"].GetInt(), flanges);
                catalogs.emplace(element["position"].GetInt(), element["catalog"].GetString());
            }
        }
        return elements;
    }
    static bool Has(const std::vector<Flange>& flanges, const AcGePoint3d& middle, bool horizontal) {
        for (const Flange& flange : flanges) {
            if (flange.middle.distanceTo(middle) < 1e-6 && flange.horizontal == horizontal) return true;
        }
        return false;
    }

    std::string scheme;
    std::multimap<int, std::string> catalogs;
};

}  // namespace

TEST_F(AddElementCommand, ThreeRunsTurnMirrorAndJoinElementsNumberedByCatalogItem) {
    // A DN100 pipe piece, 500 mm at 1:10, turned upright about (100, 150).
    const auto pipe = Add("--item 'FF 100x500 PN16' --view top --at 100,150 --rotate 90");
    ASSERT_EQ(pipe.code, 0) << pipe.err;
    EXPECT_EQ(pipe.out, "added \"FF 100x500 PN16\" to scheme " + scheme + "\n");
    // A tee, mirrored: its branch points down instead of up.
    ASSERT_EQ(Add("--item {2761AEBD-F37E-5918-9F42-755B282BA026} --at 60,60 --mirror").code, 0);
    // The same tee again, joined onto the free upper flange of the pipe.
    const auto joined = Add("--item 'T 100x80 PN16' --at 100,230 --join-scheme-flange 100,178");
    ASSERT_EQ(joined.code, 0) << joined.err;

    const auto elements = Elements();
    ASSERT_EQ(elements.size(), 3u);
    EXPECT_EQ(elements.count(1), 1u);
    EXPECT_EQ(elements.count(2), 2u);  // the two tees share their number
    EXPECT_EQ(catalogs.find(1)->second, "{E3591C61-32BC-58FD-8582-98EBB619F013}");
    const auto& pipeFlanges = elements.find(1)->second;
    EXPECT_TRUE(Has(pipeFlanges, {100, 125, 0}, true));
    EXPECT_TRUE(Has(pipeFlanges, {100, 175, 0}, true));
    auto tee = elements.equal_range(2);
    const std::vector<Flange>* mirrored = nullptr;
    const std::vector<Flange>* onThePipe = nullptr;
    for (auto it = tee.first; it != tee.second; ++it) (Has(it->second, {42, 60, 0}, false) ? mirrored : onThePipe) = &it->second;
    ASSERT_TRUE(mirrored && onThePipe);
    EXPECT_TRUE(Has(*mirrored, {78, 60, 0}, false));
    EXPECT_TRUE(Has(*mirrored, {60, 42, 0}, true));  // the branch, below the run
    // Flange to flange on the pipe's top, the run going on upwards and the branch to the side.
    EXPECT_TRUE(Has(*onThePipe, {100, 175, 0}, true));
    EXPECT_TRUE(Has(*onThePipe, {100, 211, 0}, true));
    EXPECT_TRUE(Has(*onThePipe, {82, 193, 0}, false));
}

TEST_F(AddElementCommand, AnElementFlangeCanBeTakenAndBadInputIsRefused) {
    ASSERT_EQ(Add("--item 'FF 100x500 PN16' --at 100,150").code, 0);
    // The second pipe is taken by its left flange (at 75, 100 when centred at 100, 100) and put
    // onto the first pipe's right flange.
    const auto taken = Add("--item 'FF 100x500 PN16' --at 100,100 --join-element-flange 75,100 "
                           "--join-scheme-flange 126,150");
    ASSERT_EQ(taken.code, 0) << taken.err;
    const auto elements = Elements();
    ASSERT_EQ(elements.count(1), 2u);
    auto second = elements.equal_range(1).first;
    if (!Has(second->second, {175, 150, 0}, false)) ++second;
    EXPECT_TRUE(Has(second->second, {125, 150, 0}, false));
    EXPECT_TRUE(Has(second->second, {175, 150, 0}, false));

    EXPECT_EQ(Add("--item Nothing --at 1,1").err, "asch add-element: the element catalog has no item \"Nothing\"\n");
    EXPECT_NE(Add("--item 'FF 100x500 PN16' --view sideways --at 1,1").err.find("unknown view \"sideways\""),
              std::string::npos);
    EXPECT_EQ(Add("--item 'FF 100x500 PN16' --at 1000,1000").err,
              "asch add-element: no scheme sheet where the element was placed; nothing added\n");
    EXPECT_EQ(Add("--item 'FF 100x500 PN16'").err, "asch add-element: no point given (--at X,Y)\n");
    EXPECT_EQ(Elements().size(), 2u);
}
