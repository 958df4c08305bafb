#include "grid/f_list_ctrl.h"

#include <gtest/gtest.h>

namespace
{
/// Counts how often the list is asked what stands in an item.
class CountingGrid : public CFListCtrl
{
public:
    int questions = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        questions += message == LVM_GETITEM ? 1 : 0;
        return CFListCtrl::WindowProc(message, wParam, lParam);
    }
};

// An expanded row with children, and as many rows below it, none of which may be looked at for each child.
class GridCosts : public testing::Test
{
protected:
    static constexpr int kRows = 500;
    static constexpr int kAllowed = 6 * kRows;  // a fixed number for each row concerned

    GridCosts()
    {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"costs", WS_POPUP, CRect(20, 20, 320, 220), nullptr, 0);
        grid.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 300, 200), &parent, 1);
        grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
        top = grid.AddTopRow(grid.CreateRow(L"top", -1));
        for (int row = 0; row < kRows; ++row)
            grid.AddTopRow(grid.CreateRow(L"below", -1));
        AddChildren(1);
        grid.ExpandRow(top);
        grid.questions = 0;
    }
    ~GridCosts() override { parent.DestroyWindow(); }

    void AddChildren(int count)
    {
        for (int row = 0; row < count; ++row)
            grid.AddChildRow(top, grid.CreateRow(L"child", -1));
    }

    CWnd parent;
    CountingGrid grid;
    RowKey top = nullptr;
};
}  // namespace

TEST_F(GridCosts, AppendingToAnExpandedRowIsLinear)
{
    AddChildren(kRows);
    EXPECT_EQ(grid.GetItemCount(), 2 * kRows + 2);
    EXPECT_LE(grid.questions, kAllowed);
}

TEST_F(GridCosts, DeletingTheFirstChildUntilNoneIsLeftIsLinear)
{
    AddChildren(kRows);
    grid.questions = 0;
    while (const auto* const child = grid.FindRow(top)->FirstChild())
        grid.DeleteRow(child->Key());
    EXPECT_EQ(grid.GetItemCount(), kRows + 1);
    EXPECT_LE(grid.questions, kAllowed);
}

TEST_F(GridCosts, DeletingTheLastChildUntilNoneIsLeftIsLinear)
{
    AddChildren(kRows);
    grid.questions = 0;
    while (const auto* const child = grid.FindRow(top)->LastChild())
        grid.DeleteRow(child->Key());
    EXPECT_LE(grid.questions, kAllowed);
}

TEST_F(GridCosts, CollapsingAndExpandingIsLinear)
{
    AddChildren(kRows);
    grid.questions = 0;
    grid.CollapseRow(top);
    grid.ExpandRow(top);
    EXPECT_EQ(grid.GetItemCount(), 2 * kRows + 2);
    EXPECT_LE(grid.questions, kAllowed);
}
