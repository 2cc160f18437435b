#pragma once
// The title blocks of the demo workspace: drawings "IT_A4.dxf" and "IT_A3.dxf" for the info table
// of a scheme sheet, made here rather than shipped as binary files. Each holds, in model space, a
// 180 mm wide table of lines, small labels and one attribute definition per field, with its lower
// left corner at the origin (the info table places a block by its extents). Attribute tags:
// PROJECT, SHEET, TITLE, NODE_NAME, SYSTEM, DRAWN_BY, DATE, SCALE, and on A3 also COMPANY and
// DRAWING_NO.
//
// The info table reads title blocks from the symbol folder of the install path,
// "<INSTALL>/symbol/".

#include <string>
#include <vector>

class AcDbDatabase;

namespace XimoGis::Demo {

class CDemoTitleBlocks {
public:
    // The file names written, in order.
    static std::vector<std::wstring> GetFileNames();
    // Writes every title block into `folder` (created when missing), each file replaced whole.
    // False, with `error` naming the file, when one cannot be written.
    static bool Write(const std::wstring& folder, std::wstring& error);
    // Draws the title block of `fileName` into model space of `database`; false for a name that
    // GetFileNames does not list.
    static bool Draw(const std::wstring& fileName, AcDbDatabase& database);
};

}  // namespace XimoGis::Demo
