#pragma once
// Moves and scales the entities of the element being placed, one by one, remembering the list and
// the last matrices so that the same change can be made once more. When the function log is
// switched on, each entity gets one line under the source file "AssemblySchemes_Editor":
//   move      "ELEMID: %s - MOVE OK!"      / "ELEMID: %u - MOVE ERROR!"      ("CXimoCEdit::moveEntity")
//   scale     "ELEMID: %u - SCALE OK!"     / "ELEMID: %u - SCALE ERROR!"     ("scaleEntity")
//   re-move   "ELEMID: %u - RE-MOVE OK!"   / "ELEMID: %u - RE-MOVE ERROR!"   ("ReMove")
//   re-scale  "ELEMID: %u - RESCALE OK!"   / "ELEMID: %u - RESCALE ERROR!"   ("ReScale")
// with the entity's 32-bit id value (its handle). An entity that cannot be opened does not stop
// the others.

#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGeMatrix3d.h"

namespace XimoGis::AssemblySchemes {

class CASEntityMover {
public:
    // Each returns how many entities were changed.
    int Move(const AcDbObjectIdArray& ids, const AcGeVector3d& displacement);
    int Scale(const AcDbObjectIdArray& ids, double factor, const AcGePoint3d& base);
    // The last move or scale once more on the remembered entities; 0 when none are remembered.
    int ReMove();
    int ReScale();

    const AcDbObjectIdArray& GetEntities() const { return m_ids; }
    const AcGeMatrix3d& GetLastMoveMatrix() const { return m_lastMove; }
    const AcGeMatrix3d& GetLastScaleMatrix() const { return m_lastScale; }
    // Forgets the entities (the matrices stay).
    void Forget() { m_ids.removeAll(); }

private:
    struct LogLines {
        const wchar_t* operation;
        const wchar_t* ok;
        const wchar_t* error;
        bool okTakesText;  // the move's success line has a text placeholder
        int line;
    };
    int Transform(const AcGeMatrix3d& matrix, const LogLines& log) const;

    AcDbObjectIdArray m_ids;
    AcGeMatrix3d m_lastMove;
    AcGeMatrix3d m_lastScale;
};

}  // namespace XimoGis::AssemblySchemes
