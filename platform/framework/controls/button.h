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
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL highlight) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(highlight)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFF; }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { SendMessage(BM_SETSTYLE, style, redraw); }
    /// The bitmap stays the caller's, the former one as well.
    HBITMAP SetBitmap(HBITMAP bitmap)
    {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    }
};
