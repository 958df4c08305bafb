#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CButton : public CWnd
{
    DECLARE_DYNCREATE(CButton)

public:
    CButton();
    ~CButton() override;

    virtual BOOL Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
};
