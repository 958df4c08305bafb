#include <vector>

#include <gtest/gtest.h>

#include <afxcmn.h>

#include "tests/support/framework_printers.h"
#include "tests/support/recording_window.h"

namespace
{
/// Three rows "row 0" to "row 2" with item data 100 to 102, columns of 80 and 60 pixels.
class ListCtrlTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, CRect(0, 0, 300, 200), &m_window, 1));
        ASSERT_EQ(m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80), 0);
        ASSERT_EQ(m_list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 60, 1), 1);
        for (int row = 0; row < 3; ++row)
        {
            CString text;
            text.Format(L"row %d", row);
            ASSERT_EQ(m_list.InsertItem(row, text), row);
            m_list.SetItemData(row, static_cast<DWORD_PTR>(100 + row));
        }
    }

    RecordingWindow m_window;
    CListCtrl m_list;
};
}  // namespace

TEST_F(ListCtrlTest, ColumnsKeepFormatAndWidth)
{
    LVCOLUMN column = {};
    column.mask = LVCF_FMT | LVCF_WIDTH;
    ASSERT_TRUE(m_list.GetColumn(1, &column));
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(m_list.GetColumnWidth(1), 60);
    EXPECT_TRUE(m_list.SetColumnWidth(1, 90));
    EXPECT_EQ(m_list.GetColumnWidth(1), 90);
}

TEST_F(ListCtrlTest, HeaderHasTheColumns)
{
    CHeaderCtrl* header = m_list.GetHeaderCtrl();
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->GetItemCount(), 2);
    EXPECT_EQ(header->OrderToIndex(1), 1);
}

TEST_F(ListCtrlTest, ColumnOrderIsSetAndRead)
{
    int order[] = {1, 0};
    EXPECT_TRUE(m_list.SetColumnOrderArray(2, order));
    int read[] = {-1, -1};
    EXPECT_TRUE(m_list.GetColumnOrderArray(read));
    EXPECT_EQ(read[0], 1);
    EXPECT_EQ(read[1], 0);
}

TEST_F(ListCtrlTest, TextsOfAnyLengthAreReadWhole)
{
    const CString longText(L'W', 255);
    const CString longer(L'V', 259);
    EXPECT_TRUE(m_list.SetItemText(0, 1, longText));
    EXPECT_EQ(m_list.GetItemText(0, 0), CString(L"row 0"));
    EXPECT_EQ(m_list.GetItemText(0, 1), longText);
    m_list.SetItemText(1, 1, longer);
    EXPECT_EQ(m_list.GetItemText(1, 1), longer);
    EXPECT_EQ(m_list.GetItemText(2, 1), CString());
}

TEST_F(ListCtrlTest, ItemDataFindsTheRow)
{
    LVFINDINFO info = {};
    info.flags = LVFI_PARAM;
    info.lParam = 101;
    EXPECT_EQ(m_list.FindItem(&info), 1);
    EXPECT_EQ(m_list.GetItemData(2), 102u);
    info.lParam = 55;
    EXPECT_EQ(m_list.FindItem(&info), -1);
}

TEST_F(ListCtrlTest, SelectedRowsAreWalked)
{
    EXPECT_EQ(m_list.GetFirstSelectedItemPosition(), nullptr);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    std::vector<int> rows;
    POSITION position = m_list.GetFirstSelectedItemPosition();
    while (position != nullptr)
        rows.push_back(m_list.GetNextSelectedItem(position));
    EXPECT_EQ(rows, (std::vector<int>{0, 2}));
    EXPECT_EQ(m_list.GetItemState(2, LVIS_FOCUSED), static_cast<UINT>(LVIS_FOCUSED));
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 2);
}

TEST_F(ListCtrlTest, ExtendedStyleIsReplacedAndTheFormerOneGiven)
{
    constexpr DWORD kStyle = LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT;
    m_list.SetExtendedStyle(kStyle);
    EXPECT_EQ(m_list.GetExtendedStyle(), kStyle);
    EXPECT_EQ(m_list.SetExtendedStyle(LVS_EX_GRIDLINES), kStyle);
    EXPECT_EQ(m_list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_GRIDLINES));
}

// Column 1 begins where column 0 of 80 pixels ends.
TEST_F(ListCtrlTest, SubItemRectangleAndHitTestAgree)
{
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 80);
    EXPECT_EQ(cell.Width(), 60);
    LVHITTESTINFO hit = {};
    hit.pt = cell.CenterPoint();
    EXPECT_EQ(m_list.SubItemHitTest(&hit), 1);
    EXPECT_EQ(hit.iSubItem, 1);
    UINT flags = 0;
    EXPECT_EQ(m_list.HitTest(CPoint(5, 190), &flags), -1);
    EXPECT_NE(flags & LVHT_NOWHERE, 0u);
}

TEST_F(ListCtrlTest, ScrollsToTheRowThatMustBeVisible)
{
    for (int row = 3; row < 60; ++row)
        m_list.InsertItem(row, L"more");
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_TRUE(m_list.EnsureVisible(59, FALSE));
    EXPECT_GT(m_list.GetTopIndex(), 0);
    EXPECT_LE(m_list.GetTopIndex() + m_list.GetCountPerPage(), 60);
}

TEST_F(ListCtrlTest, RowsAreDeleted)
{
    EXPECT_TRUE(m_list.DeleteItem(1));
    EXPECT_EQ(m_list.GetItemCount(), 2);
    EXPECT_EQ(m_list.GetItemData(1), 102u);
    EXPECT_TRUE(m_list.DeleteAllItems());
    EXPECT_EQ(m_list.GetItemCount(), 0);
}

TEST_F(ListCtrlTest, ColoursAreSetAndRead)
{
    EXPECT_TRUE(m_list.SetBkColor(RGB(10, 20, 30)));
    EXPECT_EQ(m_list.GetBkColor(), RGB(10, 20, 30));
}
