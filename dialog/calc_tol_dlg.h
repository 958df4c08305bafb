#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <afxcmn.h>
#include <afxwin.h>

#include "diagram/weight_chain.h"
#include "dialog/menu_states.h"
#include "drawing/picture_frame.h"
#include "grid/f_list_ctrl.h"
#include "grid/grid_parent.h"
#include "interface/calc_tol_dlg_base.h"
#include "interface/dim_link.h"
#include "interface/notifications.h"
#include "platform/lifetime/lifetime.h"

class CEditTolDlg;
class CEditCloseTolDlg;
class CVariableDlg;
class CWeightDlg;
struct ChainDiagramInput;

/// The calculation dialog: one dimension chain, its closing link, and the comparison of the computed closing link with
/// the required one.
///
/// The links are the child rows of the chain list's only top row, in chain order; the closing link is the only row of
/// the closing list. Each row's record (CDimLink) is its user data and belongs to this dialog. Records of rows that are
/// still there when the window is destroyed without CancelDialog are lost.
///
/// The child dialogs outlive their windows, because the host may read their records late: each is deleted when the next
/// one of its kind takes its place, and the last ones never are.
///
/// The host may do anything inside a notification, while a child dialog runs and in the messages that its windows get
/// when one opens or goes: also delete this object, or destroy the window and make a new one. A command that was for
/// the former window ends there.
class CALCTOL_API CCalcTolDlg : public CCalcTolDlgBase, public GridEditMenuParent, public WeightChain
{
    DECLARE_DYNCREATE(CCalcTolDlg)

public:
    explicit CCalcTolDlg(CWnd* parent = nullptr);
    ~CCalcTolDlg() override;

    // the host's operations
    BOOL Create(CWnd* parent) override;
    void SetFileName(CString name) override;
    void EndModal() override;
    void SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                      CString& upperDev, CString& lowerDev, int dimKind, int& increasing) override;
    void GetDimDlgParams(CDimParams& params) override;
    void GetVariableDlgParams(CVariableParams& params) override;
    void GetCloseDimDlgParams(CDimParams& params) override;
    void GetArrayObject(CArray<void*, void*>& objects) override;
    void GetCurrentObject(void* hostObject) override;
    void SetCurrentFRowData(CDimParams& params) override;
    void SetVariableFRowData(CVariableParams& params) override;
    void SetVariableCloseFRowData(CVariableParams& params) override;
    void AddToList(void* hostObject) override;
    void AddCloseDimToList(void* hostObject) override;
    void* GetCloseObject() override;
    void SetCloseFRowData(CDimParams& params) override;
    void SetCloseDimDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                              CString& upperDev, CString& lowerDev, int dimKind, int& increasing) override;
    void CancelDialog() override;

    // GridEditMenuParent
    void TrackEditMenu(CPoint screenPoint, int gridId) override;

    // WeightChain
    CString ChainText() const override;
    std::vector<WeightLink> Links() const override;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* exchange) override;

    // window
    afx_msg void OnPaint();
    afx_msg void OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu);
    afx_msg void OnDestroy();
    // method
    afx_msg void OnAnalyticMethod();
    afx_msg void OnProbabilisticMethod();
    // links
    afx_msg void OnCreateDimChain();
    afx_msg void OnEditDimChain();
    afx_msg void OnDeleteDimChain();
    afx_msg void OnDeleteAllDimChain();
    afx_msg void OnVariableEditDimChain();
    afx_msg void OnEditWeightDimChain();
    afx_msg void OnWeightDimChain();
    // closing link
    afx_msg void OnCreateCloseDimChain();
    afx_msg void OnEditCloseDimChain();
    afx_msg void OnDeleteCloseDimChain();
    afx_msg void OnVariableCloseEditDimChain();
    // lists
    afx_msg void OnComboExpand(NMHDR* header, LRESULT* result);
    afx_msg void OnDblclkTolListDim();
    afx_msg void OnDblclkTolBase();
    DECLARE_MESSAGE_MAP()

private:
    using Row = CFListCtrl::CFListRow;

    static constexpr int kEndedByHost = 5;  // result of a child dialog that EndModal ended

    void SetUp();
    void SetUpChainList();
    void SetUpClosingList();
    void SetMethod(std::int32_t method);
    void Repaint();
    ChainDiagramInput DiagramInput();

    // rows; null before the window is there and after it is gone
    Row* ChainRow() const { return m_chainList.FindRow(m_chainRow); }
    Row* ClosingRow() const { return m_closingList.FindRow(m_closingRow); }
    Row* FocusLink() const;
    CDimLink* ClosingRecord() const;
    bool HasLinks() const;
    ChainState State();
    void SetClosingTexts(const CDimParams& params);
    void DeleteLink(const Row& row);
    void DeleteAllLinks();
    void DeleteClosingRecord();
    void ShowChain();

    // child dialogs
    bool Notify(HostNotification code);
    template <typename Child, typename... Arguments>
    Child* Renew(Child*& slot, Arguments... arguments);
    std::optional<INT_PTR> RunChild(CDialog& child);
    void RunEdit(CDialog& child);
    void RunDistribution(CVariableDlg& child, HostNotification code);
    void RunWeights(void* hostObject);

    CFListCtrl m_chainList;
    CFListCtrl m_closingList;
    CImageList m_chainImages;
    CImageList m_closingImages;
    CEditTolDlg* m_editTolDlg = nullptr;
    CEditCloseTolDlg* m_editCloseTolDlg = nullptr;
    CVariableDlg* m_variableDlg = nullptr;
    CWeightDlg* m_weightDlg = nullptr;
    std::int32_t m_calcMethod = 0;
    RowKey m_chainRow = nullptr;
    RowKey m_closingRow = nullptr;
    std::int32_t m_spare = 0;  // part of the object's layout; nothing else uses it
    CWnd* m_hostWindow = nullptr;
    CString m_fileName;
    CPictureFrame m_diagram;
    Lifetime m_windowLife;  // from the window's beginning to its end
};
