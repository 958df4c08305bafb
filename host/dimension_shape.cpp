#include "host/dimension_shape.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "host/dimension_text.h"

namespace
{

// Sizes in units of 1/96 inch.
constexpr double kArrowLength = 11;
constexpr double kArrowHalfWidth = 2;
constexpr double kBetweenArrows = 12;   // least room between two arrows that point outwards
constexpr double kOuterLine = 20;       // of a dimension line whose arrows come from outside, beyond each end
constexpr double kExtensionGap = 2;     // between the measured point and its extension line
constexpr double kExtensionBeyond = 5;  // from the dimension line to the end of the extension line
constexpr double kTextGap = 1;          // between the dimension line and the text above it
constexpr double kTextMargin = 4;       // beside the text, between it and an end of the line
constexpr double kDeviationGap = 4;     // between the label and the deviations
constexpr double kShortest = 1e-6;      // pixels; anything shorter has no direction
constexpr double kUpright = 1e-9;       // a direction whose x is smaller is upright

// The direction in which a text along the line reads from below or, upright, from the right.
SheetVector ReadingDirection(SheetVector along)
{
    const bool isUpright = std::abs(along.x) < kUpright;
    const bool reads = isUpright ? along.y < 0.0 : along.x > 0.0;
    return reads ? along : -along;
}

std::array<SheetPoint, 3> Arrow(SheetPoint tip, SheetVector pointing, double unit)
{
    const SheetPoint back = tip + pointing * (-kArrowLength * unit);
    const SheetVector side = LeftOf(pointing) * (kArrowHalfWidth * unit);
    return {tip, back + side, back + -side};
}

/// The texts of a dimension beside and above each other, before they have a place.
class TextBlock
{
public:
    TextBlock(const DimensionText& texts, const TextMeasure& measure, double unit)
        : m_texts(texts), m_measure(measure), m_gap(kDeviationGap * unit),
          m_labelWidth(measure.Width(texts.label, TextSize::kLabel)), m_labelHeight(measure.Height(TextSize::kLabel))
    {
        // An equal deviation on both sides is written as large as the nominal size.
        m_isPair = !texts.lower.empty();
        m_deviationSize = m_isPair ? TextSize::kDeviation : TextSize::kLabel;
        m_deviationWidth = std::max(measure.Width(texts.upper, m_deviationSize), WidthOf(texts.lower));
        m_deviationHeight = measure.Height(m_deviationSize);
    }

    double Width() const { return m_labelWidth + (HasDeviations() ? m_gap + m_deviationWidth : 0.0); }
    double Height() const { return std::max(m_labelHeight, m_isPair ? 2 * m_deviationHeight : 0.0); }

    void Place(const TurnedBox& box, std::vector<ShapeText>& texts) const
    {
        const auto add = [&](const std::string& text, TextSize size, double right, double down, double width,
                             double height) {
            const SheetPoint corner = box.corner + box.direction * right + LeftOf(box.direction) * -down;
            texts.push_back({text, size, {corner, box.direction, width, height}});
        };
        const double labelTop = (box.height - m_labelHeight) / 2;
        add(m_texts.label, TextSize::kLabel, 0, labelTop, m_labelWidth, m_labelHeight);
        if (!HasDeviations())
            return;
        const double left = m_labelWidth + m_gap;
        const double top = m_isPair ? (box.height - 2 * m_deviationHeight) / 2 : labelTop;
        add(m_texts.upper, m_deviationSize, left, top, m_deviationWidth, m_deviationHeight);
        if (m_isPair)
            add(m_texts.lower, m_deviationSize, left, top + m_deviationHeight, m_deviationWidth, m_deviationHeight);
    }

private:
    bool HasDeviations() const { return !m_texts.upper.empty(); }
    double WidthOf(const std::string& text) const
    {
        return text.empty() ? 0.0 : m_measure.Width(text, m_deviationSize);
    }

    const DimensionText m_texts;
    const TextMeasure& m_measure;
    double m_gap;
    double m_labelWidth;
    double m_labelHeight;
    bool m_isPair = false;
    TextSize m_deviationSize = TextSize::kLabel;
    double m_deviationWidth = 0.0;
    double m_deviationHeight = 0.0;
};

// From the measured point towards the dimension line and a little beyond it; nothing where there is no way to go.
std::optional<SheetLine> ExtensionLine(SheetPoint measured, SheetPoint onLine, double unit)
{
    const SheetVector way = onLine - measured;
    const double length = std::hypot(way.x, way.y);
    if (length <= kExtensionGap * unit)
        return std::nullopt;
    const SheetVector direction = way * (1.0 / length);
    return SheetLine{measured + direction * (kExtensionGap * unit), onLine + direction * (kExtensionBeyond * unit)};
}

}  // namespace

bool TurnedBox::Contains(SheetPoint point) const
{
    const SheetVector inside = point - corner;
    const double right = Dot(inside, direction);
    const double down = Dot(inside, -LeftOf(direction));
    return right >= 0.0 && right <= width && down >= 0.0 && down <= height;
}

std::array<SheetPoint, 4> TurnedBox::Corners() const
{
    const SheetVector right = direction * width;
    const SheetVector down = LeftOf(direction) * -height;
    return {corner, corner + right, corner + right + down, corner + down};
}

DimensionShape LayoutDimension(const DrawingDimension& dimension, const SheetTransform& transform,
                               const TextMeasure& measure, double unit)
{
    DimensionShape shape;
    const TextBlock block(TextsOf(dimension), measure, unit);
    const SheetPoint from = transform.ToPixel(dimension.from);
    const SheetPoint to = transform.ToPixel(dimension.to);
    const SheetVector span = to - from;
    const double length = std::hypot(span.x, span.y);
    if (length < kShortest)
    {
        const SheetVector right = {1.0, 0.0};
        shape.textBox = {from + LeftOf(right) * block.Height(), right, block.Width(), block.Height()};
        block.Place(shape.textBox, shape.texts);
        return shape;
    }

    const SheetVector along = span * (1.0 / length);
    const SheetVector aside = LeftOf(along) * (transform.scale * dimension.offset);
    for (const SheetPoint measured : {from, to})
    {
        if (const std::optional<SheetLine> line = ExtensionLine(measured, measured + aside, unit))
            shape.extensionLines.push_back(*line);
    }

    const SheetVector reading = ReadingDirection(along);
    const bool readsForward = Dot(reading, along) > 0.0;
    const SheetPoint left = (readsForward ? from : to) + aside;
    const SheetPoint right = (readsForward ? to : from) + aside;
    const bool arrowsInside = length >= (2 * kArrowLength + kBetweenArrows) * unit;
    const double beyond = arrowsInside ? 0.0 : kOuterLine * unit;
    shape.arrows = {Arrow(left, arrowsInside ? -reading : reading, unit),
                    Arrow(right, arrowsInside ? reading : -reading, unit)};

    const double textWidth = block.Width();
    const bool textInside = textWidth + 2 * kTextMargin * unit <= length;
    SheetPoint lineEnd = right + reading * beyond;
    SheetPoint textLeft = left + reading * ((length - textWidth) / 2);
    if (!textInside)
    {
        const double start = std::max(beyond, kTextMargin * unit);
        textLeft = right + reading * start;
        lineEnd = right + reading * (start + textWidth);
    }
    shape.dimensionLines.push_back({left + reading * -beyond, lineEnd});
    const double textBottom = kTextGap * unit;
    shape.textBox = {textLeft + LeftOf(reading) * (textBottom + block.Height()), reading, textWidth, block.Height()};
    block.Place(shape.textBox, shape.texts);
    return shape;
}
