#pragma once
// Writes entities of every kind the database holds: the common groups (handle, owner, layer,
// colour, linetype), the kind's own groups and the extended data. A block reference is followed
// by its attributes and a SEQEND.

#include "host/dxf/DxfFileHandles.h"
#include "host/dxf/DxfWriter.h"
#include "host/entities/AcDbEntity.h"

class AcDbArc;
class AcDbAttribute;
class AcDbAttributeDefinition;
class AcDbBlockReference;
class AcDbCircle;
class AcDbLine;
class AcDbMText;
class AcDbPoint;
class AcDbPolyline;
class AcDbText;

class DxfEntityWriter {
public:
    DxfEntityWriter(const DxfWriter& out, const DxfFileHandles& handles) : m_out(out), m_handles(handles) {}

    // owner is the handle of the block record; paper-space entities carry the paper-space flag.
    // Entities of kinds the file format here does not cover are left out (false).
    bool write(const AcDbEntity& entity, Adesk::UInt32 owner, bool paperSpace) const;

private:
    void head(const char* type, const AcDbEntity& entity, Adesk::UInt32 owner, bool paperSpace) const;
    void line(const AcDbLine& e) const;
    void point(const AcDbPoint& e) const;
    void circle(const AcDbCircle& e) const;
    void arc(const AcDbArc& e) const;
    void polyline(const AcDbPolyline& e) const;
    // The AcDbText part shared by TEXT, ATTRIB and ATTDEF; TEXT adds its vertical mode itself.
    void textBody(const AcDbText& e) const;
    void attributeDefinition(const AcDbAttributeDefinition& e) const;
    void attribute(const AcDbAttribute& e) const;
    void mtext(const AcDbMText& e) const;
    void reference(const AcDbBlockReference& e) const;
    void attributesOf(const AcDbBlockReference& e, bool paperSpace) const;

    const DxfWriter& m_out;
    const DxfFileHandles& m_handles;
};
