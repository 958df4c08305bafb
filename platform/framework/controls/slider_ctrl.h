#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CSliderCtrl : public CWnd
{
    DECLARE_DYNCREATE(CSliderCtrl)

public:
    CSliderCtrl();
    ~CSliderCtrl() override;

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int position) { SendMessage(TBM_SETPOS, TRUE, position); }
    void SetRange(int lowest, int highest, BOOL redraw = FALSE);
};
