#include "grid/f_list_ctrl.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"

#include <gtest/gtest.h>

#include <vector>

// The record by which an editor tells its grid that it closes.

namespace
{
constexpr UINT kGridId = 40;

/// Writes down what its editors report.
class ReportedGrid : public CFListCtrl
{
public:
    std::vector<NMFLISTCTRL> reports;
    std::vector<WPARAM> ids;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code == kGridEditClosed || header.code == kGridListClosed || header.code == kGridButtonClosed)
        {
            reports.push_back(*reinterpret_cast<const NMFLISTCTRL*>(lParam));
            ids.push_back(wParam);
        }
        return CFListCtrl::OnNotify(wParam, lParam, result);
    }
};

/// Offers two entries for every list.
class ListParent : public CWnd
{
public:
    std::int32_t selected = 1;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (reinterpret_cast<const NMHDR*>(lParam)->code == kGridListContents)
        {
            auto& request = *reinterpret_cast<NMFLISTCOMBO*>(lParam);
            request.items->Add({L"one", 11});
            request.items->Add({L"two", 12});
            request.selected = selected;
        }
        return CWnd::OnNotify(wParam, lParam, result);
    }
};

// One expanded row with a child; column 0 is an edit, 1 a list, 2 a button cell.
class EditorReport : public testing::Test
{
protected:
    EditorReport()
    {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"reports", WS_POPUP | WS_VISIBLE, CRect(20, 20, 420, 220), nullptr,
                        0);
        grid.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 400, 200), &parent, kGridId);
        grid.SetRowMode(false);
        for (int column = 0; column < 3; ++column)
            grid.InsertFColumn(column, L"", LVCFMT_LEFT, 100, false);
        key = grid.AddTopRow(grid.CreateRow(L"text", -1, this));
        grid.AddChildRow(key, grid.CreateRow(L"child", -1));
        grid.SetCellKind(key, 0, kCellEdit);
        grid.SetCellKind(key, 1, kCellList);
        grid.SetCellKind(key, 2, kCellButton);
    }
    ~EditorReport() override
    {
        parent.DestroyWindow();
        PumpUntilIdle();
    }

    /// The report of the editor of a cell that a key ends; 0: the focus goes elsewhere.
    NMFLISTCTRL ReportOf(int column, UINT endingKey)
    {
        grid.SetFocusCell(key, column, false);
        if (!grid.HasEditor())
            grid.OpenEditor();
        EXPECT_TRUE(grid.HasEditor());
        if (endingKey != 0)
            PostKey(::GetFocus(), endingKey);
        else
            parent.SetFocus();
        PumpUntilIdle();
        EXPECT_EQ(grid.reports.size(), 1U);
        EXPECT_EQ(grid.ids, std::vector<WPARAM>{kGridId});
        return grid.reports.empty() ? NMFLISTCTRL() : grid.reports.front();
    }

    ListParent parent;
    ReportedGrid grid;
    RowKey key = nullptr;
};
}  // namespace

TEST_F(EditorReport, HasTheGridAsSender)
{
    const NMFLISTCTRL report = ReportOf(0, VK_ESCAPE);
    EXPECT_EQ(report.hdr.hwndFrom, grid.GetSafeHwnd());
    EXPECT_EQ(report.hdr.idFrom, kGridId);
}

// Neither the row's collapsed flag, which is 1, nor its data is in it.
TEST_F(EditorReport, NamesCellTextAndEndingKey)
{
    const NMFLISTCTRL report = ReportOf(0, VK_TAB);
    EXPECT_EQ(report.hdr.code, kGridEditClosed);
    EXPECT_EQ(report.rowKey, key);
    EXPECT_EQ(report.column, 0);
    EXPECT_EQ(report.collapsed, 0);
    EXPECT_EQ(report.text, L"text");
    EXPECT_EQ(report.userData, VK_TAB);
    EXPECT_EQ(report.extra, 0);
}

TEST_F(EditorReport, HasNoEndingKeyWhenTheFocusGoesElsewhere)
{
    EXPECT_EQ(ReportOf(0, 0).userData, 0);
}

TEST_F(EditorReport, OfAListHasTheDataOfItsEntry)
{
    const NMFLISTCTRL report = ReportOf(1, VK_LEFT);
    EXPECT_EQ(report.hdr.code, kGridListClosed);
    EXPECT_EQ(report.column, 1);
    EXPECT_EQ(report.text, L"two");
    EXPECT_EQ(report.userData, VK_LEFT);
    EXPECT_EQ(report.extra, 12);
}

TEST_F(EditorReport, OfAListWithoutAChoiceHasNoData)
{
    parent.selected = -1;
    const NMFLISTCTRL report = ReportOf(1, 0);
    EXPECT_EQ(report.text, L"");
    EXPECT_EQ(report.extra, 0);
}

TEST_F(EditorReport, OfAButtonHasItsCaption)
{
    const NMFLISTCTRL report = ReportOf(2, VK_SPACE);
    EXPECT_EQ(report.hdr.code, kGridButtonClosed);
    EXPECT_EQ(report.column, 2);
    EXPECT_EQ(report.text, L"...");
    EXPECT_EQ(report.userData, VK_SPACE);
}
