#pragma once

#include "window/wnd.h"

class FRAMEWORK_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNCREATE(CHeaderCtrl)

public:
    CHeaderCtrl();
    ~CHeaderCtrl() override;

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetItemCount() const { return static_cast<int>(SendMessage(HDM_GETITEMCOUNT)); }
    BOOL GetItem(int index, HDITEM* item) const
    {
        return static_cast<BOOL>(SendMessage(HDM_GETITEM, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
    }
    BOOL SetItem(int index, HDITEM* item)
    {
        return static_cast<BOOL>(SendMessage(HDM_SETITEM, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
    }
    int InsertItem(int index, HDITEM* item)
    {
        return static_cast<int>(
            SendMessage(HDM_INSERTITEM, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
    }
    BOOL GetItemRect(int index, LPRECT rect) const
    {
        return static_cast<BOOL>(
            SendMessage(HDM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
    }
    /// The column shown at that place, counted from 0 at the left.
    int OrderToIndex(int order) const
    {
        return static_cast<int>(SendMessage(HDM_ORDERTOINDEX, static_cast<WPARAM>(order)));
    }
    BOOL GetOrderArray(LPINT order, int count = -1) const;
    BOOL SetOrderArray(int count, LPINT order)
    {
        return static_cast<BOOL>(
            SendMessage(HDM_SETORDERARRAY, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(order)));
    }
};
