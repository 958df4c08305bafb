#include "tolerance/edit_tol_dlg.h"

#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "tolerance/focus_keeper.h"

BEGIN_MESSAGE_MAP(CEditTolDlg, CChildDialog)
    ON_CBN_EDITCHANGE(IDC_LINK_FIELD, &CEditTolDlg::OnFieldEdited)
    ON_CBN_SELCHANGE(IDC_LINK_FIELD, &CEditTolDlg::OnFieldSelected)
    ON_CBN_DROPDOWN(IDC_LINK_FIELD, &CEditTolDlg::OnListOpened)
    ON_CBN_CLOSEUP(IDC_LINK_FIELD, &CEditTolDlg::OnListClosed)
    ON_BN_CLICKED(IDC_LINK_FILTER, &CEditTolDlg::OnFilterClicked)
    ON_BN_CLICKED(IDC_LINK_APPLY, &CEditTolDlg::OnApply)
    ON_BN_CLICKED(IDC_LINK_OK, &CEditTolDlg::OnOK)
    ON_BN_CLICKED(IDC_LINK_CANCEL, &CEditTolDlg::OnCancel)
END_MESSAGE_MAP()

namespace
{

constexpr ToleranceControls kLinkControls{.nominal = IDC_LINK_NOMINAL,
                                          .caption = IDC_LINK_CAPTION,
                                          .field = IDC_LINK_FIELD,
                                          .filter = IDC_LINK_FILTER,
                                          .upperDev = IDC_LINK_UPPER_DEV,
                                          .lowerDev = IDC_LINK_LOWER_DEV,
                                          .picture = IDC_LINK_PICTURE,
                                          .ok = IDC_LINK_OK};

// Entries of the direction box.
constexpr int kIncreasing = 0;
constexpr int kDecreasing = 1;

}  // namespace

CEditTolDlg::CEditTolDlg(CWnd* parent)
    : CChildDialog(IDD_EDIT_TOL, parent), m_parent(parent),
      m_entry(*this, m_fieldBox, m_filter, m_params, kLinkControls)
{
}

CEditTolDlg::~CEditTolDlg() = default;

void CEditTolDlg::DoDataExchange(CDataExchange* exchange)
{
    CChildDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_LINK_FIELD, m_fieldBox);
    DDX_Control(exchange, IDC_LINK_FILTER, m_filter);
}

BOOL CEditTolDlg::OnInitDialog()
{
    CChildDialog::OnInitDialog();
    const CModuleSkin skin(kModuleCalcTol);
    m_direction = std::make_unique<CComboBox>();
    m_direction->SubclassDlgItem(IDC_LINK_DIRECTION, this);
    AddDirection(IDS_INCREASING);
    AddDirection(IDS_DECREASING);
    m_direction->SetCurSel(kIncreasing);
    if (!m_entry.Open())
        return FALSE;
    EnableLinkInputs(false);
    m_entry.EnableInputs(false);
    SetDlgParams(m_params.name, m_params.nominal, m_params.caption, m_params.weightFixed, m_params.tolField,
                 m_params.upperDev, m_params.lowerDev, m_params.dimKind, m_params.increasing);
    EnableApply(false);  // there is a next dimension only when the host loads one
    return TRUE;
}

void CEditTolDlg::AddDirection(UINT textId)
{
    CString text;
    text.LoadString(textId);
    m_direction->SetItemData(m_direction->AddString(text), textId);
}

void CEditTolDlg::SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                               CString& upperDev, CString& lowerDev, int dimKind, int& increasing)
{
    const CModuleSkin skin(kModuleCalcTol);
    if (!::IsWindow(m_hWnd) || nominal.IsEmpty())
        return;
    // A copy: the arguments may be the record's own fields.
    const CDimParams loaded{.tolField = tolField,
                            .nominal = nominal,
                            .name = name,
                            .upperDev = upperDev,
                            .lowerDev = lowerDev,
                            .caption = caption,
                            .weightFixed = weightFixed,
                            .increasing = increasing,
                            .dimKind = dimKind};
    const FocusKeeper focus(*this, kLinkControls.ok);
    SetDlgItemText(IDC_LINK_NAME, loaded.name);
    m_entry.ShowTexts(loaded);
    EnableLinkInputs(true);
    m_entry.EnableInputs(true);
    EnableApply(true);
    m_direction->SetCurSel(loaded.increasing != 0 ? kIncreasing : kDecreasing);
    if (!m_entry.ShowKind(loaded.dimKind))
        return;
    CheckDlgButton(IDC_LINK_WEIGHT_FIXED, loaded.weightFixed != 0 ? BST_CHECKED : BST_UNCHECKED);
    m_entry.Store(loaded);
}

void CEditTolDlg::EnableLinkInputs(bool enable)
{
    for (const int control : {IDC_LINK_NAME, IDC_LINK_WEIGHT_FIXED, IDC_LINK_DIRECTION})
        ::EnableWindow(::GetDlgItem(m_hWnd, control), enable ? TRUE : FALSE);
}

void CEditTolDlg::EnableApply(bool enable)
{
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_LINK_APPLY), enable ? TRUE : FALSE);
}

void CEditTolDlg::OnFieldEdited()
{
    m_entry.OnFieldEdited();
}

void CEditTolDlg::OnFieldSelected()
{
    m_entry.OnFieldSelected();
}

void CEditTolDlg::OnListOpened()
{
    m_entry.OnListOpened();
}

void CEditTolDlg::OnListClosed()
{
    m_entry.OnListClosed();
}

void CEditTolDlg::OnFilterClicked()
{
    m_entry.OnFilterClicked();
}

void CEditTolDlg::OnApply()
{
    const CModuleSkin skin(kModuleCalcTol);
    ReadName();
    if (!AcceptInputs() || !m_entry.Report(m_hostWindow, kLinkApplied))
        return;
    Reset();
}

// Without a dimension there is nothing to check: the host only learns that the user is done.
void CEditTolDlg::OnOK()
{
    const CModuleSkin skin(kModuleCalcTol);
    ReadName();
    m_entry.ReadInputs();
    if (!m_params.nominal.IsEmpty() && !AcceptInputs())
        return;
    if (!m_entry.Report(m_hostWindow, kLinkAccepted))
        return;
    Reset();
    m_entry.End(IDOK);
}

void CEditTolDlg::OnCancel()
{
    const CModuleSkin skin(kModuleCalcTol);
    BeginCancel();
    Reset();
    if (m_entry.Report(m_hostWindow, kChildCancelled))
        m_entry.End(IDCANCEL);
}

void CEditTolDlg::ReadName()
{
    GetDlgItemText(IDC_LINK_NAME, m_params.name);
}

// What was read into the record stays there when it is refused.
bool CEditTolDlg::AcceptInputs()
{
    if (m_params.name.IsEmpty())
    {
        AfxMessageBox(static_cast<UINT>(IDS_NAME_MISSING), MB_OK);
        return false;
    }
    m_entry.ReadInputs();
    if (!m_entry.AcceptDeviations())
        return false;
    m_params.weightFixed = IsDlgButtonChecked(IDC_LINK_WEIGHT_FIXED) == BST_CHECKED ? 1 : 0;
    if (const int selected = m_direction->GetCurSel(); selected != CB_ERR)
        m_params.increasing = m_direction->GetItemData(selected) == IDS_INCREASING ? 1 : 0;
    return true;
}

void CEditTolDlg::Reset()
{
    const FocusKeeper focus(*this, kLinkControls.ok);
    m_entry.Reset();
    if (!::IsWindow(m_hWnd))
        return;
    EnableApply(false);
    SetDlgItemText(IDC_LINK_NAME, m_params.name);
    CheckDlgButton(IDC_LINK_WEIGHT_FIXED, BST_UNCHECKED);
    EnableLinkInputs(false);
}
