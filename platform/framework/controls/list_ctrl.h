#pragma once

#include "controls/image_list.h"
#include "window/wnd.h"

/// The list view. Rows and columns count from 0; -1 stands for none.
class FRAMEWORK_API CListCtrl : public CWnd
{
    DECLARE_DYNCREATE(CListCtrl)

public:
    CListCtrl();
    ~CListCtrl() override;

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// An owner-draw list: its parent passes the requests on to this. It does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT draw);

    // columns
    int InsertColumn(int column, const LVCOLUMN* description)
    {
        return ListView_InsertColumn(m_hWnd, column, description);
    }
    /// @param subItem  -1 for none given
    int InsertColumn(int column, LPCWSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL GetColumn(int column, LVCOLUMN* description) const { return ListView_GetColumn(m_hWnd, column, description); }
    int GetColumnWidth(int column) const { return ListView_GetColumnWidth(m_hWnd, column); }
    BOOL SetColumnWidth(int column, int width) { return ListView_SetColumnWidth(m_hWnd, column, width); }
    BOOL GetColumnOrderArray(LPINT order, int count = -1) const;
    BOOL SetColumnOrderArray(int count, LPINT order) { return ListView_SetColumnOrderArray(m_hWnd, count, order); }

    // items
    int GetItemCount() const { return ListView_GetItemCount(m_hWnd); }
    void SetItemCount(int count) { ListView_SetItemCount(m_hWnd, count); }
    int InsertItem(const LVITEM* item) { return ListView_InsertItem(m_hWnd, item); }
    int InsertItem(int index, LPCWSTR text);
    int InsertItem(int index, LPCWSTR text, int image);
    BOOL DeleteItem(int index) { return ListView_DeleteItem(m_hWnd, index); }
    CString GetItemText(int index, int subItem) const;
    int GetItemText(int index, int subItem, LPWSTR buffer, int capacity) const;
    BOOL SetItemText(int index, int subItem, LPCWSTR text);
    DWORD_PTR GetItemData(int index) const;

    // place and view
    BOOL GetItemRect(int index, LPRECT rect, UINT code) const;
    BOOL EnsureVisible(int index, BOOL partialIsEnough)
    {
        return ListView_EnsureVisible(m_hWnd, index, partialIsEnough);
    }
    BOOL Scroll(CSize pixels) { return ListView_Scroll(m_hWnd, pixels.cx, pixels.cy); }
    int GetTopIndex() const { return ListView_GetTopIndex(m_hWnd); }
    int GetCountPerPage() const { return ListView_GetCountPerPage(m_hWnd); }

    // look
    DWORD GetExtendedStyle() const { return ListView_GetExtendedListViewStyle(m_hWnd); }
    /// @return  the former style
    DWORD SetExtendedStyle(DWORD style)
    {
        return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
    }
    COLORREF GetBkColor() const { return ListView_GetBkColor(m_hWnd); }
    BOOL SetBkColor(COLORREF colour) { return ListView_SetBkColor(m_hWnd, colour); }
    /// @param kind  LVSIL_ constant
    /// @return      the former list
    CImageList* SetImageList(CImageList* images, int kind);
    CImageList* GetImageList(int kind) const;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    /// Takes back the image lists that objects own, so that the view does not destroy them with itself.
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()
};
