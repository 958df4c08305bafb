#pragma once

#include "grid/editor_report.h"

#include <afxtempl.h>
#include <afxwin.h>

/// How a drop-down list looks on its cell.
struct InPlaceListLook
{
    COLORREF back = RGB(255, 255, 255);
    COLORREF text = RGB(0, 0, 0);
    std::int32_t centred = 0;  // 1: the text of the closed list is centred
    bool bold = false;
};

/// Chooses the text of a cell from a drop-down list on its place. Made with new by the grid, its parent; deletes itself
/// with its window, which goes when it loses the focus. An entry that is picked from the open list commits at once.
class CInPlaceList : public CComboBox
{
public:
    /// @param entries   copied
    /// @param selected  -1 for none
    CInPlaceList(RowKey rowKey, std::int32_t column, const InPlaceComboItems& entries, std::int32_t selected);

    /// Before the window is made.
    void SetLook(const InPlaceListLook& look) { m_look = look; }
    /// Makes the closed list exactly so high.
    void SetClosedHeight(int height);
    /// Makes the drop-down part at most so high, as many whole entries as fit. The common controls of version 6 show 30
    /// entries whatever height the window was made with; the older ones go by that alone.
    void SetDropDownHeight(int height);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnNcDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg LRESULT OnWheel(WPARAM keysAndDistance, LPARAM screenPoint);
    afx_msg void OnDropDown();
    afx_msg void OnSelChange();
    afx_msg void OnSelEndCancel();
    afx_msg void OnCloseUp();
    DECLARE_MESSAGE_MAP()

private:
    bool Ends(UINT key) const;

    EditedCell m_cell;
    InPlaceComboItems m_entries;
    std::int32_t m_selected;
    InPlaceListLook m_look;
    CFont m_font;
    bool m_cancelled = false;  // the open list is closing without a choice
};
