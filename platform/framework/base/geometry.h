#pragma once

#include <windows.h>

/// A width and a height, or a distance in both directions.
class CSize : public tagSIZE
{
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int width, int height) : tagSIZE{width, height} {}
    CSize(SIZE size) : tagSIZE(size) {}

    friend bool operator==(const CSize& left, const CSize& right) { return left.cx == right.cx && left.cy == right.cy; }
};

/// A place in pixels; y grows downwards.
class CPoint : public tagPOINT
{
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int left, int top) : tagPOINT{left, top} {}
    CPoint(POINT point) : tagPOINT(point) {}
    /// Unpacks the signed coordinates of a mouse message.
    explicit CPoint(LPARAM packed) : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    friend bool operator==(const CPoint& left, const CPoint& right) { return left.x == right.x && left.y == right.y; }
};

/// A rectangle of pixels: left and top belong to it, right and bottom don't. Most operations expect it normalised, with
/// left <= right and top <= bottom.
class CRect : public tagRECT
{
public:
    CRect() : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
    CRect(const RECT& rect) : tagRECT(rect) {}
    CRect(LPCRECT rect) : tagRECT(*rect) {}
    CRect(POINT topLeft, SIZE size) : tagRECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    // asking
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return {Width(), Height()}; }
    CPoint TopLeft() const { return {static_cast<int>(left), static_cast<int>(top)}; }
    CPoint CenterPoint() const { return {static_cast<int>((left + right) / 2), static_cast<int>((top + bottom) / 2)}; }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }
    /// Non-zero when width or height is 0 or below.
    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    /// Moves each side inwards.
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }

    // combining: this becomes the result; zero, and an empty rectangle, when nothing is left
    BOOL IntersectRect(LPCRECT first, LPCRECT second) { return ::IntersectRect(this, first, second); }
    BOOL UnionRect(LPCRECT first, LPCRECT second) { return ::UnionRect(this, first, second); }

    friend bool operator==(const CRect& left, const CRect& right) { return left.EqualRect(right) != FALSE; }
};
