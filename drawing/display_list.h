#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

// A picture as a list of primitives, computed without a window and painted afterwards, in the list's order, on white.
// Coordinates are whole pixels from the top left corner of the picture, y downwards; they may lie outside of it.

struct PixelPoint
{
    int x = 0;
    int y = 0;

    bool operator==(const PixelPoint&) const = default;
};

struct Rgb
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb kBlack{0, 0, 0};

/// Where a text's x lies in it.
enum class TextAlign
{
    Left,    // x is the text's left end
    Center,  // x is the text's centre
    Right,   // x is the text's right end
};

/// A black line, one pixel wide, from its start up to but without its end.
struct LinePrimitive
{
    PixelPoint start;
    PixelPoint end;

    bool operator==(const LinePrimitive&) const = default;
};

/// A text of one line; its y is the text's top.
struct TextPrimitive
{
    PixelPoint anchor;
    TextAlign align = TextAlign::Left;
    Rgb color;
    std::string text;       // UTF-8
    bool isLifted = false;  // only the letters are painted, whatever the look of the texts

    bool operator==(const TextPrimitive&) const = default;
};

/// White around the letters of a text to come, which keeps what is below off them.
struct HaloPrimitive
{
    PixelPoint corner;  // the text's top left
    int width = 0;      // of the text, pixels: the halo keeps within it, beside it may be the text's own line
    int reach = 0;      // to either side of the letters, pixels
    std::string text;   // UTF-8

    bool operator==(const HaloPrimitive&) const = default;
};

/// A filled polygon region, without border. It has at least three corners.
struct FillPrimitive
{
    Rgb color;
    std::vector<PixelPoint> corners;

    bool operator==(const FillPrimitive&) const = default;
};

/// A filled rectangle, without border; right and bottom are excluded.
struct RectPrimitive
{
    Rgb color;
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const RectPrimitive&) const = default;
};

/// A black open polyline, one pixel wide; a closed outline repeats its first point.
struct OutlinePrimitive
{
    std::vector<PixelPoint> points;

    bool operator==(const OutlinePrimitive&) const = default;
};

using Primitive =
    std::variant<LinePrimitive, TextPrimitive, HaloPrimitive, FillPrimitive, RectPrimitive, OutlinePrimitive>;

/// How a picture's texts are written.
enum class TextLook
{
    ControlFont,   // in the font of the control that shows it, on what is drawn below them
    PlainOnWhite,  // in the default font of device contexts, on white
};

/// The primitives of a picture in drawing order; what is drawn later covers what was drawn before.
struct DisplayList
{
    std::vector<Primitive> primitives;
    TextLook textLook = TextLook::ControlFont;

    void Line(int startX, int startY, int endX, int endY);
    void Text(int x, int y, TextAlign align, std::string text, Rgb color = kBlack);
    void Fill(Rgb color, std::vector<PixelPoint> corners);
    void Rect(Rgb color, int left, int top, int right, int bottom);
    void Outline(std::vector<PixelPoint> points);

    bool operator==(const DisplayList&) const = default;
};

/// One primitive a line, each line ended, words separated by blanks:
///
///     line X1 Y1 X2 Y2
///     text X Y left|center|right RRGGBB "T" [lifted]
///     halo X Y WIDTH REACH "T"
///     fill RRGGBB X1 Y1 X2 Y2 ...
///     rect RRGGBB LEFT TOP RIGHT BOTTOM
///     outline X1 Y1 X2 Y2 ...
///
/// Colours are six upper-case hexadecimal digits. In a text a quote and a backslash have a backslash before them, a
/// line end is \n.
std::string ToText(const DisplayList& list);
