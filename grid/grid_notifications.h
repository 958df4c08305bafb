#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include <cstdint>

/// Identity of a row, unique over all grids of the process and never used again; null is no row.
using RowKey = void*;

/// Codes of the records that a grid sends to its parent with WM_NOTIFY (NMFLISTCTRL, wParam the grid's control ID).
/// Codes without a result here ignore the answer.
constexpr UINT kGridRowExpanded = 1114;   // the children are in the list
constexpr UINT kGridRowCollapsed = 1115;  // the descendants are out of the list
constexpr UINT kGridFocusMoved = 1116;    // to another row or column than was told last
constexpr UINT kGridBeginEdit = 1117;     // text is the current one; a result other than 0 forbids editing
constexpr UINT kGridEndEdit = 1118;       // ended with Enter, text is the new one; 0 lets the grid store it
constexpr UINT kGridListContents = 1121;  // NMFLISTCOMBO; a result other than 0, or no entries, forbids opening
constexpr UINT kGridButtonPressed = 1122;
constexpr UINT kGridEndList = 1124;  // ended with Enter, text and extra are the entry's; 0 lets the grid store it

/// Answer to kGridEndList: nothing is stored and the focus stays where it is.
constexpr LRESULT kGridKeepFocus = -5;

/// Codes of the records that an in-place editor sends to its grid when it closes. The grid is their sender too, so that
/// the framework reflects them to the grid. Text is the editor's, userData the key that ended it (0: none).
constexpr UINT kGridEditClosed = 1119;
constexpr UINT kGridListClosed = 1120;  // extra is the data of the chosen entry, 0 for none
constexpr UINT kGridButtonClosed = 1123;

/// Notification code of the WM_COMMAND message that follows a double click on a row.
constexpr WORD kGridDoubleClick = 2;

/// The record of all notifications above.
struct NMFLISTCTRL
{
    NMHDR hdr{};
    RowKey rowKey = nullptr;
    std::int32_t column = -1;    // the focus column, -1 for none
    std::int32_t collapsed = 0;  // 1 while the row's children are not in the list
    CString text;                // of the cell, or its new value
    LPARAM userData = 0;         // of the row (a pointer); from an editor: the ending key
    std::int32_t extra = 0;
};

/// An entry of an in-place drop-down list.
struct structInPlaceComboItem
{
    CString text;
    std::int32_t value = 0;  // comes back as `extra` when the entry is chosen
};

using InPlaceComboItems = CArray<structInPlaceComboItem, const structInPlaceComboItem&>;

/// The record of kGridListContents: text is the cell's, the parent appends the entries.
struct NMFLISTCOMBO : NMFLISTCTRL
{
    std::int32_t selected = -1;          // entry to select on opening, -1 for none
    InPlaceComboItems* items = nullptr;  // empty; lives until the notification returns
};
