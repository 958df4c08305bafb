// The calculation dialog's links and its closing link: adding, reading back, deleting.

#include <memory>

#include "calc/distribution_laws.h"
#include "diagram/weight_dlg.h"
#include "dialog/calc_tol_dlg.h"
#include "dialog/columns.h"
#include "dialog/interface_guard.h"
#include "dialog/row_values.h"
#include "dialog/weight_fixed_text.h"
#include "drawing/link_image.h"
#include "grid/painting_pause.h"
#include "platform/moduleskin/module_skin.h"
#include "tolerance/edit_close_tol_dlg.h"
#include "tolerance/edit_tol_dlg.h"

namespace
{

constexpr std::int32_t kFirstWeight = 1;

std::unique_ptr<CDimLink> NewRecord(void* hostObject, const CDimParams& params)
{
    return std::make_unique<CDimLink>(CDimLink{.hostObject = hostObject,
                                               .weight = kFirstWeight,
                                               .increasing = params.increasing,
                                               .mean = MeanOf(params),
                                               .law = kNormalLaw});
}

}  // namespace

// The link that the commands work on; null when the chain row has the focus, or none.
CFListCtrl::CFListRow* CCalcTolDlg::FocusLink() const
{
    Row* const row = m_chainList.FocusRow();
    return row != nullptr && row->Key() != m_chainRow ? row : nullptr;
}

CDimLink* CCalcTolDlg::ClosingRecord() const
{
    const Row* const row = ClosingRow();
    return row != nullptr ? RecordOf(*row) : nullptr;
}

bool CCalcTolDlg::HasLinks() const
{
    const Row* const chain = ChainRow();
    return chain != nullptr && chain->FirstChild() != nullptr;
}

// The row does not appear before the chain row is expanded: the command that opened the tolerance dialog does that. It
// has its record from the beginning: no link of the chain is without one at any moment.
void CCalcTolDlg::AddToList(void* hostObject)
{
    const CModuleSkin skin(kModuleCalcTol);
    if (m_editTolDlg == nullptr || ChainRow() == nullptr)
        return;
    const CDimParams params = m_editTolDlg->Params();
    std::unique_ptr<CDimLink> record = NewRecord(hostObject, params);
    Row* const row = m_chainList.CreateRow(params.name, LinkImage(params.dimKind), record.get());
    const CDimLink* const owned = record.release();
    const RowKey key = row->Key();
    if (!Succeeds([&] { return m_chainList.AddChildRow(m_chainRow, row) != nullptr; }))
    {
        m_chainList.DeleteRow(key);  // refused by the list; already gone when the window went meanwhile
        delete owned;
        return;
    }
    m_chainList.SetCellText(key, kColumnNominal, params.nominal);
    m_chainList.SetCellText(key, kColumnField, params.tolField);
    m_chainList.SetCellText(key, kColumnUpperDev, params.upperDev);
    m_chainList.SetCellText(key, kColumnLowerDev, params.lowerDev);
    m_chainList.SetCellText(key, kColumnWeightFixed, WeightFixedText(params.weightFixed));
    m_chainList.SetCellKind(key, kColumnWeightFixed, kCellList);
}

// A record that is there already is abandoned, not freed: that is the interface's rule, by which a closing link is
// deleted before the next one is added.
void CCalcTolDlg::AddCloseDimToList(void* hostObject)
{
    Row* const row = ClosingRow();
    if (m_editCloseTolDlg == nullptr || row == nullptr)
        return;
    const CDimParams params = m_editCloseTolDlg->Params();
    SetClosingTexts(params);
    row->SetUserData(NewRecord(hostObject, params).release());
    row->Item(kColumnName).value = params.dimKind;
}

void CCalcTolDlg::SetClosingTexts(const CDimParams& params)
{
    m_closingList.SetCellText(m_closingRow, kColumnNominal, params.nominal);
    m_closingList.SetCellText(m_closingRow, kColumnField, params.tolField);
    m_closingList.SetCellText(m_closingRow, kColumnUpperDev, params.upperDev);
    m_closingList.SetCellText(m_closingRow, kColumnLowerDev, params.lowerDev);
}

void CCalcTolDlg::GetArrayObject(CArray<void*, void*>& objects)
{
    const Row* const chain = ChainRow();
    for (const Row* link = chain != nullptr ? chain->FirstChild() : nullptr; link != nullptr;
         link = link->NextSibling())
        objects.Add(RecordOf(*link)->hostObject);
}

void* CCalcTolDlg::GetCloseObject()
{
    const CDimLink* const record = ClosingRecord();
    return record != nullptr ? record->hostObject : nullptr;
}

// Part of the exported interface without an effect.
void CCalcTolDlg::GetCurrentObject(void* /*hostObject*/) {}

// An editor closes first: the dialog is told that its list has the keyboard again, when nothing is half deleted.
void CCalcTolDlg::OnDeleteDimChain()
{
    m_chainList.CloseEditor();
    const Row* const link = FocusLink();
    if (link == nullptr)
        return;
    DeleteLink(*link);
    Repaint();
}

void CCalcTolDlg::OnDeleteAllDimChain()
{
    DeleteAllLinks();
    Repaint();
}

void CCalcTolDlg::OnDeleteCloseDimChain()
{
    SetClosingTexts({});
    DeleteClosingRecord();
    Repaint();
}

void CCalcTolDlg::DeleteLink(const Row& row)
{
    if (m_weightDlg != nullptr)
        m_weightDlg->ForgetLink(RecordOf(row));
    delete RecordOf(row);
    m_chainList.DeleteRow(row.Key());
}

void CCalcTolDlg::DeleteAllLinks()
{
    m_chainList.CloseEditor();
    const Row* const chain = ChainRow();
    if (chain == nullptr)
        return;
    const PaintingPause pause(m_chainList);
    while (const Row* const link = chain->FirstChild())
        DeleteLink(*link);
}

void CCalcTolDlg::DeleteClosingRecord()
{
    delete ClosingRecord();
    ClosingRow()->SetUserData(nullptr);
}

// What adding a link ends with: all links in sight, the focus on the chain row.
void CCalcTolDlg::ShowChain()
{
    m_chainList.ExpandRow(m_chainRow);
    m_chainList.SetFocusRow(m_chainRow, false);
}
