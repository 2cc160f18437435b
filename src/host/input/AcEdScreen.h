#pragma once
// The screen of a host without a screen: what would be on it is kept as data that tests and the
// command line can read. Temporary vectors (acedGrDraw, acedGrVecs) stay until the next redraw;
// entities can be highlighted or hidden; redraws and display updates are counted.
//
// The view is one viewport of 1920 x 1080 pixels (number 2, as the host numbers the first
// model-space viewport) looking down on the plan. Unless a view is set, it shows the extents that
// the working database's model space has at that moment, fitted as the host's "zoom extents"
// fits them: the drawing's centre in the middle of the screen and its wider side filling the
// screen. An empty drawing shows 0,0 to 420,297, the default limits of a metric drawing.

#include <set>
#include <vector>

#include "host/base/CPoint.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

struct AcEdTransientVector {
    AcGePoint3d from;
    AcGePoint3d to;
    int color = 7;  // colour index; -1 is the host's XOR ink
    bool highlighted = false;
};

class AcEdScreen {
public:
    static constexpr long kWidth = 1920;
    static constexpr long kHeight = 1080;
    static constexpr int kViewportNumber = 2;

    void addVector(const AcEdTransientVector& vector) { m_vectors.push_back(vector); }
    const std::vector<AcEdTransientVector>& transientVectors() const { return m_vectors; }

    // A redraw of the whole screen wipes the temporary vectors.
    void redraw();
    int redrawCount() const { return m_redraws; }
    void updateDisplay() { ++m_updates; }
    int updateCount() const { return m_updates; }

    void setHighlighted(AcDbObjectId id, bool on);
    bool isHighlighted(AcDbObjectId id) const { return m_highlighted.count(id) != 0; }
    void setHidden(AcDbObjectId id, bool on);
    bool isHidden(AcDbObjectId id) const { return m_hidden.count(id) != 0; }

    // The view: its centre and the drawing height it shows from top to bottom. A view that is set
    // stays until clearView, which goes back to following the extents.
    void setView(const AcGePoint3d& center, double height);
    void clearView() { m_hasView = false; }
    AcGePoint3d viewCenter() const { return currentView().center; }
    double viewHeight() const { return currentView().height; }
    CPoint worldToPixel(const AcGePoint3d& point) const;
    AcGePoint3d pixelToWorld(const CPoint& pixel) const;

    // Back to a blank screen with no view set, as at start-up.
    void reset();

private:
    struct View {
        AcGePoint3d center;
        double height;
    };
    View currentView() const;

    std::vector<AcEdTransientVector> m_vectors;
    std::set<AcDbObjectId> m_highlighted;
    std::set<AcDbObjectId> m_hidden;
    int m_redraws = 0;
    int m_updates = 0;
    bool m_hasView = false;
    View m_view{};
};

// The one screen of the process.
AcEdScreen* acedScreen();
