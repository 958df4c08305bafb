#include "drawing/gdi_painter.h"

#include "drawing/display_list.h"
#include "drawing/text_encoding.h"

#include <algorithm>
#include <vector>

namespace
{

constexpr COLORREF kGround = RGB(255, 255, 255);

COLORREF ToColor(Rgb color)
{
    return RGB(color.red, color.green, color.blue);
}

std::vector<POINT> ToPoints(const std::vector<PixelPoint>& points)
{
    std::vector<POINT> result;
    result.reserve(points.size());
    for (const PixelPoint& point : points)
        result.push_back({point.x, point.y});
    return result;
}

int LeftEnd(const TextPrimitive& text, int extent)
{
    switch (text.align)
    {
    case TextAlign::Center:
        return text.anchor.x - extent / 2;
    case TextAlign::Right:
        return text.anchor.x - extent;
    default:
        return text.anchor.x;
    }
}

struct TextPlace
{
    CRect area;
    bool isFree = true;  // else it covers an earlier text
};

/// The places of a picture's texts: inside of it and, where there is room, none over another.
class TextPlaces
{
public:
    explicit TextPlaces(CSize picture) : m_picture(picture) {}

    TextPlace Take(const CRect& wanted)
    {
        TextPlace place{Inside(wanted)};
        const CRect below = BelowOthers(place.area);
        if (below.bottom <= m_picture.cy)
            place.area = below;
        else
            place.isFree = below.top == place.area.top;
        m_taken.push_back(place.area);
        return place;
    }

private:
    CRect Inside(const CRect& place) const
    {
        const CPoint corner(std::max<int>(0, std::min<int>(place.left, m_picture.cx - place.Width())),
                            std::max<int>(0, std::min<int>(place.top, m_picture.cy - place.Height())));
        return {corner, place.Size()};
    }

    CRect BelowOthers(CRect place) const
    {
        const auto isCovered = [&place](const CRect& other) {
            CRect common;
            return common.IntersectRect(&place, &other) != FALSE;
        };
        for (auto other = std::ranges::find_if(m_taken, isCovered); other != m_taken.end();
             other = std::ranges::find_if(m_taken, isCovered))
            place.OffsetRect(0, other->bottom - place.top);
        return place;
    }

    CSize m_picture;
    std::vector<CRect> m_taken;
};

/// One overload per primitive.
class PrimitivePainter
{
public:
    PrimitivePainter(CDC& dc, CSize picture) : m_dc(dc), m_texts(picture) {}

    void operator()(const LinePrimitive& line) const
    {
        m_dc.MoveTo(line.start.x, line.start.y);
        m_dc.LineTo(line.end.x, line.end.y);
    }

    void operator()(const TextPrimitive& text)
    {
        const CString characters = FromUtf8(text.text);
        const CSize extent = m_dc.GetTextExtent(characters);
        const CPoint wanted(LeftEnd(text, extent.cx), text.anchor.y);
        const auto [area, isFree] = m_texts.Take(CRect(wanted, extent));
        if (isFree && area.left != wanted.x)
        {
            // Without the first row, which has no ink: a line may run there.
            m_dc.FillSolidRect(area.left, area.top + 1, area.Width(), area.Height() - 1, kGround);
        }
        m_dc.SetTextColor(ToColor(text.color));
        m_dc.TextOut(area.left, area.top, characters);
    }

    void operator()(const FillPrimitive& fill) const
    {
        const std::vector<POINT> corners = ToPoints(fill.corners);
        CRgn region;
        CBrush brush;
        if (region.CreatePolygonRgn(corners.data(), static_cast<int>(corners.size()), WINDING) &&
            brush.CreateSolidBrush(ToColor(fill.color)))
            m_dc.FillRgn(&region, &brush);
    }

    void operator()(const RectPrimitive& rect) const
    {
        const CRect area(rect.left, rect.top, rect.right, rect.bottom);
        m_dc.FillSolidRect(&area, ToColor(rect.color));
    }

    void operator()(const OutlinePrimitive& outline) const
    {
        const std::vector<POINT> points = ToPoints(outline.points);
        m_dc.Polyline(points.data(), static_cast<int>(points.size()));
    }

private:
    CDC& m_dc;
    TextPlaces m_texts;
};

/// Pen, colours, alignment and position of a context, put back at the end of a scope.
class ScopedState
{
public:
    explicit ScopedState(CDC& dc) : m_dc(dc.GetSafeHdc()), m_saved(::SaveDC(m_dc)) {}
    ~ScopedState() { ::RestoreDC(m_dc, m_saved); }
    ScopedState(const ScopedState&) = delete;
    ScopedState& operator=(const ScopedState&) = delete;

private:
    HDC m_dc;
    int m_saved;
};

}  // namespace

void PaintDisplayList(CDC& dc, const DisplayList& list, CSize picture)
{
    const ScopedState state(dc);
    ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(BLACK_PEN));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextAlign(TA_TOP | TA_LEFT);
    PrimitivePainter painter(dc, picture);
    for (const Primitive& primitive : list.primitives)
        std::visit(painter, primitive);
}
