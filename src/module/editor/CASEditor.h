#pragma once
// The scheme editor: every drawing of scheme sheets goes through this singleton. It draws one
// sheet or a grid of sheets for network nodes from a scheme definition, adds catalog elements,
// comments and manhole views to drawn sheets, puts drawn entities on the network system's layers,
// finds the centre of a group of entities and deletes drawn sheets.
//
// Sheets are drawn in model space of the working database. A sheet is made of:
//   the base point entity (a point at the lower-left corner, layer "SCHEME_NP"),
//   the second general entity (a point at the upper-right corner, layer "SCHEME_NP"),
//   the third general entity (the sheet frame polyline at z = 0, when "ASDPF" is on),
//   and what the definition's non-interactive components draw, each on its component's layer.
//
// Created on the first Instance() call and never destroyed while the process runs. Everything
// runs on the one user-interface thread; the static drag data are not synchronised.

#include "module/catalog/enmViewDirection.h"
#include "module/editor/CASEntityMover.h"
#include "module/editor/CDragGenData_Draw.h"
#include "module/editor/IGripButtonListener.h"

#include "host/base/AcArray.h"
#include "host/base/resbuf.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

class AcDbBlockReference;
class AcDbEntity;

namespace XimoGis::Data {
class CCatalogItem;
}
namespace XimoGis::System {
class CGisSystem;
}
namespace XimoGis::Topology {
class CNode;
}

namespace XimoGis::AssemblySchemes {

class CASDefinition;
class CASInstance;

class CASEditor : public IGripButtonListener {
public:
    using NodeVector = std::vector<boost::shared_ptr<Topology::CNode>>;
    using InstanceVector = std::vector<boost::shared_ptr<CASInstance>>;

    static CASEditor* Instance();

    CASEditor(const CASEditor&) = delete;
    CASEditor& operator=(const CASEditor&) = delete;

    // One sheet of the definition at the base point for the node (may be null). The new instance
    // is neither serialised nor stored: that is the caller's. Empty without a definition.
    boost::shared_ptr<CASInstance> Draw(AcGePoint3d& basePoint, CASDefinition* definition, Topology::CNode* node);
    // A grid of sheets: the user picks the lower-left corner of the grid, then one sheet is drawn
    // per node (rows × columns sheets without nodes, each without a node) column by column and
    // row by row upwards, more rows than asked when there are more nodes. Every sheet is
    // serialised for the active system and stored. 1 on success; 0 when the user cancels the
    // base point or no system is active.
    int Draw(CASDefinition* definition, int rows, int columns, double gapX, double gapY, NodeVector* nodes);

    // Puts the entities on the layer of the system (the active one when null) that the reference
    // names. A system passed in is used whatever its topology type; the active one only when it
    // carries schemes. A reference the system lacks makes it recreate its layers once; if it still
    // lacks it nothing happens. Entities that cannot be opened are passed over.
    void SetLayer(const AcDbObjectIdArray& ids, System::CGisSystem* system, const std::wstring& layerReference);
    void SetLayer(const AcDbObjectId& id, System::CGisSystem* system, const std::wstring& layerReference);

    // Erases the sheets' graphics, drops them from the instance storage and updates the display.
    void DeleteASInstances(InstanceVector& instances);
    // Every stored sheet drawn from the definition (ids compared exactly) after a fresh scan.
    void DeleteASInstances(const std::wstring& definitionId, int);
    // Every sheet of the drawing, of every system, after a fresh scan.
    void DeleteASInstances();

    // The stored sheet whose rectangle holds the point (x and y); empty when none does.
    boost::shared_ptr<CASInstance> GetInstanceByPosition(const AcGePoint3d& point) const;
    // Asks the user to pick a point on a sheet; the sheet there, empty when none or cancelled.
    boost::shared_ptr<CASInstance> SelectScheme() const;

    // The centre of a group of entities: the point where the axes of its flange lines meet (with
    // one flange line, the point of its axis nearest the middle of the group's box; with none,
    // the middle of the box). Each point found is shown with a temporary cross.
    static AcGePoint3d GetCenterPoint(const AcArray<AcDbEntity*>& entities);
    static AcGePoint3d GetCenterPoint(const AcDbObjectIdArray& ids);
    // The centre of what the block reference shows; its position when it shows nothing, the
    // origin for null.
    static AcGePoint3d GetBlockCenterPoint(AcDbBlockReference* block);

    // Adds one catalog element, seen from the view, to a drawn sheet. The element is drawn by its
    // type's provider (or from its block file), hangs on the cursor by its centre and is placed
    // by the user with the placement modes of CDragGenData_Draw, switched by the keywords of the
    // prompt ("Rot", "Mir", "Elf", "Scf") or the grip buttons. It goes to the sheet under the
    // point where it is held when placed, scaled to the sheet's definition, and is numbered as an
    // element of that sheet; the sheet's components hear of it. 1 when placed; 0 when the item
    // cannot be drawn, the user cancels or there is no sheet at the point (what was drawn for the
    // placement is erased then).
    int DrawASElement(Data::CCatalogItem* item, enmViewDirection view);

    // Places copies of a comment text on sheets: one at every point the user picks until any
    // other answer. A copy on a sheet whose definition has a comment component takes that
    // component's text height, colour and style and becomes part of the sheet. Nothing happens
    // for an empty text.
    void DrawComment(const std::wstring& text);
    // Draws the manhole side view (side non-zero) or top view of the node of a sheet that the user
    // selects, at the scheme's scale, and lets the user place it on the sheet. 1 when placed; 0
    // when nothing was selected or placed, the sheet's definition lacks the manhole component or
    // the node is unknown (a node without a manhole, or a view that fails, is written to the
    // workspace's message log).
    int DrawManholeView(int side);

    // A check mark about half of `size` across at the point, in a colour index; the drawn
    // entities are not kept track of. The second number is not used.
    void DrawCheckMark(const AcGePoint3d& point, double size, double, int color, int flag);

    // A grip button was clicked during the placement: "ROTATE", "MIRROR" (shown at once),
    // "SEL_CONN" or "SEL_CONN_SCHEME" set the placement mode as the keywords do; ids are
    // compared without regard to case.
    void OnButtonClicked(const wchar_t* id) override;

    // The list of entities collected by the sheet drawing (every sheet frame since the last grid).
    const AcDbObjectIdArray& GetCollectedEntities() const { return m_collected; }

    // The placement drag's state, made with the editor.
    static CDragGenData_Draw* GetDragData() { return m_pDragGenData_Draw; }

private:
    CASEditor() = default;

    // Hides every grip button whose type is not wholly within the mask (0 hides them all) and
    // marks the buttons as not shown for the placement drag. Without windows only the mark is made.
    static void HideASButtons(unsigned int mask);
    // Drag callbacks: the group follows the cursor from m_ptASGroupBP; the element being placed
    // acts on the cursor as its placement mode says.
    static int MoveCallback(ads_point cursor, ads_matrix matrix);
    static int DrawCallback(ads_point cursor, ads_matrix matrix);
    // Drags the entities from the base point until the user picks a point (true) or answers
    // otherwise; the entities are not changed.
    static bool DragGroup(const AcDbObjectIdArray& ids, const AcGePoint3d& base, AcGePoint3d& picked);
    // Runs the placement drag of the drawn element until it is placed (RTNORM) or not.
    int DragElement(const AcDbObjectIdArray& ids);
    // Makes the placed entities an element of the sheet under the handle; false when none is there.
    bool InsertElement(const AcDbObjectIdArray& ids, const Data::CCatalogItem& item, const std::wstring& providerId,
                       double drawnScale);

    AcDbObjectIdArray m_collected;
    CASEntityMover m_mover;

    static CASEditor* m_pInstance;
    static CDragGenData_Draw* m_pDragGenData_Draw;
    static AcGePoint3d m_ptASGroupBP;
};

}  // namespace XimoGis::AssemblySchemes
