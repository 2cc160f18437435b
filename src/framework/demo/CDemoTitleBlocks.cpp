#include "framework/demo/CDemoTitleBlocks.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/utility/CFilePath.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbAttributeDefinition.h"

#include <filesystem>
#include <system_error>

namespace XimoGis::Demo {

using Utility::CFilePath;

namespace {

constexpr double kWidth = 180.0;
constexpr double kRowHeight = 10.0;
constexpr double kLabelHeight = 1.8;
constexpr double kValueHeight = 3.5;

// One field: a labelled cell from x0 to x1 of its row, filled by the attribute `tag`.
struct Field {
    double x0;
    double x1;
    const wchar_t* label;
    const wchar_t* tag;
    const wchar_t* defaultText;
};

struct Sheet {
    const wchar_t* fileName;
    std::vector<std::vector<Field>> rows;  // top row first
};

const std::vector<Field> kProjectRow = {{0.0, 130.0, L"Project", L"PROJECT", L""},
                                        {130.0, 180.0, L"Sheet", L"SHEET", L"1/1"}};
const std::vector<Field> kTitleRow = {{0.0, 180.0, L"Drawing", L"TITLE", L"Assembly scheme"}};
const std::vector<Field> kNodeRow = {{0.0, 90.0, L"Node", L"NODE_NAME", L""},
                                     {90.0, 180.0, L"System", L"SYSTEM", L""}};
const std::vector<Field> kSignatureRow = {{0.0, 70.0, L"Drawn by", L"DRAWN_BY", L""},
                                          {70.0, 125.0, L"Date", L"DATE", L""},
                                          {125.0, 180.0, L"Scale", L"SCALE", L"1:20"}};
const std::vector<Field> kCompanyRow = {{0.0, 110.0, L"Company", L"COMPANY", L""},
                                        {110.0, 180.0, L"Drawing no.", L"DRAWING_NO", L""}};

const std::vector<Sheet>& Sheets() {
    static const std::vector<Sheet> sheets = {
        {L"IT_A4.dxf", {kProjectRow, kTitleRow, kNodeRow, kSignatureRow}},
        {L"IT_A3.dxf", {kCompanyRow, kProjectRow, kTitleRow, kNodeRow, kSignatureRow}},
    };
    return sheets;
}

void DrawField(const Field& field, double rowBottom, AcDbObjectId space) {
    const double top = rowBottom + kRowHeight;
    CXimoCDraw::text(AcGePoint3d(field.x0 + 1.5, top - 1.2 - kLabelHeight, 0.0), field.label, kLabelHeight, 0.0,
                     L"Standard", space);
    auto* definition = new AcDbAttributeDefinition(AcGePoint3d(field.x0 + 2.0, rowBottom + 2.0, 0.0), field.defaultText,
                                                   field.tag, field.label);
    definition->setHeight(kValueHeight);
    CXimoCEntityPtr(definition).addToDrawing(space);
    if (field.x1 < kWidth)
        CXimoCDraw::line(AcGePoint3d(field.x1, rowBottom, 0.0), AcGePoint3d(field.x1, top, 0.0), space);
}

}  // namespace

std::vector<std::wstring> CDemoTitleBlocks::GetFileNames() {
    std::vector<std::wstring> names;
    for (const Sheet& sheet : Sheets()) names.emplace_back(sheet.fileName);
    return names;
}

bool CDemoTitleBlocks::Draw(const std::wstring& fileName, AcDbDatabase& database) {
    for (const Sheet& sheet : Sheets()) {
        if (fileName != sheet.fileName) continue;
        const AcDbObjectId space = database.modelSpaceId();
        const double height = kRowHeight * static_cast<double>(sheet.rows.size());
        AcArray<AcGePoint3d> outline;
        for (const auto& [x, y] : {std::pair{0.0, 0.0}, {kWidth, 0.0}, {kWidth, height}, {0.0, height}})
            outline.append(AcGePoint3d(x, y, 0.0));
        CXimoCDraw::polylineLW(outline, true, 0.0, space);
        for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
            const double bottom = height - kRowHeight * static_cast<double>(row + 1);
            if (bottom > 0.0) CXimoCDraw::line(AcGePoint3d(0.0, bottom, 0.0), AcGePoint3d(kWidth, bottom, 0.0), space);
            for (const Field& field : sheet.rows[row]) DrawField(field, bottom, space);
        }
        return true;
    }
    return false;
}

bool CDemoTitleBlocks::Write(const std::wstring& folder, std::wstring& error) {
    std::error_code ec;
    std::filesystem::create_directories(CFilePath::ToPath(folder), ec);
    if (ec) {
        error = L"Cannot create the folder \"" + folder + L"\" for the title blocks";
        return false;
    }
    for (const std::wstring& name : GetFileNames()) {
        const std::wstring file = CFilePath::AsFolder(folder) + name;
        AcDbDatabase database;
        database.setInsunits(4);
        Draw(name, database);
        std::wstring why;
        if (database.dxfOut(file.c_str(), &why) != Acad::eOk) {
            error = why.empty() ? L"Cannot write the title block \"" + file + L"\"" : why;
            return false;
        }
    }
    return true;
}

}  // namespace XimoGis::Demo
