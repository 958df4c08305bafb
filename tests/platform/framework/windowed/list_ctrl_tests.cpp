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
            LVITEM item = {};
            item.mask = LVIF_TEXT | LVIF_PARAM;
            item.iItem = row;
            item.pszText = text.GetBuffer();
            item.lParam = 100 + row;
            ASSERT_EQ(m_list.InsertItem(&item), row);
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

TEST_F(ListCtrlTest, ExtendedStyleIsReplacedAndTheFormerOneGiven)
{
    constexpr DWORD kStyle = LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT;
    m_list.SetExtendedStyle(kStyle);
    EXPECT_EQ(m_list.GetExtendedStyle(), kStyle);
    EXPECT_EQ(m_list.SetExtendedStyle(LVS_EX_GRIDLINES), kStyle);
    EXPECT_EQ(m_list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_GRIDLINES));
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
    EXPECT_EQ(m_list.GetItemData(1), 101u);
    EXPECT_TRUE(m_list.DeleteItem(1));
    EXPECT_EQ(m_list.GetItemCount(), 2);
    EXPECT_EQ(m_list.GetItemData(1), 102u);
}

TEST_F(ListCtrlTest, ColoursAreSetAndRead)
{
    EXPECT_TRUE(m_list.SetBkColor(RGB(10, 20, 30)));
    EXPECT_EQ(m_list.GetBkColor(), RGB(10, 20, 30));
}
