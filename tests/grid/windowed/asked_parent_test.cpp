#include "grid_window.h"

// What a parent does while the grid asks it for a menu or tells it of a selection.

namespace
{
/// A parent that is asked beyond the notifications, and acts then.
class AskedParent : public GridWindow, public GridEditMenuParent, public GridSelectionParent
{
public:
    AskedParent() { grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true); }

    std::function<void()> act;
    int asked = 0;

    void TrackEditMenu(CPoint, int) override { Act(); }
    void OnSelectionChanged(int, void*) override { Act(); }

private:
    void Act()
    {
        ++asked;
        if (act)
            act();
    }
};
}  // namespace

TEST(AskedParentReactions, MayDestroyTheGrid)
{
    for (void (*const click)(const CWnd&, CPoint) : {&LeftClick, &DoubleClick, &RightClick})
    {
        AskedParent parent;
        const RowKey a = parent.AddTop(L"A");
        parent.act = [&] { parent.grid.DestroyWindow(); };
        click(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
        EXPECT_EQ(parent.asked, 1);
        EXPECT_EQ(parent.grid.GetSafeHwnd(), nullptr);
    }
}

TEST(AskedParentReactions, MayDeleteTheRow)
{
    for (void (*const click)(const CWnd&, CPoint) : {&LeftClick, &DoubleClick, &RightClick})
    {
        AskedParent parent;
        const RowKey a = parent.AddTop(L"A");
        const RowKey b = parent.AddTop(L"B");
        parent.act = [&] { parent.grid.DeleteRow(a); };
        click(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
        EXPECT_EQ(parent.ShownNames(), "B");
        EXPECT_EQ(parent.grid.FocusKey(), b);
    }
}

// The menu is of the row under the pointer: no row, no menu.
TEST(AskedParentReactions, MenuIsNotAskedForARowThatIsDeletedWhenItTakesTheFocus)
{
    AskedParent parent;
    const RowKey a = parent.AddTop(L"A");
    parent.AddTop(L"B");
    parent.onTold = [&](const NMFLISTCTRL& record) { parent.grid.DeleteRow(record.rowKey); };
    RightClick(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
    EXPECT_EQ(parent.ShownNames(), "B");
    EXPECT_EQ(parent.asked, 0);
}
