// The calculation dialog's child dialogs: what opens them, what they get, and what the host reads and writes back.

#include "diagram/weight_dlg.h"
#include "dialog/calc_tol_dlg.h"
#include "dialog/columns.h"
#include "dialog/row_values.h"
#include "dialog/weight_fixed_text.h"
#include "distribution/variable_dlg.h"
#include "drawing/link_image.h"
#include "interface/notify_host.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "tolerance/edit_close_tol_dlg.h"
#include "tolerance/edit_tol_dlg.h"

namespace
{

using Row = CFListCtrl::CFListRow;

CString NominalCaption()
{
    CString text;
    text.LoadString(IDS_NOMINAL_CAPTION);
    return text;
}

CDimParams LinkParams(const Row& row)
{
    return {.tolField = row.Text(kColumnField),
            .nominal = row.Text(kColumnNominal),
            .name = row.Text(kColumnName),
            .upperDev = row.Text(kColumnUpperDev),
            .lowerDev = row.Text(kColumnLowerDev),
            .caption = NominalCaption(),
            .weightFixed = WeightFixedOf(row.Text(kColumnWeightFixed)),
            .increasing = RecordOf(row)->increasing,
            .dimKind = KindOfLinkImage(row.Image(kColumnName))};
}

// The closing link has no label of its own, no weight and no direction.
CDimParams ClosingParams(const Row& row)
{
    return {.tolField = row.Text(kColumnField),
            .nominal = row.Text(kColumnNominal),
            .name = CString(),
            .upperDev = row.Text(kColumnUpperDev),
            .lowerDev = row.Text(kColumnLowerDev),
            .caption = NominalCaption(),
            .weightFixed = 0,
            .increasing = 0,
            .dimKind = row.Item(kColumnName).value};
}

CVariableParams Distribution(const Row& row, const CString& name, std::int32_t dimKind)
{
    const CDimLink& record = *RecordOf(row);
    return {.nominal = row.Text(kColumnNominal),
            .name = name,
            .caption = NominalCaption(),
            .upperDev = row.Text(kColumnUpperDev),
            .lowerDev = row.Text(kColumnLowerDev),
            .dimKind = dimKind,
            .law = record.law,
            .mean = record.mean};
}

template <typename Child>
void DeleteChild(Child*& slot)
{
    Child* const child = slot;
    slot = nullptr;
    if (child != nullptr && ::IsWindow(child->m_hWnd))
        child->DestroyWindow();
    delete child;
}

}  // namespace

// Whether the window that the command was given to is still there afterwards.
bool CCalcTolDlg::Notify(HostNotification code)
{
    const LifetimeWatch watch(m_windowLife);
    NotifyHost(m_hostWindow, code);
    return !watch.IsOver();
}

// One of a kind: a child that runs ends when the next one takes its place. Its end enables and activates the host's
// windows, so that the rows may be others afterwards; null when the dialog's window is gone.
template <typename Child, typename... Arguments>
Child* CCalcTolDlg::Renew(Child*& slot, Arguments... arguments)
{
    const LifetimeWatch watch(m_windowLife);
    do
    {
        DeleteChild(slot);
        if (watch.IsOver())
            return nullptr;
    } while (slot != nullptr);  // the host may have opened another one meanwhile
    slot = new Child(this, arguments...);
    return slot;
}

// Runs a child dialog and, when the user ended it, brings this dialog back to the front and the keyboard to the host.
// Afterwards the child may be gone. Nothing when there is nothing left to do: the host ended the child, or this dialog.
std::optional<INT_PTR> CCalcTolDlg::RunChild(CDialog& child)
{
    const LifetimeWatch watch(m_windowLife);
    const INT_PTR result = child.DoModal();
    if (watch.IsOver() || result == kEndedByHost)
        return std::nullopt;
    if (result == IDOK || result == IDCANCEL)
    {
        SetActiveWindow();
        if (CWnd* const mainWindow = AfxGetMainWnd())
            mainWindow->SetFocus();
    }
    return watch.IsOver() ? std::nullopt : std::optional(result);
}

void CCalcTolDlg::RunEdit(CDialog& child)
{
    if (RunChild(child))
        Repaint();
}

void CCalcTolDlg::OnCreateDimChain()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (!Notify(kLinkBegins))
        return;
    CEditTolDlg* const child = Renew(m_editTolDlg);
    if (child == nullptr)
        return;
    child->SetHostWindow(m_hostWindow);
    const std::optional<INT_PTR> result = RunChild(*child);
    if (!result)
        return;
    if (*result == IDOK || (*result == IDCANCEL && HasLinks()))
        ShowChain();
    Repaint();
}

void CCalcTolDlg::OnCreateCloseDimChain()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (!Notify(kClosingBegins))
        return;
    CEditCloseTolDlg* const child = Renew(m_editCloseTolDlg);
    if (child == nullptr)
        return;
    child->SetHostWindow(m_hostWindow);
    const std::optional<INT_PTR> result = RunChild(*child);
    if (!result)
        return;
    if (*result == IDOK)
        m_closingList.SetFocusRow(m_closingRow, false);
    Repaint();
}

void CCalcTolDlg::OnEditDimChain()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (FocusLink() == nullptr || !Notify(kEditBegins))
        return;
    CEditTolDlg* const child = Renew(m_editTolDlg);
    const Row* const link = child != nullptr ? FocusLink() : nullptr;
    if (link == nullptr)
        return;
    child->SetHostWindow(m_hostWindow);
    child->Params() = LinkParams(*link);
    RunEdit(*child);
}

void CCalcTolDlg::OnEditCloseDimChain()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (!Notify(kEditBegins))
        return;
    CEditCloseTolDlg* const child = Renew(m_editCloseTolDlg);
    if (child == nullptr)
        return;
    child->SetHostWindow(m_hostWindow);
    child->Params() = ClosingParams(*ClosingRow());
    RunEdit(*child);
}

void CCalcTolDlg::OnVariableEditDimChain()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (FocusLink() == nullptr)
        return;
    CVariableDlg* const child = Renew(m_variableDlg);
    const Row* const link = child != nullptr ? FocusLink() : nullptr;
    if (link == nullptr)
        return;
    child->Params() = Distribution(*link, link->Text(kColumnName), KindOfLinkImage(link->Image(kColumnName)));
    RunDistribution(*child, kLinkBegins);
}

void CCalcTolDlg::OnVariableCloseEditDimChain()
{
    const CModuleSkin skin(kModuleCalcTol);
    if (ClosingRecord() == nullptr)
        return;
    CVariableDlg* const child = Renew(m_variableDlg);
    if (child == nullptr || ClosingRecord() == nullptr)
        return;
    child->Params() = Distribution(*ClosingRow(), L"X", ClosingRow()->Item(kColumnName).value);
    RunDistribution(*child, kClosingBegins);
}

void CCalcTolDlg::RunDistribution(CVariableDlg& child, HostNotification code)
{
    child.SetHostWindow(m_hostWindow);
    const LifetimeWatch watch = child.Watch();
    if (!Notify(code))
        return;
    if (watch.IsOver())  // the host had another one opened meanwhile
        Repaint();
    else
        RunEdit(child);
}

void CCalcTolDlg::OnEditWeightDimChain()
{
    if (const Row* const link = FocusLink())
        RunWeights(RecordOf(*link)->hostObject);
}

void CCalcTolDlg::OnWeightDimChain()
{
    RunWeights(nullptr);
}

void CCalcTolDlg::RunWeights(void* hostObject)
{
    const CModuleSkin skin(kModuleCalcTol);
    CWeightDlg* const child = Renew(m_weightDlg, static_cast<const WeightChain*>(this));
    if (child == nullptr)
        return;
    child->SetHostObject(hostObject);
    RunEdit(*child);
}

CString CCalcTolDlg::ChainText() const
{
    return ChainRow()->Text(kColumnName);
}

std::vector<WeightLink> CCalcTolDlg::Links() const
{
    std::vector<WeightLink> links;
    for (const Row* link = ChainRow()->FirstChild(); link != nullptr; link = link->NextSibling())
        links.push_back({.name = link->Text(kColumnName),
                         .image = link->Image(kColumnName),
                         .nominal = link->Text(kColumnNominal),
                         .tolField = link->Text(kColumnField),
                         .weightFixed = link->Text(kColumnWeightFixed),
                         .record = RecordOf(*link)});
    return links;
}

// Inside the notification that precedes a dialog there may be none yet.
void CCalcTolDlg::SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                               CString& upperDev, CString& lowerDev, int dimKind, int& increasing)
{
    if (m_editTolDlg != nullptr)
        m_editTolDlg->SetDlgParams(name, nominal, caption, weightFixed, tolField, upperDev, lowerDev, dimKind,
                                   increasing);
}

void CCalcTolDlg::SetCloseDimDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed,
                                       CString& tolField, CString& upperDev, CString& lowerDev, int dimKind,
                                       int& increasing)
{
    if (m_editCloseTolDlg != nullptr)
        m_editCloseTolDlg->SetDlgParams(name, nominal, caption, weightFixed, tolField, upperDev, lowerDev, dimKind,
                                        increasing);
}

void CCalcTolDlg::GetDimDlgParams(CDimParams& params)
{
    if (m_editTolDlg != nullptr)
        params = m_editTolDlg->Params();
}

void CCalcTolDlg::GetCloseDimDlgParams(CDimParams& params)
{
    if (m_editCloseTolDlg != nullptr)
        params = m_editCloseTolDlg->Params();
}

void CCalcTolDlg::GetVariableDlgParams(CVariableParams& params)
{
    if (m_variableDlg != nullptr)
        params = m_variableDlg->Params();
}

// The nominal column stays as it is, although the mean comes from the given nominal.
void CCalcTolDlg::SetCurrentFRowData(CDimParams& params)
{
    const CModuleSkin skin(kModuleCalcTol);
    const Row* const link = FocusLink();
    if (link == nullptr)
        return;
    // The list tells the dialog of changed texts: the link may be gone after the first.
    RecordOf(*link)->increasing = params.increasing;
    RecordOf(*link)->mean = MeanOf(params);
    const RowKey key = link->Key();
    m_chainList.SetCellText(key, kColumnName, params.name);
    m_chainList.SetCellText(key, kColumnField, params.tolField);
    m_chainList.SetCellText(key, kColumnUpperDev, params.upperDev);
    m_chainList.SetCellText(key, kColumnLowerDev, params.lowerDev);
    m_chainList.SetCellText(key, kColumnWeightFixed, WeightFixedText(params.weightFixed));
}

// Without a closing link nothing is written: the row would show one that no command finds.
void CCalcTolDlg::SetCloseFRowData(CDimParams& params)
{
    CDimLink* const record = ClosingRecord();
    if (record == nullptr)
        return;
    SetClosingTexts(params);
    ClosingRow()->Item(kColumnName).value = params.dimKind;
    record->mean = MeanOf(params);
}

void CCalcTolDlg::SetVariableFRowData(CVariableParams& params)
{
    if (const Row* const link = FocusLink())
    {
        RecordOf(*link)->law = params.law;
        RecordOf(*link)->mean = params.mean;
    }
}

void CCalcTolDlg::SetVariableCloseFRowData(CVariableParams& params)
{
    if (CDimLink* const record = ClosingRecord())
    {
        record->law = params.law;
        record->mean = params.mean;
    }
}
