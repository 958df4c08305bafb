#pragma once

#include "grid/cell_geometry.h"
#include "grid/custom_draw_list_ctrl.h"
#include "grid/grid_notifications.h"
#include "grid/navigation.h"

#include <afxtempl.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

/// Kind of a cell: one of the first four, and kCellCheckBox added for a check box in front of the text.
constexpr std::int32_t kCellText = 0;  // not edited
constexpr std::int32_t kCellEdit = 1;
constexpr std::int32_t kCellList = 2;    // drop-down list, contents by kGridListContents
constexpr std::int32_t kCellButton = 4;  // shows a button while it has the focus
constexpr std::int32_t kCellCheckBox = 8;

/// A report-style list whose rows form a tree, with a focus cell and in-place editors on it.
///
/// Rows, cells and columns are the grid's; the control shows the top rows and, below each expanded row, its children.
/// Everything that happens is told to the parent by the records of grid_notifications.h, synchronously; the parent may
/// change and delete rows meanwhile, but not inside the list view's own LVN_INSERTITEM, LVN_DELETEITEM,
/// LVN_DELETEALLITEMS and LVN_ITEMCHANGING. Image 0 of the small image list marks expanded rows, 1 collapsed ones.
/// Rows are addressed by key; an unknown key is ignored. A column that does not exist raises CInvalidArgException.
/// An open editor closes without commit when a column or a row is added, a row deleted, expanded or collapsed, a cell
/// brought into sight, the focus moved to another cell, or the row mode set.
class CFListCtrl : public CListCtrlWithCustomDraw
{
public:
    class CFListColumn;
    class CFListItem;
    class CFListRow;

    CFListCtrl();
    ~CFListCtrl() override;

    // columns
    /// @param format  LVCFMT_...; only whether it is LVCFMT_CENTER matters to the cells, the header takes it whole
    /// @param tree    the column carries indentation and expand images; the last one inserted so is the tree column
    /// @return        the index; -1 for a grid that its parent destroys meanwhile
    int InsertFColumn(int index, LPCTSTR heading, int format, int width, bool tree);
    int ColumnCount() const { return static_cast<int>(m_columns.GetSize()); }
    CFListColumn& Column(int column) const { return *m_columns[column]; }
    int TreeColumn() const { return m_treeColumn; }  ///< -1 for none

    // rows
    /// A row of no place yet with one cell for each column, the first with `text` and `image` (negative: none). The
    /// caller's until it is added.
    CFListRow* CreateRow(LPCTSTR text, int image, void* userData = nullptr);
    /// Each takes the row over and makes it the last of the top rows, or of the parent's children. A top row is shown
    /// at once, a child when its parent is expanded and shown. An unknown parent row, or
    /// a grid that is destroyed while its open editor closes: the row is deleted, the result null.
    RowKey AddTopRow(CFListRow* row);
    RowKey AddChildRow(RowKey parent, CFListRow* row);
    /// Deletes the row and all below it. A focus row among them hands the focus silently to the next sibling, else the
    /// previous, else the parent.
    void DeleteRow(RowKey key);
    CFListRow* FindRow(RowKey key) const;  ///< null for an unknown key
    CFListRow* FirstTopRow() const;        ///< null when there is none
    /// All rows of the model, shown or not.
    int RowCount() const { return static_cast<int>(m_rowsByKey.size()); }
    /// The row shown at a list index, null outside.
    CFListRow* RowAtIndex(int index) const;
    /// Shows the children, when the row is collapsed, shown and has some; then kGridRowExpanded.
    void ExpandRow(RowKey key);
    /// Takes the descendants out of the list, when the row is expanded and has some; then kGridRowCollapsed. A focus
    /// row among them hands the focus to this row.
    void CollapseRow(RowKey key);

    // cells: the model always changes, the screen when the row is shown
    void SetCellText(RowKey key, int column, LPCTSTR text);
    void SetCellImage(RowKey key, int column, int image);
    void SetCellKind(RowKey key, int column, std::int32_t kind);
    void SetCellChecked(RowKey key, int column, bool checked);
    /// Images of the check box; negative: a drawn box.
    void SetCheckImages(RowKey key, int column, int checkedImage, int uncheckedImage);
    void SetRowBold(RowKey key, bool bold);
    std::int32_t CellKind(RowKey key, int column) const;  ///< kCellText for an unknown key

    // focus
    /// Makes a cell the focus cell and opens its editor at once if it is a drop-down list or a button.
    /// @param key     null for no focus
    /// @param column  -1, and any in row mode, for the row as a whole: column 0 outside row mode
    /// @param notify  send kGridFocusMoved when row or column differ from those told last
    void SetFocusCell(RowKey key, int column, bool notify);
    void SetFocusRow(RowKey key, bool notify) { SetFocusCell(key, -1, notify); }
    CFListRow* FocusRow() const { return FindRow(m_focusKey); }  ///< null for none
    RowKey FocusKey() const { return m_focusKey; }
    int FocusColumn() const { return m_focusColumn; }  ///< -1 for none
    /// Whole rows instead of cells: no focus cell, no editors. On in a new grid.
    void SetRowMode(bool rowMode);
    bool RowMode() const { return m_rowMode; }
    void SetFocusColours(COLORREF back, COLORREF text);
    /// Closes an open editor even when the cell is in sight already.
    /// @param partial  a partly visible row is enough, and the column doesn't matter
    void MakeCellVisible(RowKey key, int column, bool partial);

    // geometry, client coordinates of the grid
    /// The cell's rectangle as it is shown now (also outside the client area); empty when the row isn't shown.
    CRect GetCellRect(RowKey key, int column) const;
    struct CellHit
    {
        int index;   // in the list
        int column;  // by its index, wherever the header shows it
    };
    std::optional<CellHit> CellAt(CPoint point) const;

    // editors
    /// Opens the editor that the focus cell's kind asks for. False when none opens: row mode, text cell, veto, or the
    /// keyboard focus can't be taken, as while another editor closes.
    bool OpenEditor();
    bool HasEditor() const { return m_editor != nullptr; }
    /// Closes an open editor without commit.
    void CloseEditor();

protected:
    bool WantControlDraw() override;
    bool WantItemNotify() override;
    bool WantItemDraw() override;
    bool WantSubItemNotify() override;
    bool WantSubItemDraw() override;
    bool PaintSubItem(CDC& dc, int item, int subItem, UINT state, LPARAM itemData) override;

    void PreSubclassWindow() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    // window
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short distance, CPoint screenPoint);
    afx_msg LRESULT OnHorizontalWheel(WPARAM keysAndDistance, LPARAM screenPoint);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnKillFocus(CWnd* next);
    // keyboard
    afx_msg LRESULT OnGetDlgCode(WPARAM key, LPARAM lParam);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    // mouse
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnContextMenu(CWnd* wnd, CPoint screenPoint);
    // editors
    afx_msg void OnEditClosed(NMHDR* header, LRESULT* result);
    afx_msg void OnListClosed(NMHDR* header, LRESULT* result);
    afx_msg void OnButtonClosed(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    using RowList = CTypedPtrList<CPtrList, CFListRow*>;

    /// While one lives no notification is sent.
    class NotificationLock
    {
    public:
        explicit NotificationLock(CFListCtrl& grid) : m_grid(grid) { ++m_grid.m_notificationLock; }
        ~NotificationLock() { --m_grid.m_notificationLock; }
        NotificationLock(const NotificationLock&) = delete;
        NotificationLock& operator=(const NotificationLock&) = delete;

    private:
        CFListCtrl& m_grid;
    };

    void DeleteColumns();
    // rows
    RowKey Attach(CFListRow* row, CFListRow* parent);
    bool IsShown(const CFListRow& row) const;
    CFListRow* RowToExpand(RowKey key) const;    // null: nothing to do
    CFListRow* RowToCollapse(RowKey key) const;  // null: nothing to do
    int IndexOf(const CFListRow& row) const;
    int IndexBehind(const CFListRow& row) const;
    void ShowRow(CFListRow& row, int index);
    void ShowChildren(CFListRow& row);
    void MakeRowsVisible(int first, int last);
    void HideRow(CFListRow& row);
    void HideBranch(CFListRow& row, int& last);
    void HideChildren(CFListRow& row, int& last);
    void HandFocusOver(const CFListRow& deleted);
    void Forget(CFListRow& row);
    void RedrawRow(const CFListRow& row);
    void RedrawRow(RowKey key);
    void RedrawFocusRow(RowKey key);
    // cells
    void ShowText(RowKey key, int column);
    static CString CellText(const CFListRow* row, int column);  // empty for no row or column
    CellTraits TraitsOf(const CFListRow& row, int column) const;
    CRect EditorRect(const CFListRow& row, int column) const;
    CRect ColumnSpan(int column) const;
    CRect ShownCellRect(int index, int column) const;
    void PaintCell(CDC& dc, const CRect& cell, const CFListRow& row, int column);
    void PaintText(CDC& dc, const CString& text, CRect area, COLORREF colour, UINT format, bool bold);
    // focus
    void TakeFocus();
    int FocusColumnFor(RowKey key, int column) const;
    void TellFocusMoved();
    void OpenEditorAtOnce();
    // keyboard
    void Navigate(UINT key);
    void MoveFocus(GridMove move);
    void LeaveGrid(bool backwards);
    void ToggleFocusCell();
    // mouse
    enum class ClickResult
    {
        Outside,
        ExpandImage,
        CheckToggled,
        Cell
    };
    ClickResult Click(CPoint point);
    bool RightClick(CPoint point);
    void AskForMenu(CPoint point);
    // editors
    bool OpenEditor(std::optional<TCHAR> typed);
    bool OpenEdit(RowKey key, int column, std::optional<TCHAR> typed);
    bool OpenList(RowKey key, int column);
    bool OpenButton(RowKey key, int column);
    bool CanStillEdit(RowKey key, int column) const;
    bool BeginEditing(CWnd& editor, RowKey key, int column);
    bool CloseEditorAndStay();
    void ForgetEditor(RowKey key, int column);
    void EndEditing(const NMFLISTCTRL& report, UINT code);
    // notifications
    LRESULT Notify(UINT code, const CFListRow* row, int column, LPCTSTR text, std::int32_t extra = 0);
    void FillRecord(NMFLISTCTRL& record, UINT code, const CFListRow* row, int column, LPCTSTR text) const;
    LRESULT SendRecord(NMFLISTCTRL& record);

    CTypedPtrArray<CPtrArray, CFListColumn*> m_columns;
    std::vector<int> m_insertedAt;  // the index that each column was inserted at, in the order of the insertions
    int m_treeColumn = -1;
    RowList m_topRows;
    std::unordered_map<RowKey, CFListRow*> m_rowsByKey;
    mutable int m_exactIndices = 0;  // rows at list indices below this one know their index
    RowKey m_focusKey = nullptr;
    int m_focusColumn = -1;
    bool m_rowMode = true;
    int m_notificationLock = 0;
    COLORREF m_focusBack;
    COLORREF m_focusText;
    CWnd* m_editor = nullptr;  // deletes itself
    RowKey m_editorKey = nullptr;
    int m_editorColumn = -1;
    bool m_closingEditor = false;
};

/// What a column says about its cells.
class CFListCtrl::CFListColumn
{
public:
    std::int32_t tree = 0;        // not 0: carries indentation and expand images
    std::int32_t imageSpace = 0;  // not 0: keeps room for an image in cells without one
    std::int32_t centred = 0;     // 1: texts are centred; the value of the text, edit and drop-down format bits
    std::int32_t reserved = 0;
    std::int32_t reservedIndex = -1;
};

/// A cell. Change what is shown through the grid, so that the screen follows.
class CFListCtrl::CFListItem
{
public:
    CString text;
    std::int32_t image = -1;  // negative: none
    std::int32_t kind = kCellText;
    std::int32_t value = 0;        // an integer that the owner of the grid keeps with the cell
    std::int32_t buttonShown = 0;  // 1 while the in-place button is up
    std::int32_t checkedImage = -1;
    std::int32_t uncheckedImage = -1;
    std::int32_t checked = 0;
};

/// A row with its cells and its children. Its grid deletes it.
class CFListCtrl::CFListRow
{
public:
    CFListRow(CFListCtrl& grid, RowKey key, void* userData);
    ~CFListRow();
    CFListRow(const CFListRow&) = delete;
    CFListRow& operator=(const CFListRow&) = delete;

    CFListCtrl& Grid() const { return m_grid; }
    RowKey Key() const { return m_key; }
    void* UserData() const { return m_userData; }  ///< whatever the owner of the grid keeps with the row
    void SetUserData(void* userData) { m_userData = userData; }

    // tree; null at the ends
    CFListRow* Parent() const { return m_parent; }
    CFListRow* PreviousSibling() const { return m_previousSibling; }
    CFListRow* NextSibling() const { return m_nextSibling; }
    int ChildCount() const { return static_cast<int>(m_children.GetCount()); }
    CFListRow* FirstChild() const;
    CFListRow* LastChild() const;
    int Level() const { return m_level; }  ///< 0 for a top row
    bool IsExpanded() const { return m_collapsed == 0; }
    /// Whether the row is `ancestor` or stands below it.
    bool IsWithin(const CFListRow& ancestor) const;
    /// Position in the list control, -1 while the row is not shown. Right at every moment, also inside notifications.
    int ListIndex() const { return m_grid.IndexOf(*this); }

    // cells; a missing column raises CInvalidArgException
    int ItemCount() const { return static_cast<int>(m_items.GetSize()); }
    CFListItem& Item(int column) const { return *m_items[column]; }
    int ColumnOf(const CFListItem& item) const;  ///< item: a cell of this row
    CFListItem& InsertItem(int column, LPCTSTR text, std::int32_t kind);
    const CString& Text(int column) const { return Item(column).text; }
    int Image(int column) const { return Item(column).image; }
    bool IsBold() const { return m_bold != 0; }

private:
    friend class CFListCtrl;

    CFListCtrl& m_grid;
    CFListRow* m_parent = nullptr;
    CFListRow* m_previousSibling = nullptr;
    CFListRow* m_nextSibling = nullptr;
    RowList m_children;
    CTypedPtrArray<CPtrArray, CFListItem*> m_items;
    std::int32_t m_collapsed = 1;
    std::int32_t m_level = 0;
    mutable std::int32_t m_listIndex = -1;  // as it was last known, see CFListCtrl::IndexOf
    RowKey m_key;
    void* m_userData;
    std::int32_t m_bold = 0;
    POSITION m_position = nullptr;  // in the parent's children or the grid's top rows
};
