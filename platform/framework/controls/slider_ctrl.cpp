#include "controls/slider_ctrl.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CSliderCtrl, CWnd)

namespace
{
const ControlClass sliderClass(TRACKBAR_CLASS, RUNTIME_CLASS(CSliderCtrl));
}

CSliderCtrl::CSliderCtrl() = default;
CSliderCtrl::~CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(TRACKBAR_CLASS, nullptr, style, rect, parent, id);
}

void CSliderCtrl::SetRange(int lowest, int highest, BOOL redraw)
{
    SendMessage(TBM_SETRANGEMIN, FALSE, lowest);
    SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(redraw), highest);
}
