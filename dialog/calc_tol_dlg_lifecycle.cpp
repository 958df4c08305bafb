// The calculation dialog's window: creation, method, reset, end.

#include "calc/chain_calculation.h"
#include "diagram/weight_dlg.h"
#include "dialog/calc_tol_dlg.h"
#include "dialog/columns.h"
#include "dialog/interface_guard.h"
#include "distribution/variable_dlg.h"
#include "drawing/link_image.h"
#include "interface/notify_host.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "tolerance/edit_close_tol_dlg.h"
#include "tolerance/edit_tol_dlg.h"

namespace
{

constexpr DWORD kListStyles = LVS_EX_GRIDLINES | LVS_EX_HEADERDRAGDROP | LVS_EX_FULLROWSELECT | LVS_EX_TWOCLICKACTIVATE;
constexpr COLORREF kTransparent = RGB(255, 0, 255);
constexpr COLORREF kFocusBack = RGB(240, 220, 40);
constexpr COLORREF kFocusText = RGB(0, 0, 0);  // legible on it in every colour scheme
constexpr int kImageHeight = 16;               // pixels
constexpr int kChainImageWidth = 16;
constexpr int kClosingImageWidth = 25;
constexpr int kImageGrowth = 9;
constexpr int kClosingImage = 0;
constexpr int kNameWidth = 130;  // column widths, pixels
constexpr int kValueWidth = 60;
constexpr int kWeightFixedWidth = 50;

void LoadImages(CImageList& images, int width, int height, UINT bitmapId)
{
    images.DeleteImageList();  // those of a former window
    images.Create(width, height, ILC_COLOR16 | ILC_MASK, 0, kImageGrowth);
    CBitmap bitmap;
    bitmap.LoadBitmap(bitmapId);
    images.Add(&bitmap, kTransparent);
}

void AttachList(CFListCtrl& list, UINT controlId, CWnd& dialog, CImageList& images)
{
    list.SubclassDlgItem(controlId, &dialog);
    list.SetExtendedStyle(list.GetExtendedStyle() | kListStyles);
    list.SetImageList(&images, LVSIL_SMALL);
    list.SetFocusColours(kFocusBack, kFocusText);
}

void AddColumn(CFListCtrl& list, int column, UINT headingId, int width, bool tree = false)
{
    CString heading;
    heading.LoadString(headingId);
    list.InsertFColumn(column, heading, column == kColumnName ? LVCFMT_LEFT : LVCFMT_CENTER, width, tree);
}

// The columns that both lists have.
void AddColumns(CFListCtrl& list, bool tree)
{
    AddColumn(list, kColumnName, IDS_COLUMN_LINK, kNameWidth, tree);
    AddColumn(list, kColumnNominal, IDS_COLUMN_NOMINAL, kValueWidth);
    AddColumn(list, kColumnField, IDS_COLUMN_FIELD, kValueWidth);
    AddColumn(list, kColumnUpperDev, IDS_COLUMN_UPPER_DEV, kValueWidth);
    AddColumn(list, kColumnLowerDev, IDS_COLUMN_LOWER_DEV, kValueWidth);
}

// A result that was given before stands, although the window may still be there.
void EndIfOpen(CDialog* child, int result)
{
    if (child != nullptr && ::IsWindow(child->m_hWnd) && child->ContinueModal())
        child->EndDialog(result);
}

}  // namespace

BOOL CCalcTolDlg::Create(CWnd* parent)
{
    if (m_hWnd != nullptr)
        return FALSE;
    const CModuleSkin skin(kModuleCalcTol);
    m_hostWindow = parent;
    if (!Succeeds([&] { return CDialog::Create(IDD_CALC_TOL, parent) != FALSE; }))
        return FALSE;
    ShowWindow(SW_SHOW);
    return TRUE;
}

void CCalcTolDlg::SetFileName(CString name)
{
    m_fileName = name;
}

// A window that can't be set up goes at once, before it is shown: so its creation has failed.
BOOL CCalcTolDlg::OnInitDialog()
{
    const CModuleSkin skin(kModuleCalcTol);
    const bool complete = Succeeds([this] {
        SetUp();
        return true;
    });
    if (!complete)
        DestroyWindow();
    return complete ? TRUE : FALSE;
}

void CCalcTolDlg::SetUp()
{
    CCalcTolDlgBase::OnInitDialog();
    m_windowLife.Begin();
    m_calcMethod = 0;  // a former window may have left another one
    SetUpChainList();
    SetUpClosingList();
    m_diagram.SubclassDlgItem(IDC_CHAIN_DIAGRAM, this);
}

void CCalcTolDlg::SetUpChainList()
{
    LoadImages(m_chainImages, kChainImageWidth, kImageHeight, IDB_CHAIN_IMAGES);
    AttachList(m_chainList, IDC_CHAIN_LIST, *this, m_chainImages);
    m_chainList.SetRowMode(false);
    AddColumns(m_chainList, true);
    AddColumn(m_chainList, kColumnWeightFixed, IDS_COLUMN_WEIGHT_FIXED, kWeightFixedWidth);
    m_chainRow = m_chainList.AddTopRow(m_chainList.CreateRow(m_fileName, kChainImage));
}

void CCalcTolDlg::SetUpClosingList()
{
    LoadImages(m_closingImages, kClosingImageWidth, kImageHeight, IDB_CLOSING_IMAGES);
    AttachList(m_closingList, IDC_CLOSING_LIST, *this, m_closingImages);
    AddColumns(m_closingList, false);
    m_closingRow = m_closingList.AddTopRow(m_closingList.CreateRow(L"      X", kClosingImage));
    m_closingList.SetCellKind(m_closingRow, kColumnName, kCellCheckBox);
}

// No control is bound to a member.
void CCalcTolDlg::DoDataExchange(CDataExchange* /*exchange*/) {}

void CCalcTolDlg::OnAnalyticMethod()
{
    SetMethod(kAnalyticMethod);
}

void CCalcTolDlg::OnProbabilisticMethod()
{
    SetMethod(kProbabilisticMethod);
}

void CCalcTolDlg::SetMethod(std::int32_t method)
{
    m_calcMethod = method;
    Repaint();
}

void CCalcTolDlg::Repaint()
{
    if (!::IsWindow(m_hWnd))
        return;
    Invalidate(TRUE);
    UpdateWindow();
}

void CCalcTolDlg::EndModal()
{
    EndIfOpen(m_editTolDlg, kEndedByHost);
    EndIfOpen(m_editCloseTolDlg, kEndedByHost);
    EndIfOpen(m_variableDlg, kEndedByHost);
    EndIfOpen(m_weightDlg, kEndedByHost);
}

// Enter must not hide the modeless dialog.
void CCalcTolDlg::OnOK() {}

// The host takes the window away, perhaps inside the notification.
void CCalcTolDlg::OnCancel()
{
    CancelDialog();
    NotifyHost(m_hostWindow, kDialogClosed);
}

void CCalcTolDlg::CancelDialog()
{
    constexpr std::int32_t kNoKind = -1;
    DeleteAllLinks();
    if (Row* const closing = ClosingRow())
    {
        SetClosingTexts({});
        DeleteClosingRecord();
        closing->Item(kColumnName).value = kNoKind;
    }
    m_calcMethod = 0;
}

// Windows takes the children's windows away with this one; their objects stay, see the class.
void CCalcTolDlg::OnDestroy()
{
    m_windowLife.End();
    m_editTolDlg = nullptr;
    m_editCloseTolDlg = nullptr;
    m_variableDlg = nullptr;
    m_weightDlg = nullptr;
    CCalcTolDlgBase::OnDestroy();
}
