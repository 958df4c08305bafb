#pragma once

#include <afxcmn.h>

/// A list view whose drawing stages arrive at virtual hooks, one set for each stage of NM_CUSTOMDRAW.
///
/// The answer to a stage asks for post-painting (0x10), for the notifications of the parts (0x20), and skips the
/// default painting (0x04), each as the hooks of that stage said. Colours go into the record as the hooks return them;
/// CLR_DEFAULT leaves the list's own. A font is selected for its item or sub-item and put back at its post-paint stage,
/// or as soon as the default painting is skipped. The order of the hooks is fixed.
class CListCtrlWithCustomDraw : public CListCtrl
{
public:
    CListCtrlWithCustomDraw() = default;

protected:
    // the control, before painting
    virtual bool WantControlDraw();
    virtual bool DrawControl(CDC& dc);  ///< true skips the default painting
    virtual bool WantItemNotify();
    virtual bool WantPostPaintNotify();
    // the control, after painting
    virtual bool WantControlPostDraw();
    virtual void PostDrawControl(CDC& dc);
    // an item, before painting; `state` holds CDIS_... bits, `itemData` the item's data
    virtual CFont* ItemFont(int item, UINT state, LPARAM itemData);
    virtual COLORREF ItemTextColour(int item, UINT state, LPARAM itemData);
    virtual COLORREF ItemBackColour(int item, UINT state, LPARAM itemData);
    virtual bool WantItemDraw();
    virtual bool PaintItem(CDC& dc, int item, UINT state, LPARAM itemData);  ///< true skips the default painting
    virtual bool WantSubItemNotify();
    virtual bool WantItemPostPaintNotify();
    // an item, after painting
    virtual bool WantItemPostDraw();
    virtual void PostPaintItem(CDC& dc, int item, UINT state, LPARAM itemData);
    // a sub-item, before painting
    virtual CFont* SubItemFont(int item, int subItem, UINT state, LPARAM itemData);
    virtual COLORREF SubItemTextColour(int item, int subItem, UINT state, LPARAM itemData);
    virtual COLORREF SubItemBackColour(int item, int subItem, UINT state, LPARAM itemData);
    virtual bool WantSubItemDraw();
    virtual bool PaintSubItem(CDC& dc, int item, int subItem, UINT state, LPARAM itemData);  ///< true skips the default
    virtual bool WantSubItemPostPaintNotify();
    // a sub-item, after painting
    virtual bool WantSubItemPostDraw();
    virtual void PostPaintSubItem(CDC& dc, int item, int subItem, UINT state, LPARAM itemData);

    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    LRESULT OnControlPrePaint(const NMLVCUSTOMDRAW& draw);
    void OnControlPostPaint(const NMLVCUSTOMDRAW& draw);
    LRESULT OnItemPrePaint(NMLVCUSTOMDRAW& draw);
    void OnItemPostPaint(const NMLVCUSTOMDRAW& draw);
    LRESULT OnSubItemPrePaint(NMLVCUSTOMDRAW& draw);
    void OnSubItemPostPaint(const NMLVCUSTOMDRAW& draw);

    HGDIOBJ m_fontBeforeItem = nullptr;     // to be put back after the item; null when none was selected
    HGDIOBJ m_fontBeforeSubItem = nullptr;  // the same for the sub-item
};
