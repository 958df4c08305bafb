#pragma once

// Pixels of the window in which a drawing is shown: x to the right, y downwards, fractions allowed.

struct SheetPoint
{
    double x = 0.0;
    double y = 0.0;

    bool operator==(const SheetPoint&) const = default;
};

/// A displacement, or a direction when its length is 1.
struct SheetVector
{
    double x = 0.0;
    double y = 0.0;

    bool operator==(const SheetVector&) const = default;
};

inline SheetPoint operator+(SheetPoint point, SheetVector vector)
{
    return {point.x + vector.x, point.y + vector.y};
}

inline SheetVector operator-(SheetPoint to, SheetPoint from)
{
    return {to.x - from.x, to.y - from.y};
}

inline SheetVector operator-(SheetVector vector)
{
    return {-vector.x, -vector.y};
}

inline SheetVector operator*(SheetVector vector, double factor)
{
    return {vector.x * factor, vector.y * factor};
}

inline double Dot(SheetVector first, SheetVector second)
{
    return first.x * second.x + first.y * second.y;
}

/// The direction a quarter turn to the left of a direction, as seen on the screen.
inline SheetVector LeftOf(SheetVector direction)
{
    return {direction.y, -direction.x};
}
