#pragma once

#include "window/wnd.h"

/// Who sent a scroll message.
class FRAMEWORK_API CScrollBar : public CWnd
{
    DECLARE_DYNCREATE(CScrollBar)

public:
    CScrollBar();
    ~CScrollBar() override;
};
