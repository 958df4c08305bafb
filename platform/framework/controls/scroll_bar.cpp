#include "controls/scroll_bar.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CScrollBar, CWnd)

namespace
{
const ControlClass scrollBarClass(WC_SCROLLBAR, RUNTIME_CLASS(CScrollBar));
}

CScrollBar::CScrollBar() = default;
CScrollBar::~CScrollBar() = default;
