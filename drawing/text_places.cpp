#include "drawing/text_places.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{

// A halo reaches a quarter of a text's height to either side. That closes the gaps between two characters, where a
// marker's line would look like a digit 1.
constexpr int kHaloShare = 4;

struct TextArea
{
    PixelPoint corner;
    TextExtent extent;

    bool Covers(const TextArea& other) const
    {
        return corner.x < other.corner.x + other.extent.width && other.corner.x < corner.x + extent.width &&
               corner.y < other.corner.y + other.extent.height && other.corner.y < corner.y + extent.height;
    }
};

struct TextPlace
{
    PixelPoint corner;
    bool isFree = true;  // else it covers an earlier text
};

PixelPoint Corner(const TextPrimitive& text, int width)
{
    switch (text.align)
    {
    case TextAlign::Center:
        return {text.anchor.x - width / 2, text.anchor.y};
    case TextAlign::Right:
        return {text.anchor.x - width, text.anchor.y};
    default:
        return text.anchor;
    }
}

/// The places that are taken, in the order of the texts.
class TextPlaces
{
public:
    TextPlaces(int width, int height) : m_width(width), m_height(height) {}

    TextPlace Take(const TextArea& wanted)
    {
        TextArea area{Inside(wanted), wanted.extent};
        const PixelPoint below = BelowOthers(area);
        const bool isFree = below.y == area.corner.y;
        const bool hasRoom = below.y + area.extent.height <= m_height;
        if (hasRoom)
            area.corner = below;
        m_taken.push_back(area);
        return {area.corner, isFree || hasRoom};
    }

private:
    PixelPoint Inside(const TextArea& area) const
    {
        return {std::max(0, std::min(area.corner.x, m_width - area.extent.width)),
                std::max(0, std::min(area.corner.y, m_height - area.extent.height))};
    }

    PixelPoint BelowOthers(TextArea area) const
    {
        const auto isCovered = [&area](const TextArea& other) { return other.Covers(area); };
        for (auto other = std::ranges::find_if(m_taken, isCovered); other != m_taken.end();
             other = std::ranges::find_if(m_taken, isCovered))
            area.corner.y = other->corner.y + other->extent.height;
        return area.corner;
    }

    int m_width;
    int m_height;
    std::vector<TextArea> m_taken;
};

/// Whether the line between two pixels shares one with the text. A text's first row has no ink: a line may run there.
bool RunsThrough(PixelPoint start, PixelPoint end, const TextArea& text)
{
    // The share of the line, from 0 to 1, that lies between the four sides (method of Liang and Barsky).
    double first = 0.0;
    double last = 1.0;
    const auto cut = [&first, &last](int from, int to, int lowest, int highest) {
        if (from == to)
            return lowest <= from && from <= highest;
        const double length = static_cast<double>(to) - from;
        const double a = (lowest - static_cast<double>(from)) / length;
        const double b = (highest - static_cast<double>(from)) / length;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
        return first <= last;
    };
    return cut(start.x, end.x, text.corner.x, text.corner.x + text.extent.width - 1) &&
           cut(start.y, end.y, text.corner.y + 1, text.corner.y + text.extent.height - 1);
}

/// Asks every primitive whether a line of it runs through a text.
struct LineFinder
{
    const TextArea& text;

    bool operator()(const LinePrimitive& line) const { return RunsThrough(line.start, line.end, text); }
    bool operator()(const OutlinePrimitive& outline) const
    {
        const auto leaves = [this](PixelPoint start, PixelPoint end) { return RunsThrough(start, end, text); };
        return std::ranges::adjacent_find(outline.points, leaves) != outline.points.end();
    }
    bool operator()(const TextPrimitive& /*other*/) const { return false; }
    bool operator()(const FillPrimitive& /*fill*/) const { return false; }
    bool operator()(const RectPrimitive& /*rect*/) const { return false; }
};

bool HasLineThrough(const DisplayList& list, const TextArea& text)
{
    return std::ranges::any_of(list.primitives,
                               [&text](const Primitive& primitive) { return std::visit(LineFinder{text}, primitive); });
}

}  // namespace

DisplayList WithReadableTexts(const DisplayList& list, const MeasureText& measure, int width, int height)
{
    DisplayList readable;
    readable.textLook = list.textLook;
    std::vector<Primitive> lifted;
    TextPlaces places(width, height);
    for (const Primitive& primitive : list.primitives)
    {
        const auto* const text = std::get_if<TextPrimitive>(&primitive);
        if (text == nullptr)
        {
            readable.primitives.push_back(primitive);
            continue;
        }
        const TextExtent extent = measure(text->text);
        const PixelPoint wanted = Corner(*text, extent.width);
        const TextPlace place = places.Take({wanted, extent});
        const bool isLifted = place.corner != wanted || HasLineThrough(list, {wanted, extent});
        TextPrimitive placed = *text;
        placed.anchor = place.corner;
        placed.align = TextAlign::Left;
        placed.halo = isLifted && place.isFree ? extent.height / kHaloShare : 0;
        (isLifted ? lifted : readable.primitives).emplace_back(std::move(placed));
    }
    readable.primitives.insert(readable.primitives.end(), lifted.begin(), lifted.end());
    return readable;
}
