#include "apps/asch/SchemeCommandSupport.h"

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbLine.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <map>
#include <vector>

using aschtest::run;

namespace {

// A flange line by its midpoint and whether it lies along x.
using Flanges = std::vector<std::pair<AcGePoint3d, bool>>;

class AddElementCommand : public aschtest::SchemeCommand {
protected:
    AddElementCommand() : SchemeCommand("add_element") {}
    void SetUp() override {
        SchemeCommand::SetUp();
        scheme = SchemeId(Run("draw", "--definition 'A4 portrait' --node Č-1 --at 0,0"));
        ASSERT_EQ(Run("draw", "--definition 'A4 portrait' --at 300,0").code, 0);
    }
    // The flange lines of each element of the first sheet by position number, as a fresh
    // process lists the elements and the saved drawing holds their lines.
    std::multimap<int, Flanges> Elements() const {
        rapidjson::Document json;
        json.Parse(run("list " + drawing + " --workspace " + workspace + " --json").out.c_str());
        AcDbDatabase db(false);
        EXPECT_EQ(db.dxfIn(acutUtf8ToWchar(folder / "schemes.dxf").c_str()), Acad::eOk);
        std::multimap<int, Flanges> elements;
        for (const auto& sheet : json["schemes"].GetArray()) {
            if (sheet["id"].GetString() != scheme) continue;
            for (const auto& element : sheet["elements"].GetArray()) {
                Flanges flanges;
                for (const auto& handle : element["entities"].GetArray()) {
                    AcDbObjectPointer<AcDbLine> line(db.idFromHandle(std::stoul(handle.GetString(), nullptr, 16)),
                                                     AcDb::kForRead);
                    if (!line || !line->xDataFor(L"AMS_PRIRUBNICA")) continue;
                    const AcGePoint3d a = line->startPoint(), b = line->endPoint();
                    flanges.emplace_back(AcGePoint3d((a.x + b.x) / 2, (a.y + b.y) / 2, 0), std::abs(a.y - b.y) < 1e-9);
                }
                elements.emplace(element["position"].GetInt(), flanges);
            }
        }
        return elements;
    }
    static bool Has(const Flanges& flanges, const AcGePoint3d& middle, bool alongX) {
        return std::find(flanges.begin(), flanges.end(), std::make_pair(middle, alongX)) != flanges.end();
    }

    std::string scheme;
};

}  // namespace

TEST_F(AddElementCommand, ThreeRunsTurnMirrorAndJoinElementsNumberedByCatalogItem) {
    // A DN100 pipe piece, 500 mm at 1:10, turned upright about (100, 150).
    const auto pipe = Run("add-element", "--item 'FF 100x500 PN16' --view top --at 100,150 --rotate 90");
    EXPECT_EQ(pipe.out, "added \"FF 100x500 PN16\" to scheme " + scheme + "\n") << pipe.err;
    // A tee, mirrored: its branch points down instead of up.
    ASSERT_EQ(Run("add-element", "--item {2761AEBD-F37E-5918-9F42-755B282BA026} --at 60,60 --mirror").code, 0);
    // The same tee again, joined onto the free upper flange of the pipe.
    ASSERT_EQ(Run("add-element", "--item 'T 100x80 PN16' --at 100,230 --join-scheme-flange 100,178").code, 0);

    const auto elements = Elements();
    ASSERT_EQ(elements.size(), 3u);
    ASSERT_EQ(elements.count(2), 2u);  // the two tees share their number
    const Flanges& pipeFlanges = elements.find(1)->second;
    EXPECT_TRUE(Has(pipeFlanges, {100, 125, 0}, true) && Has(pipeFlanges, {100, 175, 0}, true));
    auto tee = elements.find(2);
    const Flanges& mirrored = Has(tee->second, {42, 60, 0}, false) ? tee->second : std::next(tee)->second;
    const Flanges& joined = Has(tee->second, {42, 60, 0}, false) ? std::next(tee)->second : tee->second;
    EXPECT_TRUE(Has(mirrored, {78, 60, 0}, false));
    EXPECT_TRUE(Has(mirrored, {60, 42, 0}, true));  // the branch, below the run
    // Flange to flange on the pipe's top, the run going on upwards and the branch to the side.
    EXPECT_TRUE(Has(joined, {100, 175, 0}, true));
    EXPECT_TRUE(Has(joined, {100, 211, 0}, true));
    EXPECT_TRUE(Has(joined, {82, 193, 0}, false));
}

TEST_F(AddElementCommand, AnElementFlangeCanBeTakenAndBadInputIsRefused) {
    ASSERT_EQ(Run("add-element", "--item 'FF 100x500 PN16' --at 100,150").code, 0);
    // Taken by its left flange (at 75, 100 when centred at 100, 100), put onto the first's right.
    ASSERT_EQ(Run("add-element", "--item 'FF 100x500 PN16' --at 100,100 --join-element-flange 75,100 "
                                 "--join-scheme-flange 126,150").code,
              0);
    const auto elements = Elements();
    ASSERT_EQ(elements.count(1), 2u);
    const auto first = elements.find(1);
    const Flanges& second = Has(first->second, {175, 150, 0}, false) ? first->second : std::next(first)->second;
    EXPECT_TRUE(Has(second, {125, 150, 0}, false) && Has(second, {175, 150, 0}, false));

    EXPECT_EQ(Run("add-element", "--item Nothing --at 1,1").err,
              "asch add-element: the element catalog has no item \"Nothing\"\n");
    EXPECT_NE(Run("add-element", "--item X --view sideways --at 1,1").err.find("unknown view \"sideways\""),
              std::string::npos);
    EXPECT_EQ(Run("add-element", "--item 'FF 100x500 PN16' --at 1000,1000").err,
              "asch add-element: no scheme sheet where the element was placed; nothing added\n");
    EXPECT_EQ(Elements().size(), 2u);
}
