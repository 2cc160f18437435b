#pragma once
// A point on the screen in pixels, x to the right and y downwards, as window coordinates go.

struct CPoint {
    long x = 0;
    long y = 0;

    CPoint() = default;
    CPoint(long initX, long initY) : x(initX), y(initY) {}
    bool operator==(const CPoint& other) const { return x == other.x && y == other.y; }
    bool operator!=(const CPoint& other) const { return !(*this == other); }
};
