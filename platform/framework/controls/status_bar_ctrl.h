#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CStatusBarCtrl : public CWnd
{
    DECLARE_DYNCREATE(CStatusBarCtrl)

public:
    CStatusBarCtrl();
    ~CStatusBarCtrl() override;

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// @param rightEdges  of each part, client pixels; -1 reaches to the window's right end
    BOOL SetParts(int count, int* rightEdges)
    {
        return static_cast<BOOL>(
            SendMessage(SB_SETPARTS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(rightEdges)));
    }
    BOOL SetText(LPCWSTR text, int part, int type)
    {
        return static_cast<BOOL>(
            SendMessage(SB_SETTEXT, static_cast<WPARAM>(part | type), reinterpret_cast<LPARAM>(text)));
    }
    CString GetText(int part) const;
};
