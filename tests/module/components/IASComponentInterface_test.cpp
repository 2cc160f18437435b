#include "module/components/IASComponentInterface.h"

#include "module/components/ASComponent_BOM.h"
#include "module/components/ASComponent_Comment.h"
#include "module/components/ASComponent_Dimension.h"
#include "module/components/ASComponent_Frame.h"
#include "module/components/ASComponent_FreeEntry.h"
#include "module/components/ASComponent_InfoTable.h"
#include "module/components/ASComponent_Manhole_SideView.h"
#include "module/components/ASComponent_Manhole_TopView.h"
#include "module/components/ASComponent_MiniScheme.h"
#include "module/components/ASComponent_PositionLabel.h"
#include "module/components/ASComponent_Scheme.h"
#include "module/components/ASComponent_Text.h"
#include "module/definitions/CASComponentData.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <vector>

using namespace XimoGis::AssemblySchemes;

namespace {

struct Row {
    boost::shared_ptr<IASComponentInterface> type;
    const wchar_t* id;
    enmASComponentType bit;
    int msg;
    const wchar_t* icon;
    int multiple;
    const wchar_t* parent;
    int interactive;
    int writeEntityType;
};

std::vector<Row> TypeTable() {
    return {
        {boost::make_shared<CASComponent_Frame>(), L"00FRAME", eASComponentFrame, 1505, L"IDI_AS_FRAME", 0, L"", 0, 1},
        {boost::make_shared<CASComponent_BOM>(), L"04BOM", eASComponentBOM, 9472, L"IDI_AS_BOM", 0, L"", 0, 1},
        {boost::make_shared<CASComponent_MiniScheme>(), L"02MINISCHEME", eASComponentMiniScheme, 9493,
         L"IDI_AS_MSCHEME", 0, L"", 0, 1},
        {boost::make_shared<CASComponent_Scheme>(), L"01SCHEME", eASComponentScheme, 9345, L"IDI_AS_SCHEME", 0, L"", 0,
         0},
        {boost::make_shared<CASComponent_Text>(), L"05TEXT", eASComponentText, 8749, L"IDI_TEXT", 1, L"", 0, 1},
        {boost::make_shared<CASComponent_InfoTable>(), L"03INFOTABLE", eASComponentInfoTable, 1300,
         L"IDI_AS_INFOTABLE", 0, L"", 0, 1},
        {boost::make_shared<CASComponent_PositionLabel>(), L"03POS", eASComponentPositionLabel, 22336, L"IDI_LEADER",
         0, L"01SCHEME", 1, 1},
        {boost::make_shared<CASComponent_FreeEntry>(), L"02FREE", eASComponentFreeEntry, 9933, L"IDI_ACAD_ELEMS", 0,
         L"01SCHEME", 1, 1},
        {boost::make_shared<CASComponent_Comment>(), L"01CMMNT", eASComponentComment, 4761, L"IDI_TEXT", 0,
         L"01SCHEME", 1, 1},
        {boost::make_shared<CASComponent_Dimension>(), L"00DIM", eASComponentDimension, 22230, L"IDI_LINEAR_DIM", 0,
         L"01SCHEME", 1, 1},
        {boost::make_shared<CASComponent_Manhole_SideView>(), L"05MANH_S", eASComponentManholeSideView, 9944,
         L"IDI_MS_CROSSSECTION", 0, L"01SCHEME", 1, 1},
        {boost::make_shared<CASComponent_Manhole_TopView>(), L"05MANH_T", eASComponentManholeTopView, 9943,
         L"IDI_MANHOLE_TOP", 0, L"01SCHEME", 1, 1},
    };
}

}  // namespace

TEST(IASComponentInterface, EveryTypeHasItsIdentityAndTheBaseBehaviour) {
    int mask = 0;
    for (const Row& row : TypeTable()) {
        SCOPED_TRACE(row.id);
        IASComponentInterface& type = *row.type;
        EXPECT_EQ(type.GetId(), row.id);
        EXPECT_EQ(type.GetType(), row.bit);
        EXPECT_EQ(type.GetNameMsg(), row.msg);
        EXPECT_EQ(type.GetDescriptionMsg(), row.msg);
        EXPECT_EQ(type.GetIconId(), row.icon);
        EXPECT_EQ(type.GetAllowMultipleInstances(), row.multiple);
        EXPECT_EQ(type.GetParentId(), row.parent);
        EXPECT_EQ(type.IsInteractive(), row.interactive);
        EXPECT_EQ(type.WriteEntityType(), row.writeEntityType);
        EXPECT_EQ(type.IsUpdatable(), 0);
        EXPECT_NE(type.GetName().front(), L'#');  // the message table knows the name
        EXPECT_EQ(mask & row.bit, 0);  // one bit per type
        mask |= row.bit;

        // The record made for a definition carries the identity; the definition gives its id.
        const auto component = type.CreateComponentData();
        EXPECT_EQ(component->GetType(), row.bit);
        EXPECT_EQ(component->GetId(), row.id);
        EXPECT_EQ(component->GetDrawData()->GetDescriptionMsg(), row.msg);
        EXPECT_TRUE(component->GetInternalId().empty());
        AcDbObjectIdArray created;
        EXPECT_EQ(type.DrawComponent(component.get(), nullptr, created), 0);
        EXPECT_TRUE(created.isEmpty());
        EXPECT_FALSE(type.GetComponentDimensions(component.get()));
        EXPECT_EQ(type.DependsOn(nullptr, component.get(), L"x", nullptr), 0);
    }
    EXPECT_EQ(mask, 4095);
}
