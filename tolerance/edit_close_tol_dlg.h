#pragma once

#include <afxwin.h>

#include "interface/child_dialog.h"
#include "interface/dim_params.h"
#include "tolerance/tol_box.h"
#include "tolerance/tolerance_entry.h"

/// The dialog in which the user sets the required tolerance of the closing link: a tolerance field or two deviations.
///
/// It works like the link tolerance dialog, without label, direction, weight and Apply, and reports kClosingAccepted
/// and kChildCancelled.
class CEditCloseTolDlg : public CChildDialog
{
public:
    explicit CEditCloseTolDlg(CWnd* parent);
    ~CEditCloseTolDlg() override;

    /// The window that gets the reports; to be set before the dialog runs.
    void SetHostWindow(CWnd* hostWindow) { m_hostWindow = hostWindow; }

    /// The edited record. What it holds when the dialog opens is loaded.
    CDimParams& Params() { return m_params; }

    /// Shows a dimension and makes it the edited one. Without a nominal, or without a window, nothing changes.
    void SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                      CString& upperDev, CString& lowerDev, int dimKind, int& increasing);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnFieldEdited();
    afx_msg void OnFieldSelected();
    afx_msg void OnListOpened();
    afx_msg void OnListClosed();
    afx_msg void OnFilterClicked();
    DECLARE_MESSAGE_MAP()

private:
    void Reset();

    CTolBox m_fieldBox;
    CButton m_filter;
    CWnd* m_hostWindow = nullptr;
    CWnd* m_parent;  // kept as the layout of the dialog has it; nothing reads it
    CDimParams m_params;
    ToleranceEntry m_entry;
};
