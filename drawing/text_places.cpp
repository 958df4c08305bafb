#include "drawing/text_places.h"

#include <algorithm>
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

    PixelPoint Take(const TextArea& wanted)
    {
        TextArea area{Inside(wanted), wanted.extent};
        const PixelPoint below = BelowOthers(area);
        if (below.y + area.extent.height <= m_height)
            area.corner = below;
        m_taken.push_back(area);
        return area.corner;
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
        const auto [enters, leaves] = std::minmax(
            {(lowest - static_cast<double>(from)) / length, (highest - static_cast<double>(from)) / length});
        first = std::max(first, enters);
        last = std::min(last, leaves);
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
    bool operator()(const HaloPrimitive& /*halo*/) const { return false; }
    bool operator()(const FillPrimitive& /*fill*/) const { return false; }
    bool operator()(const RectPrimitive& /*rect*/) const { return false; }
};

bool HasLineThrough(const DisplayList& list, const TextArea& text)
{
    return std::ranges::any_of(list.primitives,
                               [&text](const Primitive& primitive) { return std::visit(LineFinder{text}, primitive); });
}

/// A text in its place.
struct PlacedText
{
    TextPrimitive text;
    TextArea area;
    bool hasHalo = false;

    /// What the halo may cover.
    TextArea Around() const
    {
        return {{area.corner.x, area.corner.y - 1}, {area.extent.width, area.extent.height + 2}};
    }
};

std::vector<PlacedText> PlaceTexts(const DisplayList& list, const MeasureText& measure, int width, int height)
{
    std::vector<PlacedText> placed;
    TextPlaces places(width, height);
    for (const Primitive& primitive : list.primitives)
        if (const auto* const text = std::get_if<TextPrimitive>(&primitive))
        {
            const TextExtent extent = measure(text->text);
            const TextArea wanted{Corner(*text, extent.width), extent};
            const PixelPoint corner = places.Take(wanted);
            PlacedText& result = placed.emplace_back(PlacedText{*text, {corner, extent}});
            result.text.anchor = corner;
            result.text.align = TextAlign::Left;
            result.hasHalo = corner != wanted.corner || HasLineThrough(list, wanted);
        }
    return placed;
}

// A halo must not take the letters of another text away.
void LiftTextsOverHalos(std::vector<PlacedText>& placed)
{
    for (PlacedText& one : placed)
        one.text.isLifted = std::ranges::any_of(
            placed, [&one](const PlacedText& other) { return other.hasHalo && other.Around().Covers(one.area); });
}

}  // namespace

DisplayList WithReadableTexts(const DisplayList& list, const MeasureText& measure, int width, int height)
{
    std::vector<PlacedText> placed = PlaceTexts(list, measure, width, height);
    LiftTextsOverHalos(placed);

    DisplayList readable;
    readable.textLook = list.textLook;
    auto text = placed.begin();
    for (const Primitive& primitive : list.primitives)
        if (!std::holds_alternative<TextPrimitive>(primitive))
            readable.primitives.push_back(primitive);
        else if (const PlacedText& own = *text++; !own.text.isLifted)
            readable.primitives.emplace_back(own.text);
    for (const PlacedText& own : placed)
        if (own.hasHalo)
            readable.primitives.emplace_back(HaloPrimitive{own.area.corner, own.area.extent.width,
                                                           own.area.extent.height / kHaloShare, own.text.text});
    for (const PlacedText& own : placed)
        if (own.text.isLifted)
            readable.primitives.emplace_back(own.text);
    return readable;
}
