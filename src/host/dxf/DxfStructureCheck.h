#pragma once
// Checks where each object of a DXF file stands: sections open and close in turn, tables and
// blocks inside their sections, the file ends with EOF. Also checks what dxflib would trust
// blindly (a polyline's vertex count).

#include <string>
#include <string_view>

#include "host/dxf/DxfObject.h"
#include "host/dxf/DxfReadError.h"

class DxfStructureCheck {
public:
    // Takes the next object; false with error set when it cannot stand where it is.
    bool accept(const DxfObject& object, DxfReadError& error);
    // At the end of the data: false with error set when the file stopped short of EOF.
    bool finish(std::uint32_t lastLine, DxfReadError& error) const;

    bool done() const { return m_done; }
    // The section the last object is in ("ENTITIES"), empty outside sections.
    const std::string& section() const { return m_section; }
    bool inBlock() const { return m_blockLine != 0; }

private:
    bool checkContents(const DxfObject& object, DxfReadError& error) const;
    std::string openPart() const;

    std::string m_section;
    std::uint32_t m_sectionLine = 0;
    std::string m_table;
    std::uint32_t m_tableLine = 0;
    std::uint32_t m_blockLine = 0;
    bool m_done = false;
};
