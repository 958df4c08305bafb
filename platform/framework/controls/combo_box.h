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
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
    }

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

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
