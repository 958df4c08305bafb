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
constexpr int kRuns = 15;  // the best one counts: the others were disturbed
constexpr double kAllowedRatio = 1.3;
const CRect kPlace(0, 0, 400, 300);

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

/// A list that is filled and emptied once in each run.
class MeasuredList
{
public:
    virtual ~MeasuredList() = default;
    virtual CListCtrl& List() = 0;
    virtual void Insert() = 0;
    virtual void Remove() = 0;

    void Run()
    {
        Cost cost;
        auto start = std::chrono::steady_clock::now();
        Insert();
        List().UpdateWindow();
        cost.insert = Milliseconds(std::chrono::steady_clock::now() - start);
        start = std::chrono::steady_clock::now();
        Remove();
        List().UpdateWindow();
        cost.remove = Milliseconds(std::chrono::steady_clock::now() - start);
        best.TakeBetter(cost);
    }

    Cost best;
};

/// The children of a row, shown by expanding it.
class GridRows : public MeasuredList
{
public:
    GridRows(CWnd& parent, int children)
    {
        m_grid.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, kPlace, &parent, 1);
        for (int column = 0; column < kColumns; ++column)
            m_grid.InsertFColumn(column, L"column", LVCFMT_LEFT, 100, column == 0);
        m_top = m_grid.AddTopRow(m_grid.CreateRow(L"top", -1));
        for (int row = 0; row < kRowsBelow; ++row)
            m_grid.AddTopRow(m_grid.CreateRow(L"below", -1));
        for (int row = 0; row < children; ++row)
        {
            const RowKey key = m_grid.AddChildRow(m_top, m_grid.CreateRow(TextOf(row, 0), -1));
            for (int column = 1; column < kColumns; ++column)
                m_grid.SetCellText(key, column, TextOf(row, column));
        }
    }
    ~GridRows() override { m_grid.DestroyWindow(); }

    CListCtrl& List() override { return m_grid; }
    void Insert() override { m_grid.ExpandRow(m_top); }
    void Remove() override { m_grid.CollapseRow(m_top); }

private:
    CFListCtrl m_grid;
    RowKey m_top = nullptr;
};

/// The same items in a list view, inserted and deleted in the way that costs it least.
class BareItems : public MeasuredList
{
public:
    BareItems(CWnd& parent, int children) : m_children(children)
    {
        m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, kPlace, &parent, 2);
        for (int column = 0; column < kColumns; ++column)
            m_list.InsertColumn(column, L"column", LVCFMT_LEFT, 100);
        for (int row = 0; row <= kRowsBelow; ++row)
            m_list.InsertItem(row, L"below");
        for (int row = 0; row < children; ++row)
            for (int column = 0; column < kColumns; ++column)
                m_texts.push_back(TextOf(row, column));
    }
    ~BareItems() override { m_list.DestroyWindow(); }

    CListCtrl& List() override { return m_list; }
    void Insert() override
    {
        m_list.SetRedraw(FALSE);
        m_list.SetItemCount(m_list.GetItemCount() + m_children);
        for (int row = 0; row < m_children; ++row)
        {
            const CString* const texts = &m_texts[static_cast<std::size_t>(row) * kColumns];
            m_list.InsertItem(row + 1, texts[0]);
            for (int column = 1; column < kColumns; ++column)
                m_list.SetItemText(row + 1, column, texts[column]);
        }
        m_list.SetRedraw(TRUE);
        m_list.Invalidate();
    }
    void Remove() override
    {
        m_list.SetRedraw(FALSE);
        for (int row = m_children; row > 0; --row)
            m_list.DeleteItem(row);
        m_list.SetRedraw(TRUE);
        m_list.Invalidate();
    }

private:
    CListCtrl m_list;
    int m_children;
    std::vector<CString> m_texts;
};
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
        BareItems bareItems(parent, children);
        GridRows gridRows(parent, children);
        for (int run = 0; run < kRuns; ++run)  // in turn: what else the machine does slows both
        {
            bareItems.Run();
            gridRows.Run();
        }
        const Cost bare = bareItems.best;
        const Cost grid = gridRows.best;
        ratio = grid.insert / bare.insert;
        std::printf("%8d  %6.1f %6.1f %8.2f  %6.1f %6.1f %8.2f\n", children, grid.insert, bare.insert, ratio,
                    grid.remove, bare.remove, grid.remove / bare.remove);
    }
    parent.DestroyWindow();
    return ratio <= kAllowedRatio ? 0 : 1;
}
