#pragma once

#include <vector>

#include <afxcmn.h>
#include <afxwin.h>

#include "grid/f_list_ctrl.h"
#include "interface/dim_link.h"

/// One of the dialog's lists as the list view shows it, and the model behind a shown row.
class ListView
{
public:
    explicit ListView(HWND window) : m_window(window) {}

    HWND Window() const { return m_window; }

    int Rows() const;
    CString Text(int row, int column) const;
    std::vector<CString> Texts(int row) const;

    struct Column
    {
        CString heading;
        int format;
        int width;
    };
    std::vector<Column> Columns() const;

    /// Middle of a cell, in client coordinates.
    CPoint CellCentre(int row, int column) const;
    /// A point on the text of column 0, beside the images of tree and kind.
    CPoint NamePoint(int row) const;
    /// The expand image of a top row.
    CPoint ExpandPoint(int row) const;

    // the model
    CFListCtrl& Grid() const;
    CFListCtrl::CFListRow& Row(int row) const;
    CDimLink* Record(int row) const { return static_cast<CDimLink*>(Row(row).UserData()); }
    /// List index of the focus row; -1 when there is none or it is not shown.
    int FocusRow() const;

private:
    HWND m_window;
};
