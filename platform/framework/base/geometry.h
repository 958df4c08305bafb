#pragma once

#include <windows.h>

/// A width and a height, or a distance in both directions.
class CSize : public tagSIZE
{
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int width, int height) : tagSIZE{width, height} {}
    CSize(SIZE size) : tagSIZE(size) {}
    explicit CSize(POINT point) : tagSIZE{point.x, point.y} {}

    void SetSize(int width, int height) { *this = CSize(width, height); }

    CSize operator+(SIZE size) const { return {static_cast<int>(cx + size.cx), static_cast<int>(cy + size.cy)}; }
    CSize operator-(SIZE size) const { return {static_cast<int>(cx - size.cx), static_cast<int>(cy - size.cy)}; }
    CSize operator-() const { return {static_cast<int>(-cx), static_cast<int>(-cy)}; }
    void operator+=(SIZE size) { *this = *this + size; }
    void operator-=(SIZE size) { *this = *this - size; }
    friend bool operator==(const CSize& left, const CSize& right) { return left.cx == right.cx && left.cy == right.cy; }
};

/// A place in pixels; y grows downwards.
class CPoint : public tagPOINT
{
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int left, int top) : tagPOINT{left, top} {}
    CPoint(POINT point) : tagPOINT(point) {}
    explicit CPoint(SIZE size) : tagPOINT{size.cx, size.cy} {}
    /// Unpacks the signed coordinates of a mouse message.
    explicit CPoint(LPARAM packed) : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    void SetPoint(int left, int top) { *this = CPoint(left, top); }
    void Offset(int right, int down) { *this += CSize(right, down); }
    void Offset(POINT distance) { *this += distance; }
    void Offset(SIZE distance) { *this += distance; }

    CPoint operator+(SIZE size) const { return {static_cast<int>(x + size.cx), static_cast<int>(y + size.cy)}; }
    CPoint operator-(SIZE size) const { return {static_cast<int>(x - size.cx), static_cast<int>(y - size.cy)}; }
    CPoint operator+(POINT point) const { return {static_cast<int>(x + point.x), static_cast<int>(y + point.y)}; }
    /// The way from `point` to this one.
    CSize operator-(POINT point) const { return {static_cast<int>(x - point.x), static_cast<int>(y - point.y)}; }
    CPoint operator-() const { return {static_cast<int>(-x), static_cast<int>(-y)}; }
    void operator+=(SIZE size) { *this = *this + size; }
    void operator-=(SIZE size) { *this = *this - size; }
    void operator+=(POINT point) { *this = *this + point; }
    void operator-=(POINT point) { *this = CPoint(*this - point); }
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
    CPoint BottomRight() const { return {static_cast<int>(right), static_cast<int>(bottom)}; }
    CPoint CenterPoint() const { return {static_cast<int>((left + right) / 2), static_cast<int>((top + bottom) / 2)}; }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }
    /// Non-zero when width or height is 0 or below.
    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    /// Non-zero when all four coordinates are 0.
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    // setting
    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { *this = CRect(); }
    void CopyRect(LPCRECT rect) { *this = CRect(rect); }

    // changing size: each side moves outwards (inflate) or inwards (deflate)
    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT rect) { InflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    void InflateRect(int l, int t, int r, int b)
    {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT rect) { DeflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    /// Exchanges sides so that neither width nor height is negative.
    void NormalizeRect()
    {
        if (left > right)
            *this = CRect(right, top, left, bottom);
        if (top > bottom)
            *this = CRect(left, bottom, right, top);
    }

    // moving, with unchanged size
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    void OffsetRect(POINT distance) { OffsetRect(distance.x, distance.y); }
    void OffsetRect(SIZE distance) { OffsetRect(distance.cx, distance.cy); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToY(int y) { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT topLeft) { MoveToXY(topLeft.x, topLeft.y); }

    // combining: this becomes the result; zero, and an empty rectangle, when nothing is left
    BOOL IntersectRect(LPCRECT first, LPCRECT second) { return ::IntersectRect(this, first, second); }
    BOOL UnionRect(LPCRECT first, LPCRECT second) { return ::UnionRect(this, first, second); }
    BOOL SubtractRect(LPCRECT from, LPCRECT taken) { return ::SubtractRect(this, from, taken); }

    void operator+=(POINT distance) { OffsetRect(distance); }
    void operator+=(SIZE distance) { OffsetRect(distance); }
    void operator+=(LPCRECT rect) { InflateRect(rect); }
    void operator-=(POINT distance) { OffsetRect(-distance.x, -distance.y); }
    void operator-=(SIZE distance) { OffsetRect(-distance.cx, -distance.cy); }
    void operator-=(LPCRECT rect) { DeflateRect(rect); }
    void operator&=(const RECT& rect) { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) { UnionRect(this, &rect); }
    CRect operator+(POINT distance) const
    {
        return Changed([&](CRect& rect) { rect += distance; });
    }
    CRect operator+(SIZE distance) const
    {
        return Changed([&](CRect& rect) { rect += distance; });
    }
    CRect operator-(POINT distance) const
    {
        return Changed([&](CRect& rect) { rect -= distance; });
    }
    CRect operator-(SIZE distance) const
    {
        return Changed([&](CRect& rect) { rect -= distance; });
    }
    CRect operator&(const RECT& other) const
    {
        return Changed([&](CRect& rect) { rect &= other; });
    }
    CRect operator|(const RECT& other) const
    {
        return Changed([&](CRect& rect) { rect |= other; });
    }
    friend bool operator==(const CRect& left, const CRect& right) { return left.EqualRect(right) != FALSE; }

private:
    template <class Change>
    CRect Changed(Change change) const
    {
        CRect changed(*this);
        change(changed);
        return changed;
    }
};
