#pragma once
// Dragging a selection set: the host shows the set's entities transformed by the matrix that the
// callback computes for each cursor position, until the user picks a point, types a keyword,
// presses Enter or Escape. The entities themselves are not changed.
//
// Without a screen, the cursor positions are the input script's moves: the callback is called
// with a fresh identity matrix for every move and once more for the pick itself (and for typed
// coordinates, which stand for a pick there). Results:
//   RTNORM  a point was picked; result holds it
//   RTKWORD a keyword (or, with RSG_OTHER, any text) was typed; read it with acedGetInput
//   RTNONE  Enter. The host treats Enter in a drag as in its other input functions: a null
//           answer unless acedInitGet set RSG_NONULL, which makes it ask again
//   RTCAN   Escape, or the input script ran out
//   RTERROR the set is unknown or empty, an argument is missing, or the callback answered
//           something other than RTNORM (matrix changed) or RTNONE (unchanged)

#include "host/base/resbuf.h"

int acedDragGen(const ads_name ss, const ACHAR* prompt, int cursor, int (*callback)(ads_point, ads_matrix),
                ads_point result);
