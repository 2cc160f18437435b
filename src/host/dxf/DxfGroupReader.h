#pragma once
// Splits the text of an ASCII DXF file into groups, checking each as it goes: the code line
// holds an integer the format knows, and the value parses for that code's type (numbers,
// handles, hexadecimal binary data; no binary bytes in text).

#include <string_view>

#include "host/dxf/DxfGroup.h"
#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfReadError.h"

class DxfGroupReader {
public:
    // data must outlive the reader and the groups it gives.
    explicit DxfGroupReader(std::string_view data);

    // The next group; false at the end of the data (error.message empty) or on a malformed
    // group (error set).
    bool next(DxfGroup& group, DxfReadError& error);
    // The groups of the next object: a 0 group and those up to the next 0 group (the groups
    // before the first 0 group, comments, make an object without a type). False at the end of
    // the data (error.message empty) or on a malformed group (error set).
    bool nextObject(DxfObject& object, DxfReadError& error);
    // The number of the last line read.
    std::uint32_t line() const { return m_line; }

private:
    bool readLine(std::string_view& line);
    bool parseValue(DxfGroup& group, DxfReadError& error) const;

    std::string_view m_data;
    std::size_t m_pos = 0;
    std::uint32_t m_line = 0;
    DxfGroup m_next;  // the 0 group that ended the last object
    bool m_hasNext = false;
};
