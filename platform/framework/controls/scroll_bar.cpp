#include "controls/scroll_bar.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CScrollBar, CWnd)

namespace
{
const ControlClass scrollBarClass(WC_SCROLLBAR, RUNTIME_CLASS(CScrollBar));
}

CScrollBar::CScrollBar() = default;
CScrollBar::~CScrollBar() = default;

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_SCROLLBAR, nullptr, style, rect, parent, id);
}
