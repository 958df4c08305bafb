#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CListBox : public CWnd
{
    DECLARE_DYNCREATE(CListBox)

public:
    CListBox();
    ~CListBox() override;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int index) { return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(index))); }
    int AddString(LPCWSTR text)
    {
        return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
    }
    int InsertString(int index, LPCWSTR text)
    {
        return static_cast<int>(
            SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
    }
    int DeleteString(UINT index) { return static_cast<int>(SendMessage(LB_DELETESTRING, index)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int GetTextLen(int index) const { return static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(index))); }
    void GetText(int index, CString& text) const;
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return static_cast<int>(SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
    }
};
