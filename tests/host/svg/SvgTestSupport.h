#pragma once
// Building small drawings in memory and reading back their pictures, for the picture tests.

#include <pugixml.hpp>

#include <string>
#include <vector>

#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbEntity.h"
#include "host/svg/AcSvgRenderer.h"

namespace svgtest {

inline AcDbObjectId addTo(AcDbObjectId blockId, AcDbEntity* entity) {
    AcDbBlockTableRecord* block = nullptr;
    acdbOpenObject(block, blockId, AcDb::kForWrite);
    AcDbObjectId id;
    block->appendAcDbEntity(id, entity);
    entity->close();
    block->close();
    return id;
}

inline AcDbObjectId addToModelSpace(AcDbDatabase& db, AcDbEntity* entity) { return addTo(db.modelSpaceId(), entity); }

inline AcDbObjectId addBlock(AcDbDatabase& db, const wchar_t* name, const std::vector<AcDbEntity*>& entities) {
    AcDbBlockTable* table = nullptr;
    db.getBlockTable(table, AcDb::kForWrite);
    auto* record = new AcDbBlockTableRecord;
    record->setName(name);
    AcDbObjectId id;
    table->add(id, record);
    table->close();
    record->close();
    for (AcDbEntity* entity : entities) addTo(id, entity);
    return id;
}

// A window 100 x 50 drawn at 2 picture units per drawing unit with a margin of 20: the drawing
// point (x, y) lands on (20 + 2x, 120 - 2y).
inline AcSvgOptions knownWindow() {
    AcSvgOptions options;
    options.window = AcDbExtents(AcGePoint3d(0, 0, 0), AcGePoint3d(100, 50, 0));
    options.maxWidth = 240;
    options.maxHeight = 1000;
    options.margin = 20;
    return options;
}

// Renders and parses the picture; the test fails when either step does.
inline pugi::xml_document render(const AcDbDatabase& db, const AcSvgOptions& options = knownWindow()) {
    std::string svg;
    pugi::xml_document doc;
    if (acdbRenderSvg(db, options, svg) != Acad::eOk) return doc;
    doc.load_string(svg.c_str());
    return doc;
}

inline pugi::xpath_node_set byClass(const pugi::xml_document& doc, const char* kind) {
    return doc.select_nodes((std::string("//*[@class='") + kind + "']").c_str());
}

}  // namespace svgtest
