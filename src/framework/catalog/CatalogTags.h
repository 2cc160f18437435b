#pragma once
// Names shared by everything that reads or writes the element catalog: the catalog the assembly
// schemes draw from, the standard element item type and the property tags of element items.

namespace XimoGis::Data::CatalogTags {

inline constexpr const wchar_t* kAssemblySchemesCatalog = L"ASSEMBLYSCHEMES_CATALOG";
// Item type of element items drawn from block files; its template gives them the tags below.
inline constexpr const wchar_t* kElementBlockType = L"ELEMENT_BLOCK01";

inline constexpr const wchar_t* kElementName = L"AS_ELEMENTNAME";
inline constexpr const wchar_t* kNominalPressure = L"AS_NOMINALPRESSURE";  // bar (PN)
inline constexpr const wchar_t* kNominalDiameter = L"AS_NOMINALDIAMETER";  // mm (DN)
inline constexpr const wchar_t* kMass = L"AS_MASS";                        // kg
inline constexpr const wchar_t* kLength = L"AS_LENGTH";                    // mm
inline constexpr const wchar_t* kAngle = L"AS_ANGLE";                      // degrees
inline constexpr const wchar_t* kPartType = L"AS_PART_TYPE";
inline constexpr const wchar_t* kCustom1 = L"AS_CUSTOM1";
inline constexpr const wchar_t* kCustom2 = L"AS_CUSTOM2";
inline constexpr const wchar_t* kCustom3 = L"AS_CUSTOM3";
inline constexpr const wchar_t* kCustom4 = L"AS_CUSTOM4";
// Id of the element type provider that draws the item; no provider means it is drawn from blocks.
inline constexpr const wchar_t* kElementType = L"AS_ELEMENTTYPE";
// Catalog number: the hidden value is preferred, the shown value is the fallback.
inline constexpr const wchar_t* kCatalogNumber = L"AS_CATALOGNUM";
// Block file names of the six view directions, in the order top, bottom, back, front, left, right.
inline constexpr const wchar_t* kBlockTags[6] = {L"AS_BLOCK1", L"AS_BLOCK2", L"AS_BLOCK3",
                                                 L"AS_BLOCK4", L"AS_BLOCK5", L"AS_BLOCK6"};

}  // namespace XimoGis::Data::CatalogTags
