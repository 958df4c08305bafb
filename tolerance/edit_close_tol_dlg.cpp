#include "tolerance/edit_close_tol_dlg.h"

#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "tolerance/focus_keeper.h"

BEGIN_MESSAGE_MAP(CEditCloseTolDlg, CChildDialog)
    ON_CBN_EDITCHANGE(IDC_CLOSING_FIELD, &CEditCloseTolDlg::OnFieldEdited)
    ON_CBN_SELCHANGE(IDC_CLOSING_FIELD, &CEditCloseTolDlg::OnFieldSelected)
    ON_CBN_DROPDOWN(IDC_CLOSING_FIELD, &CEditCloseTolDlg::OnListOpened)
    ON_CBN_CLOSEUP(IDC_CLOSING_FIELD, &CEditCloseTolDlg::OnListClosed)
    ON_BN_CLICKED(IDC_CLOSING_FILTER, &CEditCloseTolDlg::OnFilterClicked)
    ON_BN_CLICKED(IDC_CLOSING_OK, &CEditCloseTolDlg::OnOK)
    ON_BN_CLICKED(IDC_CLOSING_CANCEL, &CEditCloseTolDlg::OnCancel)
END_MESSAGE_MAP()

namespace
{

constexpr ToleranceControls kClosingControls{.nominal = IDC_CLOSING_NOMINAL,
                                             .caption = IDC_CLOSING_CAPTION,
                                             .field = IDC_CLOSING_FIELD,
                                             .filter = IDC_CLOSING_FILTER,
                                             .upperDev = IDC_CLOSING_UPPER_DEV,
                                             .lowerDev = IDC_CLOSING_LOWER_DEV,
                                             .picture = IDC_CLOSING_PICTURE,
                                             .ok = IDC_CLOSING_OK};

}  // namespace

CEditCloseTolDlg::CEditCloseTolDlg(CWnd* parent)
    : CChildDialog(IDD_EDIT_CLOSE_TOL, parent), m_parent(parent),
      m_entry(*this, m_fieldBox, m_filter, m_params, kClosingControls)
{
}

CEditCloseTolDlg::~CEditCloseTolDlg() = default;

void CEditCloseTolDlg::DoDataExchange(CDataExchange* exchange)
{
    CChildDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_CLOSING_FIELD, m_fieldBox);
    DDX_Control(exchange, IDC_CLOSING_FILTER, m_filter);
}

BOOL CEditCloseTolDlg::OnInitDialog()
{
    CChildDialog::OnInitDialog();
    if (!m_entry.Open())
        return FALSE;
    m_entry.EnableInputs(false);
    SetDlgParams(m_params.name, m_params.nominal, m_params.caption, m_params.weightFixed, m_params.tolField,
                 m_params.upperDev, m_params.lowerDev, m_params.dimKind, m_params.increasing);
    return TRUE;
}

void CEditCloseTolDlg::SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed,
                                    CString& tolField, CString& upperDev, CString& lowerDev, int dimKind,
                                    int& increasing)
{
    const CModuleSkin skin(kModuleCalcTol);
    if (!::IsWindow(m_hWnd) || nominal.IsEmpty())
        return;
    // A copy: the arguments may be the record's own fields. Label, weight and direction have no control here.
    const CDimParams loaded{.tolField = tolField,
                            .nominal = nominal,
                            .name = name,
                            .upperDev = upperDev,
                            .lowerDev = lowerDev,
                            .caption = caption,
                            .weightFixed = weightFixed,
                            .increasing = increasing,
                            .dimKind = dimKind};
    const FocusKeeper focus(*this, kClosingControls.ok);
    m_entry.ShowTexts(loaded);
    m_entry.EnableInputs(true);
    if (m_entry.ShowKind(loaded.dimKind))
        m_entry.Store(loaded);
}

void CEditCloseTolDlg::OnFieldEdited()
{
    m_entry.OnFieldEdited();
}

void CEditCloseTolDlg::OnFieldSelected()
{
    m_entry.OnFieldSelected();
}

void CEditCloseTolDlg::OnListOpened()
{
    m_entry.OnListOpened();
}

void CEditCloseTolDlg::OnListClosed()
{
    m_entry.OnListClosed();
}

void CEditCloseTolDlg::OnFilterClicked()
{
    m_entry.OnFilterClicked();
}

// Without a dimension there is nothing to check: the host only learns that the user is done.
void CEditCloseTolDlg::OnOK()
{
    const CModuleSkin skin(kModuleCalcTol);
    m_entry.ReadInputs();
    if (!m_params.nominal.IsEmpty() && !m_entry.AcceptDeviations())
        return;
    if (!m_entry.Report(m_hostWindow, kClosingAccepted))
        return;
    Reset();
    m_entry.End(IDOK);
}

void CEditCloseTolDlg::OnCancel()
{
    const CModuleSkin skin(kModuleCalcTol);
    BeginCancel();
    Reset();
    if (m_entry.Report(m_hostWindow, kChildCancelled))
        m_entry.End(IDCANCEL);
}

void CEditCloseTolDlg::Reset()
{
    const FocusKeeper focus(*this, kClosingControls.ok);
    m_entry.Reset();
}
