#pragma once
// The frame component: the inner frame of a sheet, up to four straight edges inset from the
// sheet's sides, each side switched on or off and given its own linetype, colour and inset.
//
// Property set: one category (order 0, message 1098) holding, per side in the order left, right,
// top, bottom: "DF_<SIDE>" (draw it, 1), "LT_<SIDE>" (linetype, "Continuous"), "LC_<SIDE>"
// (colour index, 7) and "OFFSET_<SIDE>" (inset; 5.0 on the left for the binding margin, 2.0
// elsewhere). The side switch greys out the side's linetype and colour when off.

#include "module/components/IASComponentInterface.h"

namespace XimoGis::AssemblySchemes {

class CASComponent_Frame : public IASComponentInterface {
public:
    CASComponent_Frame();

    boost::shared_ptr<CASComponentData> CreateComponentData() override;
    // Draws the switched-on edges in the order bottom, left, right, top and returns 1, also when
    // every side is off. A record that lacks a setting draws with 1 (drawn), "Continuous", 7
    // and an inset of 1.0.
    int DrawComponent(CASComponentData* component, CASInstance* instance, AcDbObjectIdArray& createdEntities) override;
};

}  // namespace XimoGis::AssemblySchemes
