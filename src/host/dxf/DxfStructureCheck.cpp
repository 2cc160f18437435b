#include "host/dxf/DxfStructureCheck.h"

namespace {
std::string text(std::string_view s) { return std::string(s); }
}  // namespace

std::string DxfStructureCheck::openPart() const {
    if (m_blockLine) return "the block opened at line " + std::to_string(m_blockLine);
    if (m_tableLine) return "table " + m_table + " opened at line " + std::to_string(m_tableLine);
    return "section " + m_section + " opened at line " + std::to_string(m_sectionLine);
}

bool DxfStructureCheck::accept(const DxfObject& object, DxfReadError& error) {
    const std::string_view type = object.type();
    const std::uint32_t line = object.line();
    const auto fail = [&](const std::string& message) {
        error = {line, message};
        return false;
    };
    if (m_done) return true;
    if (type.empty()) {
        // Comments may stand before the first section; nothing else.
        for (const DxfGroup& g : object.groups())
            if (g.code != 999) return fail("the file does not start with a section");
        return true;
    }
    if (m_section.empty()) {
        if (type == "EOF") {
            m_done = true;
            return true;
        }
        if (type != "SECTION") return fail(text(type) + " outside a section");
        const DxfGroup* name = object.groups().size() > 1 ? &object.groups()[1] : nullptr;
        if (!name || name->code != 2 || name->value.empty()) return fail("a section without a name");
        m_section = text(name->value);
        m_sectionLine = line;
        return true;
    }
    if (type == "SECTION" || type == "EOF") return fail(openPart() + " is not closed");
    if (type == "ENDSEC") {
        if (m_tableLine || m_blockLine) return fail(openPart() + " is not closed");
        m_section.clear();
        return true;
    }
    if (m_section == "TABLES") {
        if (type == "TABLE") {
            if (m_tableLine) return fail(openPart() + " is not closed");
            m_table = text(object.string(2));
            m_tableLine = line;
            return true;
        }
        if (type == "ENDTAB") {
            if (!m_tableLine) return fail("ENDTAB without a table");
            m_tableLine = 0;
            return true;
        }
        if (!m_tableLine) return fail(text(type) + " outside a table");
    } else if (m_section == "BLOCKS") {
        if (type == "BLOCK") {
            if (m_blockLine) return fail(openPart() + " is not closed");
            // dxflib passes over a block without a name, and its entities would land in model space.
            if (object.string(2).empty()) return fail("a block without a name");
            m_blockLine = line;
            return true;
        }
        if (type == "ENDBLK") {
            if (!m_blockLine) return fail("ENDBLK without a block");
            m_blockLine = 0;
            return true;
        }
        if (!m_blockLine) return fail(text(type) + " outside a block");
    } else if (m_section == "HEADER") {
        return fail(text(type) + " in the HEADER section");
    } else if (m_section == "ENTITIES" && (type == "BLOCK" || type == "ENDBLK")) {
        return fail(text(type) + " in the ENTITIES section");
    }
    return checkContents(object, error);
}

bool DxfStructureCheck::checkContents(const DxfObject& object, DxfReadError& error) const {
    if (object.type() == "LWPOLYLINE") {
        // dxflib sizes its vertex buffer by every 90 group it meets.
        const std::size_t vertices = object.count(10);
        for (const DxfGroup& g : object.groups()) {
            if (g.code != 90 || g.integer == static_cast<std::int64_t>(vertices)) continue;
            error = {g.line, "LWPOLYLINE declares " + std::to_string(g.integer) + " vertices but has " +
                                 std::to_string(vertices)};
            return false;
        }
    }
    return true;
}

bool DxfStructureCheck::finish(std::uint32_t lastLine, DxfReadError& error) const {
    if (m_done) return true;
    if (!m_section.empty())
        error = {lastLine, "the file ends inside " + openPart() + " (it may be truncated)"};
    else
        error = {lastLine, "the file ends without EOF (it may be truncated)"};
    return false;
}
