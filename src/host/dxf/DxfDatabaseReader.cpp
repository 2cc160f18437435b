#include "host/dxf/DxfDatabaseReader.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

#include <dl_dxf.h>

#include "host/base/AcString.h"
#include "host/dxf/DxfDatabaseBuilder.h"
#include "host/dxf/DxfGroupReader.h"
#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfStructureCheck.h"

namespace {
constexpr std::string_view kBinarySentinel = "AutoCAD Binary DXF";

// The kinds dxflib interprets for the builder, by section; the others it never sees.
bool forDxflib(std::string_view type, const std::string& section) {
    if (type == "SECTION") return true;  // the header's variables are in the section's object
    if (section == "TABLES") return type == "LAYER" || type == "LTYPE" || type == "STYLE";
    if (section != "BLOCKS" && section != "ENTITIES") return false;
    return type == "LINE" || type == "POINT" || type == "CIRCLE" || type == "ARC" || type == "LWPOLYLINE" ||
           type == "TEXT" || type == "MTEXT" || type == "INSERT" || type == "ATTRIB" || type == "ATTDEF" ||
           type == "SEQEND" || type == "BLOCK" || type == "ENDBLK";
}

bool readFile(const std::string& path, std::string& data, std::string& problem) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        problem = std::string("cannot open the file: ") + std::strerror(errno);
        return false;
    }
    std::ostringstream content;
    content << in.rdbuf();
    if (in.bad()) {
        problem = "cannot read the file";
        return false;
    }
    data = std::move(content).str();
    return true;
}

// Handles, owners, subclass markers, comments and extended data: dxflib has no use for them in
// the objects it interprets, and the builder reads them from the groups itself.
bool readByDxflib(int code) { return code < 999 && code != 5 && code != 100 && code != 102 && code != 330; }

// Feeds dxflib one group at a time through a reused string.
class DxflibFeed {
public:
    explicit DxflibFeed(DxfDatabaseBuilder& builder) : m_builder(builder) {}
    void group(int code, std::string_view value) {
        m_value.assign(value);
        m_dxf.processDXFGroup(&m_builder, code, m_value);
    }
    // An object for dxflib to interpret (whole), or only the 0 group that ends the one before.
    void object(const DxfObject& object, bool whole) {
        const auto& groups = object.groups();
        group(0, whole ? groups.front().value : std::string_view());
        if (!whole) return;
        const bool header = object.type() == "SECTION";
        for (std::size_t i = 1; i < groups.size(); ++i)
            if (header || readByDxflib(groups[i].code)) group(groups[i].code, groups[i].value);
    }

private:
    DxfDatabaseBuilder& m_builder;
    DL_Dxf m_dxf;
    std::string m_value;
};
}  // namespace

Acad::ErrorStatus DxfDatabaseReader::read(const std::wstring& fileName, AcDbDatabase& db, std::wstring& error) const {
    std::string data;
    std::string problem;
    if (!readFile(acutWcharToUtf8(fileName), data, problem)) {
        error = fileName + L": " + acutUtf8ToWchar(problem);
        return Acad::eFileAccessErr;
    }
    DxfReadError failure;
    if (data.empty()) {
        failure.message = "the file is empty";
    } else if (data.compare(0, kBinarySentinel.size(), kBinarySentinel) == 0) {
        failure = {1, "a binary DXF file; only ASCII DXF files can be read"};
    } else if (parse(data, db, failure)) {
        return Acad::eOk;
    }
    error = fileName + L": " + (failure.line ? L"line " + std::to_wstring(failure.line) + L": " : std::wstring()) +
            acutUtf8ToWchar(failure.message);
    return Acad::eInvalidDxfFile;
}

bool DxfDatabaseReader::parse(std::string_view data, AcDbDatabase& db, DxfReadError& error) const {
    DxfGroupReader groups(data);
    DxfStructureCheck structure;
    DxfDatabaseBuilder builder(db);
    DxflibFeed dxflib(builder);
    DxfObject objects[2];
    DxfObject* previous = &objects[0];
    DxfObject* current = &objects[1];
    while (!structure.done()) {
        if (!groups.nextObject(*current, error)) return error.message.empty() && structure.finish(groups.line(), error);
        if (!structure.accept(*current, error)) return false;
        if (current->type().empty()) continue;  // comments before the first section
        // The 0 group ends the previous object: dxflib reports it to the builder now.
        builder.setObject(previous);
        dxflib.object(*current, forDxflib(current->type(), structure.section()));
        builder.objectEnded();
        std::swap(previous, current);
    }
    return builder.finish(error);
}
