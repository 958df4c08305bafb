#pragma once

// Pixels of the window in which a drawing is shown: x to the right, y downwards, fractions allowed.

struct PixelPoint
{
    double x = 0.0;
    double y = 0.0;

    bool operator==(const PixelPoint&) const = default;
};

/// A displacement, or a direction when its length is 1.
struct PixelVector
{
    double x = 0.0;
    double y = 0.0;

    bool operator==(const PixelVector&) const = default;
};

inline PixelPoint operator+(PixelPoint point, PixelVector vector)
{
    return {point.x + vector.x, point.y + vector.y};
}

inline PixelVector operator-(PixelPoint to, PixelPoint from)
{
    return {to.x - from.x, to.y - from.y};
}

inline PixelVector operator-(PixelVector vector)
{
    return {-vector.x, -vector.y};
}

inline PixelVector operator*(PixelVector vector, double factor)
{
    return {vector.x * factor, vector.y * factor};
}

inline double Dot(PixelVector first, PixelVector second)
{
    return first.x * second.x + first.y * second.y;
}

/// The direction a quarter turn to the left of a direction, as seen on the screen.
inline PixelVector LeftOf(PixelVector direction)
{
    return {direction.y, -direction.x};
}
