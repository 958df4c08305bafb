#include "grid/cell_text.h"
#include "grid/f_list_ctrl.h"
#include "platform/gdi/scoped_state.h"

#include <algorithm>

namespace
{
constexpr int kExpandedImage = 0;
constexpr int kCollapsedImage = 1;
constexpr int kFrameInset = 2;  // keeps a drawn check box clear of the grid line before it

void DrawImage(CDC& dc, HIMAGELIST images, int image, int left, const CRect& cell)
{
    int width = 0;
    int height = 0;
    if (images != nullptr && ImageList_GetIconSize(images, &width, &height))
        ImageList_Draw(images, image, dc.GetSafeHdc(), left, cell.top + (cell.Height() - height) / 2, ILD_TRANSPARENT);
}

void DrawCheckBox(CDC& dc, HIMAGELIST images, const CFListCtrl::CFListItem& item, int left, const CRect& cell)
{
    const bool checked = item.checked != 0;
    const int image = checked ? item.checkedImage : item.uncheckedImage;
    if (image >= 0)
    {
        DrawImage(dc, images, image, left, cell);
        return;
    }
    const int side = std::min<int>(kCheckBoxSide, cell.Height());
    const int top = cell.top + (cell.Height() - side) / 2;
    CRect box(left + kFrameInset, top, left + kFrameInset + side, top + side);
    dc.DrawFrameControl(&box, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_FLAT | (checked ? DFCS_CHECKED : 0U));
}
}  // namespace

bool CFListCtrl::WantControlDraw()
{
    return true;
}

bool CFListCtrl::WantItemNotify()
{
    return true;
}

bool CFListCtrl::WantItemDraw()
{
    return true;
}

bool CFListCtrl::WantSubItemNotify()
{
    return true;
}

bool CFListCtrl::WantSubItemDraw()
{
    return true;
}

bool CFListCtrl::PaintSubItem(CDC& dc, int item, int subItem, UINT, LPARAM itemData)
{
    const auto* const row = reinterpret_cast<const CFListRow*>(itemData);
    if (row == nullptr || subItem >= row->ItemCount())
        return false;
    PaintCell(dc, ShownCellRect(item, subItem), *row, subItem);
    return true;
}

void CFListCtrl::PaintCell(CDC& dc, const CRect& cell, const CFListRow& row, int column)
{
    const ScopedState state(dc);
    dc.IntersectClipRect(&cell);

    const bool focusRow = row.Key() == m_focusKey;
    const bool focusCell = focusRow && column == m_focusColumn;
    const COLORREF listBack = GetBkColor() != CLR_NONE ? GetBkColor() : ::GetSysColor(COLOR_WINDOW);
    const COLORREF back = focusCell ? m_focusBack : focusRow ? ::GetSysColor(COLOR_HIGHLIGHT) : listBack;
    const COLORREF text = focusCell  ? m_focusText
                          : focusRow ? ::GetSysColor(COLOR_HIGHLIGHTTEXT)
                                     : ::GetSysColor(COLOR_WINDOWTEXT);
    dc.FillSolidRect(&cell, back);
    // A grid without a focus row that has the keyboard shows it on the row that the first key leads to.
    const bool keyboardHere = m_focusKey == nullptr && &row == FirstTopRow() && ::GetFocus() == m_hWnd;
    if (focusRow || keyboardHere)
    {
        // The dotted line is drawn in the DC's colours; black on white inverts every second pixel.
        dc.SetTextColor(RGB(0, 0, 0));
        dc.SetBkColor(RGB(255, 255, 255));
        dc.DrawFocusRect(&cell);
    }

    const CFListItem& item = row.Item(column);
    const CellLayout layout = LayoutCell(cell.left, cell.right, cell.Height(), TraitsOf(row, column));
    const HIMAGELIST images = ListView_GetImageList(m_hWnd, LVSIL_SMALL);
    if (layout.expandLeft)
        DrawImage(dc, images, row.IsExpanded() ? kExpandedImage : kCollapsedImage, *layout.expandLeft, cell);
    if (layout.checkLeft)
        DrawCheckBox(dc, images, item, *layout.checkLeft, cell);
    if (layout.imageLeft)
        DrawImage(dc, images, item.image, *layout.imageLeft, cell);
    PaintText(dc, item.text, CRect(layout.textLeft, cell.top, layout.textRight, cell.bottom), text,
              kCellTextFormat | static_cast<UINT>(Column(column).centred), row.IsBold());
}

void CFListCtrl::PaintText(CDC& dc, const CString& text, CRect area, COLORREF colour, UINT format, bool bold)
{
    CFont boldFont;
    CFont* font = GetFont();
    if (bold && font != nullptr)
    {
        LOGFONT description{};
        font->GetLogFont(&description);
        description.lfWeight = FW_BOLD;
        boldFont.CreateFontIndirect(&description);
        font = &boldFont;
    }
    // The caller's ScopedState doesn't outlive boldFont: the former font is put back here.
    CFont* const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    dc.SetTextColor(colour);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, &area, format);
    if (former != nullptr)
        dc.SelectObject(former);
}
