#include "host/sheet_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numeric>
#include <vector>

#include "platform/gdi/scoped_select.h"
#include "platform/text/text_encoding.h"

namespace
{

constexpr double kOutlineWidth = 2;  // units of 1/96 inch
constexpr double kLineWidth = 1;
constexpr double kMarkedWidth = 2;
constexpr double kMarkMargin = 2;  // of the coloured ground beside a marked text

/// The colours of one dimension.
struct DimensionColours
{
    COLORREF line;
    COLORREF text;
    COLORREF ground;  ///< behind the texts, where it hides the lines of other dimensions
    double width;     ///< of the lines, units
};

bool IsHighContrast()
{
    HIGHCONTRAST contrast = {};
    contrast.cbSize = sizeof(contrast);
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

DimensionColours ColoursOf(bool isHighlighted, bool isLoaded)
{
    if (IsHighContrast())
    {
        const COLORREF text = ::GetSysColor(isLoaded ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
        const COLORREF line = ::GetSysColor(isLoaded || isHighlighted ? COLOR_HIGHLIGHT : COLOR_WINDOWTEXT);
        if (isLoaded)
            return {line, text, ::GetSysColor(COLOR_HIGHLIGHT), kMarkedWidth};
        return {line, text, ::GetSysColor(COLOR_WINDOW), isHighlighted ? kMarkedWidth : kLineWidth};
    }
    constexpr COLORREF kPlain = RGB(31, 73, 125);
    constexpr COLORREF kHot = RGB(0, 102, 204);
    constexpr COLORREF kHotGround = RGB(217, 235, 255);
    constexpr COLORREF kTaken = RGB(176, 66, 0);
    constexpr COLORREF kTakenGround = RGB(255, 232, 200);
    if (isLoaded)
        return {kTaken, kTaken, kTakenGround, kMarkedWidth};
    if (isHighlighted)
        return {kHot, kHot, kHotGround, kMarkedWidth};
    return {kPlain, kPlain, ::GetSysColor(COLOR_WINDOW), kLineWidth};
}

CPoint ToPoint(SheetPoint point)
{
    return {static_cast<int>(std::lround(point.x)), static_cast<int>(std::lround(point.y))};
}

int WholePixels(double units, double unit)
{
    return std::max(1, static_cast<int>(std::lround(units * unit)));
}

void Polyline(CDC& dc, const std::vector<SheetPoint>& line)
{
    std::vector<POINT> points;
    std::transform(line.begin(), line.end(), std::back_inserter(points), ToPoint);
    dc.Polyline(points.data(), static_cast<int>(points.size()));
}

void Line(CDC& dc, const SheetLine& line)
{
    dc.MoveTo(ToPoint(line.from));
    dc.LineTo(ToPoint(line.to));
}

template <std::size_t count>
void Fill(CDC& dc, const std::array<SheetPoint, count>& corners, COLORREF colour)
{
    CBrush brush(colour);
    const ScopedSelect fill(dc, brush);
    const ScopedSelect border(dc, ::GetStockObject(NULL_PEN));
    std::array<POINT, count> points;
    std::transform(corners.begin(), corners.end(), points.begin(), ToPoint);
    dc.Polygon(points.data(), static_cast<int>(count));
}

void FillArrow(CDC& dc, const std::array<SheetPoint, 3>& arrow, COLORREF colour)
{
    // With a border: without one a polygon ends a pixel before its right and lower corners.
    CPen pen(PS_SOLID, 1, colour);
    CBrush brush(colour);
    const ScopedSelect border(dc, pen);
    const ScopedSelect fill(dc, brush);
    std::array<POINT, 3> points;
    std::transform(arrow.begin(), arrow.end(), points.begin(), ToPoint);
    dc.Polygon(points.data(), static_cast<int>(points.size()));
}

TurnedBox Widened(const TurnedBox& box, double margin)
{
    return {box.corner + box.direction * -margin, box.direction, box.width + 2 * margin, box.height};
}

void PaintLines(CDC& dc, const DimensionShape& shape, const DimensionColours& colours, double unit)
{
    {
        CPen thin(PS_SOLID, WholePixels(kLineWidth, unit), colours.line);
        const ScopedSelect pen(dc, thin);
        for (const SheetLine& line : shape.extensionLines)
            Line(dc, line);
    }
    {
        CPen wide(PS_SOLID, WholePixels(colours.width, unit), colours.line);
        const ScopedSelect pen(dc, wide);
        for (const SheetLine& line : shape.dimensionLines)
            Line(dc, line);
    }
    for (const std::array<SheetPoint, 3>& arrow : shape.arrows)
        FillArrow(dc, arrow, colours.line);
}

void PaintTexts(CDC& dc, const DimensionShape& shape, const DimensionColours& colours, const SheetFonts& fonts,
                double unit)
{
    Fill(dc, Widened(shape.textBox, kMarkMargin * unit).Corners(), colours.ground);
    dc.SetTextColor(colours.text);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    for (const ShapeText& text : shape.texts)
    {
        const std::unique_ptr<CFont> turned = fonts.Turned(text.size, text.box.direction);
        const ScopedSelect font(dc, *turned);
        const CPoint corner = ToPoint(text.box.corner);
        dc.TextOut(corner.x, corner.y, FromUtf8(text.text));
    }
}

// The order of painting: what is marked comes last, so that it lies over the others.
std::vector<std::size_t> PaintingOrder(std::size_t count, const SheetMarks& marks)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto rank = [&marks](std::size_t index) { return marks.loaded == index ? 2 : marks.highlighted == index; };
    std::stable_sort(order.begin(), order.end(),
                     [&rank](std::size_t left, std::size_t right) { return rank(left) < rank(right); });
    return order;
}

}  // namespace

void PaintSheet(CDC& dc, const CRect& area, const SheetLayout& layout, const SheetMarks& marks, const SheetFonts& fonts,
                double unit)
{
    dc.FillSolidRect(area, ::GetSysColor(COLOR_WINDOW));
    {
        CPen outlinePen(PS_SOLID, WholePixels(kOutlineWidth, unit), ::GetSysColor(COLOR_WINDOWTEXT));
        const ScopedSelect pen(dc, outlinePen);
        for (const std::vector<SheetPoint>& outline : layout.outlines)
            Polyline(dc, outline);
    }
    const std::vector<std::size_t> order = PaintingOrder(layout.dimensions.size(), marks);
    const auto coloursOf = [&marks](std::size_t i) { return ColoursOf(marks.highlighted == i, marks.loaded == i); };
    for (const std::size_t i : order)
        PaintLines(dc, layout.dimensions[i], coloursOf(i), unit);
    for (const std::size_t i : order)
        PaintTexts(dc, layout.dimensions[i], coloursOf(i), fonts, unit);
}
