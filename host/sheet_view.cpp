#include "host/sheet_view.h"

#include "host/dimension_choice.h"
#include "platform/gdi/scoped_select.h"

BEGIN_MESSAGE_MAP(CSheetView, CWnd)
    // window
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, &CSheetView::OnMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

namespace
{

constexpr double kClickTolerance = 5;  // units of 1/96 inch

int PixelsPerInch()
{
    return CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY);
}

}  // namespace

CSheetView::CSheetView(SheetViewOwner& owner)
    : m_owner(owner), m_unit(static_cast<double>(PixelsPerInch()) / USER_DEFAULT_SCREEN_DPI), m_fonts(PixelsPerInch())
{
}

CSheetView::~CSheetView() = default;

BOOL CSheetView::Create(CWnd* parent, UINT id)
{
    const LPCWSTR windowClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW));
    return Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, id);
}

void CSheetView::Show(const Drawing& drawing)
{
    m_drawing = drawing;
    m_marks = {};
    LayOut();
    m_owner.OnHighlighted();
}

void CSheetView::LayOut()
{
    CRect area;
    GetClientRect(&area);
    m_layout = LayoutSheet(m_drawing, area.Width(), area.Height(), m_fonts, m_unit);
    Invalidate(FALSE);
}

void CSheetView::SetMarks(const SheetMarks& marks)
{
    if (marks == m_marks)
        return;
    const bool highlightMoved = marks.highlighted != m_marks.highlighted;
    m_marks = marks;
    Invalidate(FALSE);
    if (highlightMoved)
        m_owner.OnHighlighted();
}

void CSheetView::Highlight(std::optional<std::size_t> dimension)
{
    SetMarks({dimension, m_marks.loaded});
}

void CSheetView::MarkLoaded(std::optional<std::size_t> dimension)
{
    SetMarks({m_marks.highlighted, dimension});
}

std::optional<std::size_t> CSheetView::DimensionUnder(CPoint point) const
{
    return DimensionAt(m_layout, {static_cast<double>(point.x), static_cast<double>(point.y)},
                       kClickTolerance * m_unit);
}

void CSheetView::OnPaint()
{
    CPaintDC paint(this);
    CRect area;
    GetClientRect(&area);
    if (area.IsRectEmpty())
        return;
    CDC memory;
    memory.CreateCompatibleDC(&paint);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&paint, area.Width(), area.Height());
    const ScopedSelect picture(memory, bitmap);
    PaintSheet(memory, area, m_layout, m_marks, m_fonts, m_unit);
    paint.BitBlt(0, 0, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
}

BOOL CSheetView::OnEraseBkgnd(CDC*)
{
    return TRUE;  // painting covers everything
}

void CSheetView::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    LayOut();
}

void CSheetView::OnMouseMove(UINT, CPoint point)
{
    if (!m_tracksMouse)
    {
        TRACKMOUSEEVENT tracking = {sizeof(tracking), TME_LEAVE, m_hWnd, 0};
        m_tracksMouse = ::TrackMouseEvent(&tracking) != FALSE;
    }
    // Windows repeats the message when nothing has moved: a choice by keyboard must stay then.
    if (point == m_mouse)
        return;
    m_mouse = point;
    Highlight(DimensionUnder(point));
}

LRESULT CSheetView::OnMouseLeave(WPARAM, LPARAM)
{
    m_tracksMouse = false;
    m_mouse = CPoint(-1, -1);
    Highlight(std::nullopt);
    return 0;
}

void CSheetView::OnLButtonDown(UINT, CPoint point)
{
    const std::optional<std::size_t> dimension = DimensionUnder(point);
    Highlight(dimension);
    if (dimension)
        m_owner.OnPicked(*dimension);
}

BOOL CSheetView::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    if (hitTest != HTCLIENT || !m_marks.highlighted)
        return CWnd::OnSetCursor(wnd, hitTest, message);
    ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
    return TRUE;
}
