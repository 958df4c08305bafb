#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CComboBox : public CWnd
{
    DECLARE_DYNCREATE(CComboBox)

public:
    CComboBox();
    ~CComboBox() override;

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // An owner-draw box: its parent passes the requests on to these. They do nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT draw);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT measure);

    // entries; indices from 0, CB_ERR where there is none
    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int index) { return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index))); }
    int AddString(LPCWSTR text)
    {
        return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
    }
    int InsertString(int index, LPCWSTR text)
    {
        return static_cast<int>(
            SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
    }
    int DeleteString(UINT index) { return static_cast<int>(SendMessage(CB_DELETESTRING, index)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindString(int after, LPCWSTR text) const
    {
        return static_cast<int>(SendMessage(CB_FINDSTRING, static_cast<WPARAM>(after), reinterpret_cast<LPARAM>(text)));
    }
    int FindStringExact(int after, LPCWSTR text) const
    {
        return static_cast<int>(
            SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(after), reinterpret_cast<LPARAM>(text)));
    }
    int SelectString(int after, LPCWSTR text)
    {
        return static_cast<int>(
            SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(after), reinterpret_cast<LPARAM>(text)));
    }
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
    }
    int GetLBTextLen(int index) const
    {
        return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(index)));
    }
    void GetLBText(int index, CString& text) const;

    // the drop-down list and the selection field
    void ShowDropDown(BOOL show = TRUE) { SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(show)); }
    BOOL GetDroppedState() const { return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE)); }
    /// @param index  -1 for the selection field
    int GetItemHeight(int index) const
    {
        return static_cast<int>(SendMessage(CB_GETITEMHEIGHT, static_cast<WPARAM>(index)));
    }
    int SetItemHeight(int index, UINT height)
    {
        return static_cast<int>(SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(index), static_cast<LPARAM>(height)));
    }
    int SetDroppedWidth(UINT width) { return static_cast<int>(SendMessage(CB_SETDROPPEDWIDTH, width)); }
    BOOL SetEditSel(int start, int end)
    {
        return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELONG(start, end)));
    }
    BOOL LimitText(int units) { return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, static_cast<WPARAM>(units))); }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
