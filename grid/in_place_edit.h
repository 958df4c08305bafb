#pragma once

#include "grid/editor_report.h"

#include <afxwin.h>

/// Edits the text of a cell on its place. Made with new by the grid, its parent; deletes itself with its window, which
/// goes when it loses the focus. A blank can't be typed: Space ends it.
class CInPlaceEdit : public CEdit
{
public:
    /// @param selectAll  else the caret stands behind the text
    CInPlaceEdit(RowKey rowKey, std::int32_t column, LPCTSTR initialText, bool selectAll);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnNcDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    EditedCell m_cell;
    CString m_initialText;
    bool m_selectAll;
};
