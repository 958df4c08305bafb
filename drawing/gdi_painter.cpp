#include "drawing/gdi_painter.h"

#include "drawing/display_list.h"
#include "drawing/text_encoding.h"

#include <algorithm>

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

UINT ToTextAlign(TextAlign align)
{
    switch (align)
    {
    case TextAlign::Center:
        return TA_TOP | TA_CENTER;
    case TextAlign::Right:
        return TA_TOP | TA_RIGHT;
    default:
        return TA_TOP | TA_LEFT;
    }
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

/// One overload per primitive.
struct PrimitivePainter
{
    CDC& dc;
    int width;

    void operator()(const LinePrimitive& line) const
    {
        dc.MoveTo(line.start.x, line.start.y);
        dc.LineTo(line.end.x, line.end.y);
    }

    void operator()(const TextPrimitive& text) const
    {
        const CString characters = FromUtf8(text.text);
        const int extent = dc.GetTextExtent(characters).cx;
        const int left = LeftEnd(text, extent);
        const int leftInside = std::max(0, std::min(left, width - extent));
        dc.SetTextColor(ToColor(text.color));
        if (left == leftInside)
        {
            dc.SetTextAlign(ToTextAlign(text.align));
            dc.TextOut(text.anchor.x, text.anchor.y, characters);
            return;
        }
        dc.SetTextAlign(TA_TOP | TA_LEFT);
        dc.SetBkColor(kGround);
        dc.SetBkMode(OPAQUE);
        dc.TextOut(leftInside, text.anchor.y, characters);
        dc.SetBkMode(TRANSPARENT);
    }

    void operator()(const FillPrimitive& fill) const
    {
        const std::vector<POINT> corners = ToPoints(fill.corners);
        CRgn region;
        CBrush brush;
        if (region.CreatePolygonRgn(corners.data(), static_cast<int>(corners.size()), WINDING) &&
            brush.CreateSolidBrush(ToColor(fill.color)))
            dc.FillRgn(&region, &brush);
    }

    void operator()(const RectPrimitive& rect) const
    {
        const CRect area(rect.left, rect.top, rect.right, rect.bottom);
        dc.FillSolidRect(&area, ToColor(rect.color));
    }

    void operator()(const OutlinePrimitive& outline) const
    {
        const std::vector<POINT> points = ToPoints(outline.points);
        dc.Polyline(points.data(), static_cast<int>(points.size()));
    }
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

void PaintDisplayList(CDC& dc, const DisplayList& list, int width)
{
    const ScopedState state(dc);
    ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(BLACK_PEN));
    dc.SetBkMode(TRANSPARENT);
    for (const Primitive& primitive : list.primitives)
        std::visit(PrimitivePainter{dc, width}, primitive);
}
