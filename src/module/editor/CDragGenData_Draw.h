#pragma once
// The state of the element placement drag and what the drag does with each cursor position.
// The element's entities themselves follow the cursor (the drag image needs no matrix), so the
// flanges can be measured where they are. The element is held by its handle: its centre at the
// start, or the flange chosen with the element-flange mode.
//
// Placement modes (the keywords and the grip buttons set them):
//   0 move            the handle goes to the cursor.
//   3 rotate          the element turns about the handle so that its own x axis points at the
//                     cursor, in steps of 15 degrees; the handle stays. Stays on until another
//                     keyword or the pick.
//   4 mirror          at once, without waiting for the cursor: the element is mirrored about its
//                     axis through the handle (the held flange's axis, or the element's own
//                     x axis through its centre), then the mode is move again.
//   5 element flange  the element's flange nearest the cursor becomes the handle and the element
//                     is moved so that the flange's midpoint is at the cursor; then move again.
//   6 scheme flange   the handle flange (without one, the element's flange nearest the target)
//                     is joined onto the free scheme flange nearest the cursor: the element turns
//                     so that the two flange axes are one line with the element on the far side,
//                     and moves so that the midpoints meet. The handle is then that midpoint.
//                     Stays on, so that the element snaps from flange to flange, until another
//                     keyword or the pick.
// Mirroring is kept by the other modes: they only turn and move.

#include "module/editor/CASEntityMover.h"
#include "module/editor/CASFlange.h"

#include "host/base/AcArray.h"
#include "host/geometry/AcGeMatrix3d.h"

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <optional>

namespace XimoGis::AssemblySchemes {

class CASInstance;

class CDragGenData_Draw {
public:
    enum enmMode {
        eModeMove = 0,
        eModeRotate = 3,
        eModeMirror = 4,
        eModeElementFlange = 5,
        eModeSchemeFlange = 6,
    };
    static constexpr double kRotationStepDegrees = 15.0;
    // Two flange midpoints closer than this are joined.
    static constexpr double kJoinTolerance = 1e-3;

    // The sheet under a point; the editor's look-up.
    using SheetFinder = boost::function<boost::shared_ptr<CASInstance>(const AcGePoint3d&)>;

    // A new placement of the entities, held at `handle` (their centre), in move mode.
    void Start(const AcDbObjectIdArray& ids, const AcGePoint3d& handle, CASEntityMover* mover, SheetFinder sheets);
    // Forgets the entities; the mode and the buttons' state stay.
    void Finish();

    int GetMode() const { return m_mode; }
    void SetMode(int mode) { m_mode = mode; }
    bool AreButtonsShown() const { return m_buttonsShown; }
    void SetButtonsShown(bool shown) { m_buttonsShown = shown; }

    // Acts on a cursor position as the mode says; the mirror acts without one.
    void OnCursor(const AcGePoint3d& cursor);
    // Runs the mode on the last cursor position (the mirror shows without a cursor move).
    void Repeat() { OnCursor(m_lastCursor); }

    const AcDbObjectIdArray& GetEntities() const { return m_ids; }
    // Where the element is held: the point that was picked, or the joined flanges' midpoint.
    const AcGePoint3d& GetHandle() const { return m_handle; }
    // The handle flange's line (or the block reference showing it); null while the element is
    // held by its centre.
    AcDbObjectId GetHandleFlange() const { return m_handleFlange; }
    // Everything done to the entities since Start.
    const AcGeMatrix3d& GetPlacement() const { return m_placement; }
    // The direction of the element's own x axis, in degrees from the drawing's x axis.
    double GetRotationDegrees() const;
    bool IsMirrored() const { return m_placement.isMirroring(); }

private:
    void MoveHandleTo(const AcGePoint3d& point);
    void Turn(const AcGeMatrix3d& matrix);
    void Rotate(const AcGePoint3d& cursor);
    void Mirror();
    void TakeFlange(const AcGePoint3d& cursor);
    void JoinSchemeFlange(const AcGePoint3d& cursor);
    // The handle flange where it is now; null while the element is held by its centre.
    std::optional<CASFlange> HeldFlange() const;
    void Hold(const CASFlange& flange);
    // The centre of the element's box, where it is now.
    AcGePoint3d Inside() const;

    int m_mode = eModeMove;
    bool m_buttonsShown = false;
    AcDbObjectIdArray m_ids;
    AcGePoint3d m_handle;
    AcGePoint3d m_lastCursor;
    AcDbObjectId m_handleFlange;
    int m_handleFlangePart = 0;
    AcGeMatrix3d m_placement;
    CASEntityMover* m_mover = nullptr;
    SheetFinder m_sheets;
};

}  // namespace XimoGis::AssemblySchemes
