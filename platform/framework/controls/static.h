#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CStatic : public CWnd
{
    DECLARE_DYNCREATE(CStatic)

public:
    CStatic();
    ~CStatic() override;

    virtual BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);

    /// The bitmap stays the caller's, the former one as well.
    HBITMAP SetBitmap(HBITMAP bitmap)
    {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    HICON SetIcon(HICON icon)
    {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
    }
};
