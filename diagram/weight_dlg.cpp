#include "diagram/weight_dlg.h"

#include "drawing/kind_bitmap.h"
#include "drawing/link_image.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"

IMPLEMENT_DYNCREATE(CWeightDlg, CDialog)

BEGIN_MESSAGE_MAP(CWeightDlg, CChildDialog)
    // controls
    ON_WM_HSCROLL()
    ON_NOTIFY(kGridFocusMoved, IDC_WEIGHT_LIST, &CWeightDlg::OnFocusMoved)
END_MESSAGE_MAP()

namespace
{

constexpr int kSmallestWeight = 1;
constexpr int kLargestWeight = 10;

constexpr int kImageSize = 16;
constexpr int kImageGrowth = 9;
constexpr COLORREF kTransparent = RGB(255, 0, 255);

constexpr DWORD kListStyles = LVS_EX_GRIDLINES | LVS_EX_HEADERDRAGDROP | LVS_EX_FULLROWSELECT | LVS_EX_TWOCLICKACTIVATE;

enum Column
{
    kNameColumn,
    kNominalColumn,
    kFieldColumn,
    kFixedColumn,
    kWeightColumn
};

struct ColumnDescription
{
    UINT headingId;
    int format;
    int width;  // pixels
};

constexpr ColumnDescription kColumns[] = {{IDS_COLUMN_LINK, LVCFMT_LEFT, 130},
                                          {IDS_COLUMN_NOMINAL, LVCFMT_CENTER, 60},
                                          {IDS_COLUMN_FIELD, LVCFMT_CENTER, 60},
                                          {IDS_COLUMN_WEIGHT_FIXED, LVCFMT_CENTER, 60},
                                          {IDS_COLUMN_WEIGHT, LVCFMT_CENTER, 60}};

CString ResourceText(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

CString WeightText(int weight)
{
    CString text;
    text.Format(L"%d", weight);
    return text;
}

CDimLink* RecordOf(const CFListCtrl::CFListRow& row)
{
    return static_cast<CDimLink*>(row.UserData());
}

}  // namespace

CWeightDlg::CWeightDlg() : CWeightDlg(nullptr, nullptr) {}

CWeightDlg::CWeightDlg(CWnd* parent, const WeightChain* chain) : CChildDialog(IDD_WEIGHT, parent), m_chain(chain) {}

CWeightDlg::~CWeightDlg() = default;

BOOL CWeightDlg::OnInitDialog()
{
    CChildDialog::OnInitDialog();
    const CModuleSkin skin(kModuleCalcTol);
    m_picture.SubclassDlgItem(IDC_WEIGHT_PICTURE, this);
    m_slider.SubclassDlgItem(IDC_WEIGHT_SLIDER, this);
    PrepareList();
    m_chainKey = m_list.AddTopRow(m_list.CreateRow(m_chain != nullptr ? m_chain->ChainText() : CString(), kChainImage));
    FillRows();
    m_list.ExpandRow(m_chainKey);
    m_slider.SetRange(kSmallestWeight, kLargestWeight);
    m_slider.SetPos(kSmallestWeight);
    SelectRow(m_chainKey);
    if (const CFListCtrl::CFListRow* const preselected = PreselectedRow())
        SelectRow(preselected->Key());
    m_list.SetFocus();  // last: who loses the focus may close or delete the dialog
    return FALSE;
}

// The object may be kept much longer than its window.
void CWeightDlg::PostNcDestroy()
{
    m_images.DeleteImageList();
    CChildDialog::PostNcDestroy();
}

void CWeightDlg::PrepareList()
{
    CBitmap images;
    images.LoadBitmap(IDB_CHAIN_IMAGES);
    m_images.Create(kImageSize, kImageSize, ILC_COLOR16 | ILC_MASK, 0, kImageGrowth);
    m_images.Add(&images, kTransparent);

    m_list.SubclassDlgItem(IDC_WEIGHT_LIST, this);
    m_list.SetExtendedStyle(m_list.GetExtendedStyle() | kListStyles);
    m_list.SetImageList(&m_images, LVSIL_SMALL);
    int index = 0;
    for (const ColumnDescription& column : kColumns)
    {
        m_list.InsertFColumn(index, ResourceText(column.headingId), column.format, column.width, index == kNameColumn);
        ++index;
    }
}

void CWeightDlg::FillRows()
{
    if (m_chain == nullptr)
        return;
    for (const WeightLink& link : m_chain->Links())
    {
        const RowKey key = m_list.AddChildRow(m_chainKey, m_list.CreateRow(link.name, link.image, link.record));
        m_list.SetCellText(key, kNominalColumn, link.nominal);
        m_list.SetCellText(key, kFieldColumn, link.tolField);
        m_list.SetCellText(key, kFixedColumn, link.weightFixed);
        m_list.SetCellText(key, kWeightColumn, WeightText(link.record->weight));
    }
}

// Null when no link is to be selected or none has the host object.
const CFListCtrl::CFListRow* CWeightDlg::PreselectedRow() const
{
    const CFListCtrl::CFListRow* const chain = m_list.FindRow(m_chainKey);
    if (m_hostObject == nullptr || chain == nullptr)
        return nullptr;
    for (const CFListCtrl::CFListRow* row = chain->FirstChild(); row != nullptr; row = row->NextSibling())
        if (RecordOf(*row)->hostObject == m_hostObject)
            return row;
    return nullptr;
}

void CWeightDlg::SelectRow(RowKey key)
{
    m_list.MakeCellVisible(key, -1, false);
    m_list.SetFocusRow(key, false);
    OnSelectionChanged(IDC_WEIGHT_LIST, key);
}

void CWeightDlg::OnFocusMoved(NMHDR* header, LRESULT* result)
{
    OnSelectionChanged(IDC_WEIGHT_LIST, reinterpret_cast<const NMFLISTCTRL*>(header)->rowKey);
    *result = 0;
}

void CWeightDlg::OnSelectionChanged(int gridId, void* rowKey)
{
    const CModuleSkin skin(kModuleCalcTol);
    const CFListCtrl::CFListRow* const row = m_list.FindRow(rowKey);
    if (gridId != IDC_WEIGHT_LIST || row == nullptr)
        return;
    if (rowKey == m_chainKey)
        ShowChain();
    else
        ShowLink(*row);
}

void CWeightDlg::ShowChain()
{
    m_picture.ShowWindow(SW_HIDE);
    SetDlgItemText(IDC_WEIGHT_NAME, L"");
    SetDlgItemText(IDC_WEIGHT_VALUE, L"");
    m_slider.SetPos(kSmallestWeight);
    EnableSlider(false);
}

void CWeightDlg::ShowLink(const CFListCtrl::CFListRow& row)
{
    SetDlgItemText(IDC_WEIGHT_NAME, row.Text(kNameColumn));
    m_picture.ShowWindow(SW_SHOWNA);
    m_picture.ShowBitmap(KindBitmap(KindOfLinkImage(row.Image(kNameColumn))));
    SetDlgItemText(IDC_WEIGHT_VALUE, row.Text(kWeightColumn));

    // A text that is neither of the two leaves the slider as it is.
    const CString& fixed = row.Text(kFixedColumn);
    const bool isFixed = fixed == ResourceText(IDS_WEIGHT_FIXED_YES);
    if (!isFixed && fixed != ResourceText(IDS_WEIGHT_FIXED_NO))
        return;
    m_slider.SetPos(::_wtoi(row.Text(kWeightColumn)));
    EnableSlider(!isFixed);
}

// A disabled control must not keep the focus: no key would reach the dialog.
void CWeightDlg::EnableSlider(bool enable)
{
    if (!enable && ::GetFocus() == m_slider.m_hWnd)
        m_list.SetFocus();
    m_slider.EnableWindow(enable ? TRUE : FALSE);
}

// A slider that is moved after the dialog has its result, as by a host that ended it, writes nothing any more.
void CWeightDlg::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    CChildDialog::OnHScroll(code, position, bar);
    if (ContinueModal() && bar != nullptr && bar->m_hWnd == m_slider.m_hWnd)
        OnSliderMoved();
}

// The link takes the new weight at once, so neither way of closing has anything left to do.
void CWeightDlg::OnSliderMoved()
{
    const CFListCtrl::CFListRow* const row = m_list.FocusRow();
    if (row == nullptr || row->Key() == m_chainKey)
        return;
    const int weight = m_slider.GetPos();
    SetDlgItemText(IDC_WEIGHT_VALUE, WeightText(weight));
    m_list.SetCellText(row->Key(), kWeightColumn, WeightText(weight));
    RecordOf(*row)->weight = weight;
}

void CWeightDlg::ForgetLink(const CDimLink* record)
{
    const CFListCtrl::CFListRow* const chain = m_list.FindRow(m_chainKey);
    if (chain == nullptr)
        return;
    const CFListCtrl::CFListRow* row = chain->FirstChild();
    while (row != nullptr && RecordOf(*row) != record)
        row = row->NextSibling();
    if (row == nullptr)
        return;
    m_list.DeleteRow(row->Key());
    OnSelectionChanged(IDC_WEIGHT_LIST, m_list.FocusKey());
}
