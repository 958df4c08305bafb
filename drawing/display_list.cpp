#include "drawing/display_list.h"

#include <iomanip>
#include <locale>
#include <ostream>
#include <sstream>
#include <utility>

namespace
{

const char* Word(TextAlign align)
{
    switch (align)
    {
    case TextAlign::Left:
        return "left";
    case TextAlign::Center:
        return "center";
    case TextAlign::Right:
        break;
    }
    return "right";
}

std::ostream& operator<<(std::ostream& out, PixelPoint point)
{
    return out << point.x << ' ' << point.y;
}

std::ostream& operator<<(std::ostream& out, Rgb color)
{
    const auto value = color.red * 0x10000 + color.green * 0x100 + color.blue;
    return out << std::hex << std::uppercase << std::setfill('0') << std::setw(6) << value << std::dec;
}

std::ostream& operator<<(std::ostream& out, const std::vector<PixelPoint>& points)
{
    const char* separator = "";
    for (const PixelPoint& point : points)
        out << std::exchange(separator, " ") << point;
    return out;
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char character : text)
    {
        if (character == '"' || character == '\\')
            quoted += '\\';
        if (character == '\n')
            quoted += "\\n";
        else
            quoted += character;
    }
    return quoted + '"';
}

struct Writer
{
    std::ostream& out;

    void operator()(const LinePrimitive& line) const { out << "line " << line.start << ' ' << line.end; }
    void operator()(const TextPrimitive& text) const
    {
        out << "text " << text.anchor << ' ' << Word(text.align) << ' ' << text.color << ' ' << Quoted(text.text);
        if (text.isLifted)
            out << " lifted";
    }
    void operator()(const HaloPrimitive& halo) const
    {
        out << "halo " << halo.corner << ' ' << halo.width << ' ' << halo.reach << ' ' << Quoted(halo.text);
    }
    void operator()(const FillPrimitive& fill) const { out << "fill " << fill.color << ' ' << fill.corners; }
    void operator()(const RectPrimitive& rect) const
    {
        out << "rect " << rect.color << ' ' << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom;
    }
    void operator()(const OutlinePrimitive& outline) const { out << "outline " << outline.points; }
};

}  // namespace

void DisplayList::Line(int startX, int startY, int endX, int endY)
{
    primitives.emplace_back(LinePrimitive{{startX, startY}, {endX, endY}});
}

void DisplayList::Text(int x, int y, TextAlign align, std::string text, Rgb color)
{
    primitives.emplace_back(TextPrimitive{{x, y}, align, color, std::move(text)});
}

void DisplayList::Fill(Rgb color, std::vector<PixelPoint> corners)
{
    primitives.emplace_back(FillPrimitive{color, std::move(corners)});
}

void DisplayList::Rect(Rgb color, int left, int top, int right, int bottom)
{
    primitives.emplace_back(RectPrimitive{color, left, top, right, bottom});
}

void DisplayList::Outline(std::vector<PixelPoint> points)
{
    primitives.emplace_back(OutlinePrimitive{std::move(points)});
}

std::string ToText(const DisplayList& list)
{
    std::ostringstream out;
    out.imbue(std::locale::classic());
    for (const Primitive& primitive : list.primitives)
    {
        std::visit(Writer{out}, primitive);
        out << '\n';
    }
    return std::move(out).str();
}
