#pragma once

#include <afxwin.h>

#include "diagram/weight_chain.h"
#include "drawing/picture_frame.h"
#include "grid/f_list_ctrl.h"
#include "grid/grid_parent.h"
#include "interface/child_dialog.h"

/// The dialog in which the user gives each link of the chain a weight from 1 to 10 with a slider.
///
/// Each move of the slider is written to the link's record at once; either way of closing keeps it. A link whose weight
/// is fixed shows its weight, but can't be changed.
class CWeightDlg : public CChildDialog, public GridSelectionParent
{
    DECLARE_DYNCREATE(CWeightDlg)

public:
    CWeightDlg();
    /// @param chain  outlives the dialog's window; null for a chain without a text and without links
    CWeightDlg(CWnd* parent, const WeightChain* chain);
    ~CWeightDlg() override;

    /// The link to select when the dialog opens, by its host object; null for the chain as a whole.
    void SetHostObject(void* hostObject) { m_hostObject = hostObject; }

    /// To be called before a link's record is freed: an open dialog takes the link out of its list and never touches
    /// the record again.
    void ForgetLink(const CDimLink* record);

    /// Shows what belongs to a row of the list; ignores other controls and unknown rows.
    void OnSelectionChanged(int gridId, void* rowKey) override;

protected:
    BOOL OnInitDialog() override;
    void PostNcDestroy() override;
    /// Lists the links below the chain row.
    virtual void FillRows();

    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnFocusMoved(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void PrepareList();
    const CFListCtrl::CFListRow* PreselectedRow() const;
    void SelectRow(RowKey key);
    void ShowChain();
    void ShowLink(const CFListCtrl::CFListRow& row);
    void EnableSlider(bool enable);
    void OnSliderMoved();

    CFListCtrl m_list;
    CImageList m_images;
    RowKey m_chainKey = nullptr;
    void* m_hostObject = nullptr;  // of the link to select
    const WeightChain* m_chain;
    CPictureFrame m_picture;
    CSliderCtrl m_slider;
};
