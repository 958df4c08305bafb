#pragma once

#include "grid/editor_report.h"

#include <afxwin.h>

/// The button at the right end of a button cell. Made with new by the grid, its parent; deletes itself with its window,
/// which goes when it loses the focus.
class CInPlaceButton : public CButton
{
public:
    CInPlaceButton(RowKey rowKey, std::int32_t column, LPCTSTR caption);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnNcDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    EditedCell m_cell;
    CString m_caption;
    bool m_pressed = false;  // the left button went down on it and is held
};
