#include "controls/list_ctrl.h"

#include "window/control_class.h"
#include "window/window_message_map.h"

IMPLEMENT_DYNCREATE(CListCtrl, CWnd)

namespace
{
const ControlClass listClass(WC_LISTVIEW, RUNTIME_CLASS(CListCtrl));
}

CListCtrl::CListCtrl() = default;
CListCtrl::~CListCtrl() = default;

BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LISTVIEW, nullptr, style, rect, parent, id);
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    *result = TRUE;
    return TRUE;
}

void CListCtrl::OnDestroy()
{
    for (const int kind : {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE})
    {
        if (CImageList::FromHandlePermanent(ListView_GetImageList(m_hWnd, kind)) != nullptr)
            ListView_SetImageList(m_hWnd, nullptr, kind);
    }
    CWnd::OnDestroy();
}

int CListCtrl::InsertColumn(int column, LPCWSTR heading, int format, int width, int subItem)
{
    LVCOLUMN description = {};
    description.mask = LVCF_TEXT | LVCF_FMT;
    description.pszText = const_cast<LPWSTR>(heading);  // only read
    description.fmt = format;
    if (width != -1)
    {
        description.mask |= LVCF_WIDTH;
        description.cx = width;
    }
    if (subItem != -1)
    {
        description.mask |= LVCF_SUBITEM;
        description.iSubItem = subItem;
    }
    return InsertColumn(column, &description);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT order, int count) const
{
    const int columns = count == -1 ? Header_GetItemCount(ListView_GetHeader(m_hWnd)) : count;
    return ListView_GetColumnOrderArray(m_hWnd, columns, order);
}

int CListCtrl::InsertItem(int index, LPCWSTR text)
{
    LVITEM item = {};
    item.mask = LVIF_TEXT;
    item.iItem = index;
    item.pszText = const_cast<LPWSTR>(text);  // only read
    return InsertItem(&item);
}

int CListCtrl::InsertItem(int index, LPCWSTR text, int image)
{
    LVITEM item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = index;
    item.pszText = const_cast<LPWSTR>(text);  // only read
    item.iImage = image;
    return InsertItem(&item);
}

int CListCtrl::GetItemText(int index, int subItem, LPWSTR buffer, int capacity) const
{
    LVITEM item = {};
    item.iSubItem = subItem;
    item.pszText = buffer;
    item.cchTextMax = capacity;
    return static_cast<int>(SendMessage(LVM_GETITEMTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
}

CString CListCtrl::GetItemText(int index, int subItem) const
{
    CString text;
    int capacity = 128;
    int length = 0;
    do  // the control never says how long a text is, only how much it copied
    {
        capacity *= 2;
        length = GetItemText(index, subItem, text.GetBuffer(capacity), capacity);
        text.ReleaseBuffer(length);
    } while (length == capacity - 1);
    return text;
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCWSTR text)
{
    LVITEM item = {};
    item.iSubItem = subItem;
    item.pszText = const_cast<LPWSTR>(text);  // only read
    return static_cast<BOOL>(SendMessage(LVM_SETITEMTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
}

DWORD_PTR CListCtrl::GetItemData(int index) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    ListView_GetItem(m_hWnd, &item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT code) const
{
    rect->left = static_cast<LONG>(code);
    return static_cast<BOOL>(SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

CImageList* CListCtrl::SetImageList(CImageList* images, int kind)
{
    return CImageList::FromHandle(ListView_SetImageList(m_hWnd, HandleOf(images), kind));
}

CImageList* CListCtrl::GetImageList(int kind) const
{
    return CImageList::FromHandle(ListView_GetImageList(m_hWnd, kind));
}
