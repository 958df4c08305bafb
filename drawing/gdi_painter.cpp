#include "drawing/gdi_painter.h"

#include "drawing/display_list.h"
#include "drawing/text_places.h"
#include "platform/gdi/scoped_state.h"
#include "platform/text/text_encoding.h"

#include <vector>

namespace
{

constexpr COLORREF kGround = RGB(255, 255, 255);
constexpr int kTopmost = -0x8000;  // where nothing is cut off above and below
constexpr int kLowest = 0x7FFF;

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

/// One overload per primitive. Texts are left-aligned.
class PrimitivePainter
{
public:
    PrimitivePainter(CDC& dc, TextLook look)
        : m_dc(dc), m_groundMode(look == TextLook::PlainOnWhite ? OPAQUE : TRANSPARENT)
    {
    }

    void operator()(const LinePrimitive& line) const
    {
        m_dc.MoveTo(line.start.x, line.start.y);
        m_dc.LineTo(line.end.x, line.end.y);
    }

    void operator()(const TextPrimitive& text) const
    {
        const CString characters = FromUtf8(text.text);
        m_dc.SetBkMode(text.isLifted ? TRANSPARENT : m_groundMode);
        m_dc.SetBkColor(kGround);
        m_dc.SetTextColor(ToColor(text.color));
        m_dc.TextOut(text.anchor.x, text.anchor.y, characters);
    }

    void operator()(const HaloPrimitive& halo) const
    {
        const CString characters = FromUtf8(halo.text);
        const ScopedState state(m_dc);
        ::IntersectClipRect(m_dc.GetSafeHdc(), halo.corner.x, kTopmost, halo.corner.x + halo.width, kLowest);
        m_dc.SetBkMode(TRANSPARENT);
        m_dc.SetTextColor(kGround);
        for (int x = halo.corner.x - halo.reach; x <= halo.corner.x + halo.reach; ++x)
            for (int y = halo.corner.y - 1; y <= halo.corner.y + 1; ++y)
                m_dc.TextOut(x, y, characters);
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
    int m_groundMode;
};

}  // namespace

void PaintDisplayList(CDC& dc, const DisplayList& list, CSize picture)
{
    const ScopedState state(dc);
    ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(BLACK_PEN));
    dc.SetTextAlign(TA_TOP | TA_LEFT);
    const auto measure = [&dc](const std::string& text) {
        const CSize extent = dc.GetTextExtent(FromUtf8(text));
        return TextExtent{.width = extent.cx, .height = extent.cy};
    };
    const PrimitivePainter painter(dc, list.textLook);
    for (const Primitive& primitive : WithReadableTexts(list, measure, picture.cx, picture.cy).primitives)
        std::visit(painter, primitive);
}
