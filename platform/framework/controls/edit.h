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
    void SetMargins(UINT left, UINT right)
    {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(left, right));
    }
};
