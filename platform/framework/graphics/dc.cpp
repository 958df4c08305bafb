#include "graphics/dc.h"

#include "graphics/window_dc.h"
#include "window/handle_map.h"
#include "window/wnd.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace
{
auto& DeviceContexts()
{
    static auto& map = *new HandleMap<HDC, CDC, &CDC::m_hDC>;
    return map;
}
}  // namespace

CDC::CDC() = default;

CDC::~CDC()
{
    DeleteDC();
}

CDC* CDC::FromHandle(HDC dc)
{
    return DeviceContexts().Find(dc, [](HDC) { return new CDC; });
}

BOOL CDC::Attach(HDC dc)
{
    ASSERT(m_hDC == nullptr);
    if (dc == nullptr)
        return FALSE;
    DeviceContexts().AddPermanent(dc, this);
    m_hDC = dc;
    return TRUE;
}

HDC CDC::Detach()
{
    const HDC dc = m_hDC;
    if (dc != nullptr)
        DeviceContexts().RemovePermanent(dc, this);
    m_hDC = nullptr;
    return dc;
}

BOOL CDC::DeleteDC()
{
    const HDC dc = Detach();
    return dc != nullptr && ::DeleteDC(dc);
}

CGdiObject* CDC::Select(CGdiObject* object)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, HandleOf(object)));
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint former;
    ::MoveToEx(m_hDC, x, y, &former);
    return former;
}

// An opaque empty text fills exactly the rectangle, without a brush.
void CDC::FillSolidRect(LPCRECT rect, COLORREF colour)
{
    const COLORREF former = ::SetBkColor(m_hDC, colour);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, former);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF colour)
{
    const CRect rect(x, y, x + width, y + height);
    FillSolidRect(&rect, colour);
}

CSize CDC::GetTextExtent(LPCWSTR text, int length) const
{
    CSize extent;
    ::GetTextExtentPoint32W(m_hDC, text, length, &extent);
    return extent;
}

CClientDC::CClientDC(CWnd* wnd) : m_window(HandleOf(wnd))
{
    if (!Attach(::GetDC(m_window)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_window, Detach());
}

CPaintDC::CPaintDC(CWnd* wnd) : m_window(HandleOf(wnd))
{
    if (!Attach(::BeginPaint(m_window, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_window, &m_ps);
}
