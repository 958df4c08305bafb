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
    int GetRangeMin() const { return static_cast<int>(SendMessage(TBM_GETRANGEMIN)); }
    int GetRangeMax() const { return static_cast<int>(SendMessage(TBM_GETRANGEMAX)); }
    void GetRange(int& lowest, int& highest) const;
    void SetRange(int lowest, int highest, BOOL redraw = FALSE);
    void SetRangeMin(int lowest, BOOL redraw = FALSE)
    {
        SendMessage(TBM_SETRANGEMIN, static_cast<WPARAM>(redraw), lowest);
    }
    void SetRangeMax(int highest, BOOL redraw = FALSE)
    {
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(redraw), highest);
    }
    int SetLineSize(int size) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, size)); }
    int GetLineSize() const { return static_cast<int>(SendMessage(TBM_GETLINESIZE)); }
    int SetPageSize(int size) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, size)); }
    int GetPageSize() const { return static_cast<int>(SendMessage(TBM_GETPAGESIZE)); }
    void SetTicFreq(int frequency) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(frequency)); }
    BOOL SetTic(int position) { return static_cast<BOOL>(SendMessage(TBM_SETTIC, 0, position)); }
    UINT GetNumTics() const { return static_cast<UINT>(SendMessage(TBM_GETNUMTICS)); }
    void ClearTics(BOOL redraw = FALSE) { SendMessage(TBM_CLEARTICS, static_cast<WPARAM>(redraw)); }
};
