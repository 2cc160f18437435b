#pragma once
// Handles for the records a DXF file must hold that the database does not keep as objects: the
// viewport, view, UCS and dimension style tables, block begin and end markers, the sequence end
// after attributes, and the dictionaries and layouts of the OBJECTS section.
//
// They are numbered from the database's next free handle, so they never meet a database handle,
// and the file's $HANDSEED follows them. A database loaded from the file continues from there.

#include <unordered_map>

#include "host/database/AcDbDatabase.h"

class DxfFileHandles {
public:
    enum Record {
        kVportTable, kActiveVport, kViewTable, kUcsTable, kDimStyleTable, kStandardDimStyle,
        kRootDictionary, kGroupDictionary, kLayoutDictionary, kModelLayout, kPaperLayout,
        kMlineStyleDictionary, kStandardMlineStyle, kPlotStyleDictionary, kNormalPlotStyle, kRecordCount
    };

    explicit DxfFileHandles(const AcDbDatabase& db);

    Adesk::UInt32 handle(Record record) const { return m_fixed[record]; }
    // BLOCK and ENDBLK of a block record.
    Adesk::UInt32 blockBegin(AcDbObjectId block) const { return m_blocks.at(block); }
    Adesk::UInt32 blockEnd(AcDbObjectId block) const { return m_blocks.at(block) + 1; }
    // SEQEND after the attributes of a block reference that has some.
    Adesk::UInt32 sequenceEnd(AcDbObjectId reference) const { return m_sequenceEnds.at(reference); }
    // The next handle after every handle in the file.
    Adesk::UInt32 handseed() const { return m_next; }

private:
    Adesk::UInt32 m_fixed[kRecordCount] = {};
    std::unordered_map<AcDbObjectId, Adesk::UInt32> m_blocks;
    std::unordered_map<AcDbObjectId, Adesk::UInt32> m_sequenceEnds;
    Adesk::UInt32 m_next;
};

// Whether a reference is written with attributes (then it is followed by a SEQEND).
bool dxfHasAttributes(const AcDbObjectId& reference);
