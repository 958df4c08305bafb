// How long a grid takes to expand and collapse a row with many children, against a bare list view that inserts and
// deletes the same items with the same texts. Ten rows stand below the children, so that all of them move.
// Exits with 1 when expanding 10 000 children takes more than 1.3 times as long as the bare list view.

#include "grid/f_list_ctrl.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace
{
constexpr int kColumns = 3;
constexpr int kRowsBelow = 10;
constexpr int kRuns = 5;  // the best one counts: the others were disturbed
constexpr double kAllowedRatio = 1.3;

double Milliseconds(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

CString TextOf(int row, int column)
{
    CString text;
    text.Format(L"row %d cell %d", row, column);
    return text;
}

struct Cost
{
    double insert = 0;  // milliseconds
    double remove = 0;

    void TakeBetter(const Cost& other)
    {
        insert = insert == 0 ? other.insert : std::min(insert, other.insert);
        remove = remove == 0 ? other.remove : std::min(remove, other.remove);
    }
};

template <typename Insert, typename Remove>
Cost Measure(CWnd& list, Insert insert, Remove remove)
{
    Cost cost;
    auto start = std::chrono::steady_clock::now();
    insert();
    list.UpdateWindow();
    cost.insert = Milliseconds(std::chrono::steady_clock::now() - start);
    start = std::chrono::steady_clock::now();
    remove();
    list.UpdateWindow();
    cost.remove = Milliseconds(std::chrono::steady_clock::now() - start);
    return cost;
}

Cost GridCost(CWnd& parent, int children)
{
    CFListCtrl grid;
    grid.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 400, 300), &parent, 1);
    for (int column = 0; column < kColumns; ++column)
        grid.InsertFColumn(column, L"column", LVCFMT_LEFT, 100, column == 0);
    const RowKey top = grid.AddTopRow(grid.CreateRow(L"top", -1));
    for (int row = 0; row < kRowsBelow; ++row)
        grid.AddTopRow(grid.CreateRow(L"below", -1));
    for (int row = 0; row < children; ++row)
    {
        const RowKey key = grid.AddChildRow(top, grid.CreateRow(TextOf(row, 0), -1));
        for (int column = 1; column < kColumns; ++column)
            grid.SetCellText(key, column, TextOf(row, column));
    }
    Cost best;
    for (int run = 0; run < kRuns; ++run)
        best.TakeBetter(Measure(
            grid, [&] { grid.ExpandRow(top); }, [&] { grid.CollapseRow(top); }));
    grid.DestroyWindow();
    return best;
}

Cost BareCost(CWnd& parent, int children)
{
    CListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 400, 300), &parent, 2);
    for (int column = 0; column < kColumns; ++column)
        list.InsertColumn(column, L"column", LVCFMT_LEFT, 100);
    for (int row = 0; row <= kRowsBelow; ++row)
        list.InsertItem(row, L"below");
    std::vector<CString> texts;
    for (int row = 0; row < children; ++row)
        for (int column = 0; column < kColumns; ++column)
            texts.push_back(TextOf(row, column));
    const auto insert = [&] {
        list.SetRedraw(FALSE);
        list.SetItemCount(list.GetItemCount() + children);
        for (int row = 0; row < children; ++row)
        {
            const CString* const rowTexts = &texts[static_cast<std::size_t>(row) * kColumns];
            list.InsertItem(row + 1, rowTexts[0]);
            for (int column = 1; column < kColumns; ++column)
                list.SetItemText(row + 1, column, rowTexts[column]);
        }
        list.SetRedraw(TRUE);
        list.Invalidate();
    };
    const auto remove = [&] {
        list.SetRedraw(FALSE);
        for (int row = children; row > 0; --row)
            list.DeleteItem(row);
        list.SetRedraw(TRUE);
        list.Invalidate();
    };
    Cost best;
    for (int run = 0; run < kRuns; ++run)
        best.TakeBetter(Measure(list, insert, remove));
    list.DestroyWindow();
    return best;
}
}  // namespace

int main()
{
    AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL);
    CWnd parent;
    if (!parent.CreateEx(0, AfxRegisterWndClass(0), L"grid benchmark", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300),
                         nullptr, 0))
    {
        std::fprintf(stderr, "no window: is there a display?\n");
        return 2;
    }
    std::printf("%8s  %22s  %22s\n", "", "insert ms", "remove ms");
    std::printf("%8s  %6s %6s %8s  %6s %6s %8s\n", "rows", "grid", "bare", "ratio", "grid", "bare", "ratio");
    double ratio = 0;
    for (const int children : {100, 1000, 10000})
    {
        const Cost bare = BareCost(parent, children);
        const Cost grid = GridCost(parent, children);
        ratio = grid.insert / bare.insert;
        std::printf("%8d  %6.1f %6.1f %8.2f  %6.1f %6.1f %8.2f\n", children, grid.insert, bare.insert, ratio,
                    grid.remove, bare.remove, grid.remove / bare.remove);
    }
    parent.DestroyWindow();
    return ratio <= kAllowedRatio ? 0 : 1;
}
