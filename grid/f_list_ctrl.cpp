#include "grid/f_list_ctrl.h"

namespace
{
constexpr COLORREF kFocusBack = RGB(240, 220, 40);
}  // namespace

BEGIN_MESSAGE_MAP(CFListCtrl, CListCtrlWithCustomDraw)
    // window
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_MESSAGE(WM_MOUSEHWHEEL, &CFListCtrl::OnHorizontalWheel)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    // keyboard
    ON_MESSAGE(WM_GETDLGCODE, &CFListCtrl::OnGetDlgCode)
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_CONTEXTMENU()
    // editors
    ON_NOTIFY_REFLECT(kGridEditClosed, &CFListCtrl::OnEditClosed)
    ON_NOTIFY_REFLECT(kGridListClosed, &CFListCtrl::OnListClosed)
    ON_NOTIFY_REFLECT(kGridButtonClosed, &CFListCtrl::OnButtonClosed)
END_MESSAGE_MAP()

CFListCtrl::CFListCtrl() : m_focusBack(kFocusBack), m_focusText(::GetSysColor(COLOR_WINDOWTEXT)) {}

CFListCtrl::~CFListCtrl()
{
    for (POSITION position = m_topRows.GetHeadPosition(); position != nullptr;)
        delete m_topRows.GetNext(position);
    DeleteColumns();
}

void CFListCtrl::DeleteColumns()
{
    for (int column = 0; column < ColumnCount(); ++column)
        delete m_columns[column];
    m_columns.RemoveAll();
    m_insertedAt.clear();
    m_treeColumn = -1;
}

// A control of a template exists already when the grid is attached to it, so it never sees WM_CREATE here.
void CFListCtrl::PreSubclassWindow()
{
    CListCtrlWithCustomDraw::PreSubclassWindow();
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT);
}

int CFListCtrl::OnCreate(LPCREATESTRUCT create)
{
    const int result = CListCtrlWithCustomDraw::OnCreate(create);
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT);
    return result;
}

void CFListCtrl::OnDestroy()
{
    m_editor = nullptr;  // dies with this window
    m_focusKey = nullptr;
    m_focusColumn = -1;
    while (CFListRow* const row = FirstTopRow())
        DeleteRow(row->Key());
    CListCtrlWithCustomDraw::OnDestroy();
    DeleteColumns();  // a next window begins without any
}

// An open editor stands on its cell's place and closes before that place moves.
void CFListCtrl::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    TakeFocus();
    CListCtrlWithCustomDraw::OnHScroll(code, position, bar);
}

void CFListCtrl::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    TakeFocus();
    CListCtrlWithCustomDraw::OnVScroll(code, position, bar);
}

// Turning the wheel doesn't ask for the focus: only an open editor has to go.
BOOL CFListCtrl::OnMouseWheel(UINT flags, short distance, CPoint screenPoint)
{
    CloseEditor();
    return CListCtrlWithCustomDraw::OnMouseWheel(flags, distance, screenPoint);
}

LRESULT CFListCtrl::OnHorizontalWheel(WPARAM, LPARAM)
{
    CloseEditor();
    return Default();
}

// Without a focus row only the keyboard focus shows, see PaintCell.
void CFListCtrl::OnSetFocus(CWnd* former)
{
    CListCtrlWithCustomDraw::OnSetFocus(former);
    RedrawFocusRow(m_focusKey);
}

void CFListCtrl::OnKillFocus(CWnd* next)
{
    CListCtrlWithCustomDraw::OnKillFocus(next);
    RedrawFocusRow(m_focusKey);
}

// Columns that change their width or their order move the cells too.
BOOL CFListCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    const bool columnsMove = header.code == HDN_ITEMCHANGING || header.code == HDN_BEGINDRAG;
    if (columnsMove && header.hwndFrom == ListView_GetHeader(m_hWnd))
        CloseEditor();
    return CListCtrlWithCustomDraw::OnNotify(wParam, lParam, result);
}

// A grid that its parent destroyed meanwhile has no window: the focus stays where it is.
void CFListCtrl::TakeFocus()
{
    if (m_hWnd != nullptr && ::GetFocus() != m_hWnd)
        SetFocus();
}
