#include "controls/list_box.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CListBox, CWnd)

namespace
{
const ControlClass listBoxClass(WC_LISTBOX, RUNTIME_CLASS(CListBox));
}

CListBox::CListBox() = default;
CListBox::~CListBox() = default;

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LISTBOX, nullptr, style, rect, parent, id);
}

void CListBox::GetText(int index, CString& text) const
{
    const int length = GetTextLen(index);
    if (length == LB_ERR)
    {
        text.Empty();
        return;
    }
    SendMessage(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer();
}
