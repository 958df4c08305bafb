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

namespace
{
// A position is the row's index plus 1, so that row 0 differs from "none".
POSITION PositionOf(int index)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(index) + 1);
}

int IndexOf(POSITION position)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(position) - 1);
}
}  // namespace

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
    const CHeaderCtrl* header = GetHeaderCtrl();
    const int columns = count == -1 && header != nullptr ? header->GetItemCount() : count;
    return ListView_GetColumnOrderArray(m_hWnd, columns, order);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return static_cast<CHeaderCtrl*>(FromHandle(ListView_GetHeader(m_hWnd)));
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

BOOL CListCtrl::SetItem(int index, int subItem, UINT mask, LPCWSTR text, int image, UINT state, UINT stateMask,
                        LPARAM data)
{
    LVITEM item = {};
    item.mask = mask;
    item.iItem = index;
    item.iSubItem = subItem;
    item.pszText = const_cast<LPWSTR>(text);  // only read
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = data;
    return SetItem(&item);
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

BOOL CListCtrl::SetItemData(int index, DWORD_PTR data)
{
    return SetItem(index, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(data));
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask)
{
    LVITEM item = {};
    item.state = state;
    item.stateMask = mask;
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int index = IndexOf(position);
    position = PositionOf(GetNextItem(index, LVNI_SELECTED));
    return index;
}

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT code) const
{
    rect->left = static_cast<LONG>(code);
    return static_cast<BOOL>(SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int area, CRect& rect) const
{
    rect.left = area;
    rect.top = subItem;
    return static_cast<BOOL>(SendMessage(LVM_GETSUBITEMRECT, static_cast<WPARAM>(index),
                                         reinterpret_cast<LPARAM>(static_cast<LPRECT>(&rect))));
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const
{
    LVHITTESTINFO info = {};
    info.pt = point;
    const int index = HitTest(&info);
    if (flags != nullptr)
        *flags = info.flags;
    return index;
}

CImageList* CListCtrl::SetImageList(CImageList* images, int kind)
{
    return CImageList::FromHandle(ListView_SetImageList(m_hWnd, HandleOf(images), kind));
}

CImageList* CListCtrl::GetImageList(int kind) const
{
    return CImageList::FromHandle(ListView_GetImageList(m_hWnd, kind));
}
