#include "CInfoCommand.h"

#include <map>
#include <ostream>

#include "CDrawingFile.h"
#include "host/base/AcString.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbBlockReference.h"

namespace XimoGis::Asch {

namespace {

using Counts = std::map<std::string, int>;

// Kinds under their DXF names, which is how people who read drawings know them.
std::string kindOf(const AcDbEntity& entity) {
    static const std::map<std::wstring, std::string> kNames = {
        {L"AcDbLine", "LINE"},       {L"AcDbPolyline", "LWPOLYLINE"},         {L"AcDbPoint", "POINT"},
        {L"AcDbCircle", "CIRCLE"},   {L"AcDbArc", "ARC"},                     {L"AcDbText", "TEXT"},
        {L"AcDbMText", "MTEXT"},     {L"AcDbBlockReference", "INSERT"},       {L"AcDbAttribute", "ATTRIB"},
        {L"AcDbAttributeDefinition", "ATTDEF"}};
    const auto found = kNames.find(entity.isA());
    return found == kNames.end() ? acutWcharToUtf8(entity.isA()) : found->second;
}

std::string plural(int count, const char* one, const char* many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

// Everything the report tells, gathered in one walk over the blocks.
struct Summary {
    std::vector<std::pair<std::string, Counts>> blocks;  // in table order; model space first
    std::map<std::string, int> references;                // block name -> references to it
    std::map<std::string, int> xdata;                     // application -> objects carrying it
};

void countXData(const AcDbObject& object, Summary& summary) {
    for (const AcDbXDataApp& app : object.xDataList()) ++summary.xdata[acutWcharToUtf8(app.application)];
}

void countBlock(const AcDbBlockTableRecord& block, Summary& summary) {
    Counts kinds;
    for (const AcDbObjectId& id : block.entityIds()) {
        if (id.isErased()) continue;
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
        if (!entity) continue;
        ++kinds[kindOf(*entity.object())];
        countXData(*entity.object(), summary);
        const auto* reference = dynamic_cast<const AcDbBlockReference*>(entity.object());
        if (!reference) continue;
        AcDbObjectPointer<AcDbBlockTableRecord> target(reference->blockTableRecord(), AcDb::kForRead);
        if (target) ++summary.references[acutWcharToUtf8(target->name())];
        for (const AcDbObjectId& attributeId : reference->attributeIds()) {
            AcDbObjectPointer<AcDbEntity> attribute(attributeId, AcDb::kForRead);
            if (attribute) countXData(*attribute.object(), summary);
        }
    }
    summary.blocks.emplace_back(acutWcharToUtf8(block.name()), kinds);
}

template <class Table>
std::vector<AcDbObjectId> recordIds(const AcDbDatabase& db) {
    Table* table = nullptr;
    if (db.getSymbolTable(table, AcDb::kForRead) != Acad::eOk) return {};
    std::vector<AcDbObjectId> ids;
    for (const AcDbObjectId& id : table->recordIds())
        if (!id.isErased()) ids.push_back(id);
    table->close();
    return ids;
}

void printKinds(std::ostream& out, const Counts& kinds, const char* indent) {
    for (const auto& [kind, count] : kinds) out << indent << kind << ' ' << count << '\n';
}

int total(const Counts& kinds) {
    int n = 0;
    for (const auto& entry : kinds) n += entry.second;
    return n;
}

void printBlocks(std::ostream& out, const Summary& summary) {
    std::vector<const std::pair<std::string, Counts>*> named;
    for (const auto& block : summary.blocks) {
        if (block.first == acutWcharToUtf8(ACDB_MODEL_SPACE)) {
            out << "model space: " << plural(total(block.second), "entity", "entities") << '\n';
            printKinds(out, block.second, "  ");
        } else if (block.first == acutWcharToUtf8(ACDB_PAPER_SPACE)) {
            if (!block.second.empty()) out << "paper space: " << plural(total(block.second), "entity", "entities") << '\n';
            printKinds(out, block.second, "  ");
        } else {
            named.push_back(&block);
        }
    }
    out << "blocks: " << named.size() << '\n';
    for (const auto* block : named) {
        const auto found = summary.references.find(block->first);
        out << "  " << block->first << ": " << plural(total(block->second), "entity", "entities") << ", "
            << plural(found == summary.references.end() ? 0 : found->second, "reference", "references") << '\n';
        printKinds(out, block->second, "    ");
    }
}

void printLayers(std::ostream& out, const AcDbDatabase& db) {
    const auto ids = recordIds<AcDbLayerTable>(db);
    out << "layers: " << ids.size() << '\n';
    for (const AcDbObjectId& id : ids) {
        AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForRead);
        if (!layer) continue;
        AcDbObjectPointer<AcDbLinetypeTableRecord> linetype(layer->linetypeObjectId(), AcDb::kForRead);
        out << "  " << acutWcharToUtf8(layer->name()) << ": colour " << layer->colorIndex() << ", linetype "
            << (linetype ? acutWcharToUtf8(linetype->name()) : std::string("Continuous"));
        if (layer->isOff()) out << ", off";
        if (layer->isFrozen()) out << ", frozen";
        if (layer->isLocked()) out << ", locked";
        out << '\n';
    }
}

void printApplications(std::ostream& out, const AcDbDatabase& db, const Summary& summary) {
    const auto ids = recordIds<AcDbRegAppTable>(db);
    out << "registered applications: " << ids.size() << '\n';
    for (const AcDbObjectId& id : ids) {
        AcDbObjectPointer<AcDbRegAppTableRecord> app(id, AcDb::kForRead);
        if (app) out << "  " << acutWcharToUtf8(app->name()) << '\n';
    }
    out << "extended data: " << plural(static_cast<int>(summary.xdata.size()), "application", "applications") << '\n';
    for (const auto& [app, count] : summary.xdata) out << "  " << app << ": " << plural(count, "object", "objects") << '\n';
}

}  // namespace

void CInfoCommand::DescribeArguments(CAschArguments& arguments) const { arguments.AddDrawing(); }

int CInfoCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    AcDbDatabase db(false);
    std::wstring error;
    if (!CDrawingFile::Load(arguments.GetDrawing(), db, error)) return console.Fail(error);
    Summary summary;
    for (const AcDbObjectId& id : recordIds<AcDbBlockTable>(db)) {
        AcDbObjectPointer<AcDbBlockTableRecord> block(id, AcDb::kForRead);
        if (block) countBlock(*block.object(), summary);
    }
    std::ostream& out = console.Out();
    out << "drawing: " << acutWcharToUtf8(arguments.GetDrawing()) << '\n';
    printBlocks(out, summary);
    printLayers(out, db);
    printApplications(out, db, summary);
    return kExitOk;
}

}  // namespace XimoGis::Asch
