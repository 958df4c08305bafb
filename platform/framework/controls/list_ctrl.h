#pragma once

#include "controls/header_ctrl.h"
#include "controls/image_list.h"

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
    BOOL DeleteColumn(int column) { return ListView_DeleteColumn(m_hWnd, column); }
    BOOL GetColumn(int column, LVCOLUMN* description) const { return ListView_GetColumn(m_hWnd, column, description); }
    BOOL SetColumn(int column, const LVCOLUMN* description) { return ListView_SetColumn(m_hWnd, column, description); }
    int GetColumnWidth(int column) const { return ListView_GetColumnWidth(m_hWnd, column); }
    BOOL SetColumnWidth(int column, int width) { return ListView_SetColumnWidth(m_hWnd, column, width); }
    BOOL GetColumnOrderArray(LPINT order, int count = -1) const;
    BOOL SetColumnOrderArray(int count, LPINT order) { return ListView_SetColumnOrderArray(m_hWnd, count, order); }
    /// The header of a report; null in other views.
    CHeaderCtrl* GetHeaderCtrl() const;

    // items
    int GetItemCount() const { return ListView_GetItemCount(m_hWnd); }
    void SetItemCount(int count) { ListView_SetItemCount(m_hWnd, count); }
    int InsertItem(const LVITEM* item) { return ListView_InsertItem(m_hWnd, item); }
    int InsertItem(int index, LPCWSTR text);
    int InsertItem(int index, LPCWSTR text, int image);
    BOOL DeleteItem(int index) { return ListView_DeleteItem(m_hWnd, index); }
    BOOL DeleteAllItems() { return ListView_DeleteAllItems(m_hWnd); }
    BOOL GetItem(LVITEM* item) const { return ListView_GetItem(m_hWnd, item); }
    BOOL SetItem(const LVITEM* item) { return ListView_SetItem(m_hWnd, item); }
    BOOL SetItem(int index, int subItem, UINT mask, LPCWSTR text, int image, UINT state, UINT stateMask, LPARAM data);
    CString GetItemText(int index, int subItem) const;
    int GetItemText(int index, int subItem, LPWSTR buffer, int capacity) const;
    BOOL SetItemText(int index, int subItem, LPCWSTR text);
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR data);
    UINT GetItemState(int index, UINT mask) const { return ListView_GetItemState(m_hWnd, index, mask); }
    BOOL SetItemState(int index, UINT state, UINT mask);
    int GetNextItem(int after, int flags) const { return ListView_GetNextItem(m_hWnd, after, flags); }
    int FindItem(const LVFINDINFO* info, int after = -1) const { return ListView_FindItem(m_hWnd, after, info); }
    UINT GetSelectedCount() const { return ListView_GetSelectedCount(m_hWnd); }
    /// @return  null when nothing is selected
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& position) const;
    int GetSelectionMark() const { return ListView_GetSelectionMark(m_hWnd); }
    int SetSelectionMark(int index) { return ListView_SetSelectionMark(m_hWnd, index); }

    // place and view
    BOOL GetItemRect(int index, LPRECT rect, UINT code) const;
    /// @param area  LVIR_BOUNDS or LVIR_LABEL
    BOOL GetSubItemRect(int index, int subItem, int area, CRect& rect) const;
    int HitTest(LVHITTESTINFO* info) const { return ListView_HitTest(m_hWnd, info); }
    int HitTest(CPoint point, UINT* flags = nullptr) const;
    int SubItemHitTest(LVHITTESTINFO* info) const { return ListView_SubItemHitTest(m_hWnd, info); }
    BOOL EnsureVisible(int index, BOOL partialIsEnough)
    {
        return ListView_EnsureVisible(m_hWnd, index, partialIsEnough);
    }
    BOOL Scroll(CSize pixels) { return ListView_Scroll(m_hWnd, pixels.cx, pixels.cy); }
    BOOL RedrawItems(int first, int last) { return ListView_RedrawItems(m_hWnd, first, last); }
    BOOL Update(int index) { return ListView_Update(m_hWnd, index); }
    int GetTopIndex() const { return ListView_GetTopIndex(m_hWnd); }
    int GetCountPerPage() const { return ListView_GetCountPerPage(m_hWnd); }
    int GetStringWidth(LPCWSTR text) const { return ListView_GetStringWidth(m_hWnd, text); }

    // look
    DWORD GetExtendedStyle() const { return ListView_GetExtendedListViewStyle(m_hWnd); }
    /// @return  the former style
    DWORD SetExtendedStyle(DWORD style)
    {
        return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
    }
    COLORREF GetBkColor() const { return ListView_GetBkColor(m_hWnd); }
    BOOL SetBkColor(COLORREF colour) { return ListView_SetBkColor(m_hWnd, colour); }
    COLORREF GetTextColor() const { return ListView_GetTextColor(m_hWnd); }
    BOOL SetTextColor(COLORREF colour) { return ListView_SetTextColor(m_hWnd, colour); }
    COLORREF GetTextBkColor() const { return ListView_GetTextBkColor(m_hWnd); }
    BOOL SetTextBkColor(COLORREF colour) { return ListView_SetTextBkColor(m_hWnd, colour); }
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
