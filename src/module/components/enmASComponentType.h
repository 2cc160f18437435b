#pragma once
// One bit per component type, so that a set of types can be held as a mask.

namespace XimoGis::AssemblySchemes {

enum enmASComponentType : int {
    eASComponentNone = 0,
    eASComponentFrame = 1,  // "00FRAME"
    eASComponentBOM = 2,  // "04BOM"
    eASComponentMiniScheme = 4,  // "02MINISCHEME"
    eASComponentScheme = 8,  // "01SCHEME"
    eASComponentText = 16,  // "05TEXT"
    eASComponentInfoTable = 32,  // "03INFOTABLE"
    eASComponentPositionLabel = 64,  // "03POS"
    eASComponentFreeEntry = 128,  // "02FREE"
    eASComponentComment = 256,  // "01CMMNT"
    eASComponentDimension = 512,  // "00DIM"
    eASComponentManholeSideView = 1024,  // "05MANH_S"
    eASComponentManholeTopView = 2048,  // "05MANH_T"
};

}  // namespace XimoGis::AssemblySchemes
