#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CEdit : public CWnd
{
    DECLARE_DYNCREATE(CEdit)

public:
    CEdit();
    ~CEdit() override;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Of the selection; units from 0, the end excluded.
    void GetSel(int& start, int& end) const;
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    /// 0 and -1 select everything. The caret is scrolled into view unless `noScroll`.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCWSTR text, BOOL canUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
    }
    void SetLimitText(UINT units) { SendMessage(EM_SETLIMITTEXT, units); }
    void LimitText(int units = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(units)); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL readOnly = TRUE)
    {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)));
    }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(modified)); }
    void SetMargins(UINT left, UINT right)
    {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(left, right));
    }
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); }
};
