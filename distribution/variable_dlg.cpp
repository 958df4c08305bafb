#include "distribution/variable_dlg.h"

#include "calc/distribution_laws.h"
#include "calc/number_text.h"
#include "distribution/density_plot_layout.h"
#include "distribution/mean_range.h"
#include "distribution/sigma_text.h"
#include "drawing/kind_bitmap.h"
#include "interface/notify_host.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "platform/text/text_encoding.h"

BEGIN_MESSAGE_MAP(CVariableDlg, CChildDialog)
    // window
    ON_WM_PAINT()
    // controls
    ON_BN_CLICKED(IDC_VARIABLE_REDRAW, &CVariableDlg::OnRedraw)
    ON_BN_CLICKED(IDC_VARIABLE_OK, &CVariableDlg::OnOK)
    ON_BN_CLICKED(IDC_VARIABLE_CANCEL, &CVariableDlg::OnCancel)
    ON_CBN_SELCHANGE(IDC_VARIABLE_LAW, &CVariableDlg::OnSelchangeLaw)
END_MESSAGE_MAP()

namespace
{

struct LawEntry
{
    UINT textId;  // also the entry's data
    std::int32_t law;
};

// In the order of the box.
constexpr LawEntry kLaws[] = {
    {IDS_LAW_NORMAL, kNormalLaw}, {IDS_LAW_UNIFORM, kUniformLaw}, {IDS_LAW_TRIANGULAR, kTriangularLaw}};

double Number(const CString& text)
{
    return TextToNumber(ToUtf8(text));
}

std::string ResourceText(UINT id)
{
    CString text;
    text.LoadString(id);
    return ToUtf8(text);
}

}  // namespace

CVariableDlg::CVariableDlg(CWnd* parent) : CChildDialog(IDD_VARIABLE, parent), m_parent(parent) {}

CVariableDlg::~CVariableDlg() = default;

BOOL CVariableDlg::OnInitDialog()
{
    CChildDialog::OnInitDialog();
    const CModuleSkin skin(kModuleCalcTol);
    m_lawBox = std::make_unique<CComboBox>();
    m_lawBox->SubclassDlgItem(IDC_VARIABLE_LAW, this);
    m_plot.SubclassDlgItem(IDC_VARIABLE_PLOT, this);
    m_picture.SubclassDlgItem(IDC_VARIABLE_PICTURE, this);
    m_picture.ShowWindow(SW_HIDE);
    FillLaws();
    m_lawBox->SetCurSel(0);
    UpdateControls();
    return TRUE;
}

void CVariableDlg::FillLaws()
{
    for (const LawEntry& entry : kLaws)
    {
        CString text;
        text.LoadString(entry.textId);
        m_lawBox->SetItemData(m_lawBox->AddString(text), entry.textId);
    }
}

void CVariableDlg::UpdateControls()
{
    if (m_params.nominal.IsEmpty())
        return;
    SetDlgItemText(IDC_VARIABLE_NAME, m_params.name);
    SetDlgItemText(IDC_VARIABLE_NOMINAL, m_params.nominal);
    SetDlgItemText(IDC_VARIABLE_CAPTION, m_params.caption);
    SetDlgItemText(IDC_VARIABLE_MEAN, FromUtf8(NumberText9(m_params.mean)));
    SelectLaw();
    ShowSigma();
    if (m_params.dimKind != 0)
    {
        m_picture.ShowWindow(SW_SHOWNA);
        m_picture.ShowBitmap(KindBitmap(m_params.dimKind));
    }
}

// A law that is none of the three leaves the first entry selected.
void CVariableDlg::SelectLaw()
{
    for (int position = 0; position < static_cast<int>(std::size(kLaws)); ++position)
        if (kLaws[position].law == m_params.law)
            m_lawBox->SetCurSel(position);
}

// Without a selection the law stays as it is.
bool CVariableDlg::TakeSelectedLaw()
{
    const int selected = m_lawBox->GetCurSel();
    if (selected == CB_ERR)
        return false;
    const DWORD_PTR textId = m_lawBox->GetItemData(selected);
    for (const LawEntry& entry : kLaws)
        if (entry.textId == textId)
            m_params.law = entry.law;
    return true;
}

void CVariableDlg::ShowSigma()
{
    const std::string sigma = SigmaText(m_params.law, ToUtf8(m_params.upperDev), ToUtf8(m_params.lowerDev));
    SetDlgItemText(IDC_VARIABLE_SIGMA, FromUtf8(sigma));
}

void CVariableDlg::OnSelchangeLaw()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (TakeSelectedLaw())
        ShowSigma();
    RepaintNow();
}

void CVariableDlg::OnRedraw()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (AcceptMean())
        RepaintNow();
}

void CVariableDlg::RepaintNow()
{
    if (!::IsWindow(m_hWnd))
        return;
    Invalidate();
    UpdateWindow();
}

void CVariableDlg::OnOK()
{
    const CModuleSkin skin(kModuleCalcTol);
    GetDlgItemText(IDC_VARIABLE_NAME, m_params.name);
    if (!AcceptMean())
        return;
    TakeSelectedLaw();
    if (!Report(kDistributionAccepted))
        return;
    Reset();
    if (m_picture.GetSafeHwnd() != nullptr)
        m_picture.ShowWindow(SW_HIDE);
    End(IDOK);
}

// The picture stays, unlike with OK: kept so on purpose.
void CVariableDlg::OnCancel()
{
    const CModuleSkin skin(kModuleCalcTol);
    BeginCancel();
    Reset();
    if (Report(kChildCancelled))
        End(IDCANCEL);
}

// Takes the typed mean into the record when it is one that the link can have. Otherwise the user is told, and the
// dialog may be gone afterwards.
bool CVariableDlg::AcceptMean()
{
    CString typed;
    GetDlgItemText(IDC_VARIABLE_MEAN, typed);
    if (typed.IsEmpty())
    {
        RefuseMean(IDS_MEAN_MISSING);
        return false;
    }
    const double mean = Number(typed);
    if (!IsMeanInsideField(mean, Number(m_params.nominal), Number(m_params.upperDev), Number(m_params.lowerDev)))
    {
        RefuseMean(IDS_MEAN_OUTSIDE_FIELD);
        return false;
    }
    m_params.mean = mean;
    return true;
}

// The focus goes to the field before the message, not after it: the host may end the dialog meanwhile.
void CVariableDlg::RefuseMean(UINT messageId)
{
    GotoDlgCtrl(GetDlgItem(IDC_VARIABLE_MEAN));
    AfxMessageBox(messageId, MB_OK);
}

// False when the dialog is gone: the caller leaves without touching it.
bool CVariableDlg::Report(HostNotification code)
{
    const LifetimeWatch watch(m_lifetime);
    NotifyHost(m_hostWindow, code);
    return !watch.IsOver();
}

void CVariableDlg::Reset()
{
    m_params = CVariableParams{};
    if (!::IsWindow(m_hWnd))
        return;
    for (const int control : {IDC_VARIABLE_NAME, IDC_VARIABLE_NOMINAL, IDC_VARIABLE_CAPTION})
        SetDlgItemText(control, L"");
    SetDlgItemText(IDC_VARIABLE_MEAN, L"0");
}

// A result that the host gave during a report stays.
void CVariableDlg::End(int result)
{
    if (ContinueModal())
        EndDialog(result);
}

// The plot goes into its frame, which keeps it; the dialog's own surface has nothing of it.
void CVariableDlg::OnPaint()
{
    const CPaintDC dc(this);
    const CModuleSkin skin(kModuleCalcTol);
    CRect area;
    m_plot.GetClientRect(&area);
    const DensityPlotInput input{.width = area.Width(),
                                 .height = area.Height(),
                                 .nominalText = ToUtf8(m_params.nominal),
                                 .name = ToUtf8(m_params.name),
                                 .upperDevText = ToUtf8(m_params.upperDev),
                                 .lowerDevText = ToUtf8(m_params.lowerDev),
                                 .law = m_params.law,
                                 .mean = m_params.mean,
                                 .upperWord = ResourceText(IDS_UPPER_LIMIT),
                                 .lowerWord = ResourceText(IDS_LOWER_LIMIT)};
    m_plot.ShowDrawing(LayoutDensityPlot(input));
}
