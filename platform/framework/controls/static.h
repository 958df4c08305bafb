#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CStatic : public CWnd
{
    DECLARE_DYNCREATE(CStatic)

public:
    CStatic();
    ~CStatic() override;

    virtual BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
};
