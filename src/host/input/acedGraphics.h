#pragma once
// Drawing on the screen outside the database: redraws, temporary vectors and the conversion
// between drawing and screen coordinates, kept on the headless screen (AcEdScreen).

#include "host/base/CPoint.h"
#include "host/base/resbuf.h"

// With a nil name, redraws the whole screen (whatever the mode), which wipes the temporary
// vectors. With an entity or a selection set, acts on each entity: mode 1 shows it again, 2 hides
// it, 3 highlights it, 4 ends the highlight. RTERROR for an unknown name or mode.
int acedRedraw(const ads_name entityOrSet, int mode);
// Draws a temporary vector in a colour index (-1: XOR ink), highlighted when highlight is set.
int acedGrDraw(const ads_point from, const ads_point to, int color, int highlight);
// Draws a list of temporary vectors: a colour (RTSHORT, negative for highlighted) followed by
// pairs of points (RTPOINT, RT3DPOINT), any number of times. The points are transformed by
// matrix when it is given. RTREJ, with nothing drawn, for a list that breaks that pattern.
int acedGrVecs(const resbuf* vectors, ads_matrix matrix);
// Brings the screen up to date with the database.
void acedUpdateDisplay();

// Viewport 0 is the current one; the screen has one, numbered 2. False for any other number.
bool acedCoordFromWorldToPixel(int viewport, const ads_point world, CPoint& pixel);
bool acedCoordFromPixelToWorld(int viewport, const CPoint& pixel, ads_point world);
