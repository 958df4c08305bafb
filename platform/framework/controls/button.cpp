#include "controls/button.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CButton, CWnd)

namespace
{
const ControlClass buttonClass(WC_BUTTON, RUNTIME_CLASS(CButton));
}

CButton::CButton() = default;
CButton::~CButton() = default;

BOOL CButton::Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_BUTTON, caption, style, rect, parent, id);
}
