#include "controls/edit.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CEdit, CWnd)

namespace
{
const ControlClass editClass(WC_EDIT, RUNTIME_CLASS(CEdit));
}

CEdit::CEdit() = default;
CEdit::~CEdit() = default;

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_EDIT, nullptr, style, rect, parent, id);
}

void CEdit::GetSel(int& start, int& end) const
{
    DWORD first = 0;
    DWORD last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll)
        SendMessage(EM_SCROLLCARET);
}
