#include "controls/status_bar_ctrl.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CStatusBarCtrl, CWnd)

namespace
{
const ControlClass statusBarClass(STATUSCLASSNAME, RUNTIME_CLASS(CStatusBarCtrl));
}

CStatusBarCtrl::CStatusBarCtrl() = default;
CStatusBarCtrl::~CStatusBarCtrl() = default;

BOOL CStatusBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(STATUSCLASSNAME, nullptr, style, rect, parent, id);
}

CString CStatusBarCtrl::GetText(int part) const
{
    const int length = LOWORD(SendMessage(SB_GETTEXTLENGTH, static_cast<WPARAM>(part)));
    CString text;
    SendMessage(SB_GETTEXT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer();
    return text;
}
