#pragma once

#include <memory>

#include <afxwin.h>

#include "interface/child_dialog.h"
#include "interface/dim_params.h"
#include "tolerance/tol_box.h"
#include "tolerance/tolerance_entry.h"

/// The dialog in which the user enters the tolerance of one link: label, tolerance field or deviations, whether its
/// weight is fixed, and its direction.
///
/// It runs modally, but leaves the application's main window usable: the user picks a dimension in the host, which
/// loads it with SetDlgParams. The dialog reports to the host window with kLinkApplied, kLinkAccepted and
/// kChildCancelled; the host reads the record while it handles the message. Afterwards the record is empty again.
///
/// The host may end, destroy or delete the dialog inside a message. Ended that way, it keeps the result it was given.
class CEditTolDlg : public CChildDialog
{
public:
    explicit CEditTolDlg(CWnd* parent);
    ~CEditTolDlg() override;

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
    virtual void OnApply();

    afx_msg void OnFieldEdited();
    afx_msg void OnFieldSelected();
    afx_msg void OnListOpened();
    afx_msg void OnListClosed();
    afx_msg void OnFilterClicked();
    DECLARE_MESSAGE_MAP()

private:
    void AddDirection(UINT textId);
    void EnableLinkInputs(bool enable);
    void EnableApply(bool enable);
    void ReadName();
    bool AcceptInputs();
    void Reset();

    CTolBox m_fieldBox;
    CButton m_filter;
    CWnd* m_hostWindow = nullptr;
    std::unique_ptr<CComboBox> m_direction;  // none before the dialog is initialised
    CWnd* m_parent;                          // kept as the layout of the dialog has it; nothing reads it
    CDimParams m_params;
    ToleranceEntry m_entry;
};
