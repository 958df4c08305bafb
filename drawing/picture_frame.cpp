#include "drawing/picture_frame.h"

#include "drawing/display_list.h"
#include "drawing/gdi_painter.h"
#include "platform/gdi/scoped_select.h"

BEGIN_MESSAGE_MAP(CPictureFrame, CStatic)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

CSize SizeOf(CBitmap& bitmap)
{
    BITMAP description{};
    bitmap.GetBitmap(&description);
    return {description.bmWidth, description.bmHeight};
}

// A control that was given no font has the default one of every device context.
HGDIOBJ TextFont(const CWnd& control, TextLook look)
{
    const CFont* const font = look == TextLook::ControlFont ? control.GetFont() : nullptr;
    return font != nullptr ? font->GetSafeHandle() : ::GetStockObject(SYSTEM_FONT);
}

/// The client area of a window until the end of a scope. Without a context left it is null, as nothing may be thrown
/// at a host that has a picture shown.
class WindowContext
{
public:
    explicit WindowContext(HWND window) : m_window(window) { m_dc.Attach(::GetDC(window)); }
    ~WindowContext() { ::ReleaseDC(m_window, m_dc.Detach()); }
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;

    CDC& Dc() { return m_dc; }
    bool MakeCompatible(CDC& memory) { return m_dc.GetSafeHdc() != nullptr && memory.CreateCompatibleDC(&m_dc); }

private:
    HWND m_window;
    CDC m_dc;
};

}  // namespace

bool CPictureFrame::ShowBitmap(UINT bitmapId)
{
    m_picture.DeleteObject();
    m_picture.LoadBitmap(bitmapId);
    return Show();
}

bool CPictureFrame::ShowDrawing(const DisplayList& drawing)
{
    m_picture.DeleteObject();
    CRect area;
    GetClientRect(&area);
    WindowContext window(m_hWnd);
    CDC memory;
    if (!window.MakeCompatible(memory))
    {
        Show();
        return false;
    }
    if (m_picture.CreateCompatibleBitmap(&window.Dc(), area.Width(), area.Height()))
    {
        const ScopedSelect selected(memory, m_picture);
        const ScopedSelect font(memory, TextFont(*this, drawing.textLook));
        memory.FillSolidRect(&area, RGB(255, 255, 255));
        PaintDisplayList(memory, drawing, area.Size());
    }
    return Show();
}

// The picture goes on the screen now, not with a later paint message: a caller may be in the middle of its own
// painting.
bool CPictureFrame::Show()
{
    WindowContext window(m_hWnd);
    CDC memory;
    const bool possible = window.MakeCompatible(memory);
    if (!possible)
        m_picture.DeleteObject();
    Paint(window.Dc(), memory);
    ValidateRect(nullptr);
    return possible;
}

// Copies first and fills only what the picture leaves free, so nothing flickers.
void CPictureFrame::Paint(CDC& dc, CDC& memory)
{
    if (m_picture.GetSafeHandle() != nullptr)
    {
        const CRect area(CPoint(0, 0), SizeOf(m_picture));
        const ScopedSelect selected(memory, m_picture);
        dc.BitBlt(0, 0, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
        dc.ExcludeClipRect(&area);
    }
    PaintBackground(dc);
}

// The brush is the one that the parent gives its static controls.
void CPictureFrame::PaintBackground(CDC& dc)
{
    const auto brush = reinterpret_cast<HBRUSH>(GetParent()->SendMessage(
        WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), reinterpret_cast<LPARAM>(m_hWnd)));
    CRect area;
    GetClientRect(&area);
    ::FillRect(dc.GetSafeHdc(), &area, brush != nullptr ? brush : ::GetSysColorBrush(COLOR_3DFACE));
}

void CPictureFrame::OnDestroy()
{
    m_picture.DeleteObject();
    CStatic::OnDestroy();
}

BOOL CPictureFrame::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void CPictureFrame::OnPaint()
{
    CPaintDC dc(this);
    CDC memory;
    if (memory.CreateCompatibleDC(&dc))
        Paint(dc, memory);
    else
        PaintBackground(dc);
}
