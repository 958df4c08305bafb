#include "controls/header_ctrl.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CHeaderCtrl, CWnd)

namespace
{
const ControlClass headerClass(WC_HEADER, RUNTIME_CLASS(CHeaderCtrl));
}

CHeaderCtrl::CHeaderCtrl() = default;
CHeaderCtrl::~CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_HEADER, nullptr, style, rect, parent, id);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT order, int count) const
{
    const int items = count == -1 ? GetItemCount() : count;
    return static_cast<BOOL>(
        SendMessage(HDM_GETORDERARRAY, static_cast<WPARAM>(items), reinterpret_cast<LPARAM>(order)));
}
