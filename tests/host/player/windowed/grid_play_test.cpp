#include <string>

#include <gtest/gtest.h>

#include <afxcmn.h>
#include <afxwin.h>

#include "grid/f_list_ctrl.h"
#include "test_play.h"
#include "test_windows.h"

namespace
{

/// The parent of a grid: offers two entries for its drop-down cells.
class GridParent : public CDialog
{
protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code != kGridListContents)
            return CDialog::OnNotify(wParam, lParam, result);
        auto& request = *reinterpret_cast<NMFLISTCOMBO*>(lParam);
        request.items->Add({L"yes", 0});
        request.items->Add({L"no", 0});
        *result = 0;
        return TRUE;
    }
};

/// A dialog that scripts call `weight`, with a real grid: a chain row, collapsed, with two links below it, and in the
/// second row's cells one of each kind.
class PlayedGrid : public testing::Test
{
protected:
    PlayedGrid()
    {
        dialog.Add(WC_LISTVIEWW, 1018, L"", LVS_REPORT | LVS_SHOWSELALWAYS | WS_TABSTOP, {10, 10, 360, 180});
        dialog.Show();
        parent.SubclassWindow(dialog.Window());
        grid.SubclassDlgItem(1018, &parent);

        images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 9);
        for (int image = 0; image < 4; ++image)
            AddImage(image);
        grid.SetImageList(&images, LVSIL_SMALL);
        grid.SetRowMode(false);
        grid.InsertFColumn(0, L"Link", LVCFMT_LEFT, 130, true);
        grid.InsertFColumn(1, L"Nominal", LVCFMT_CENTER, 60, false);
        grid.InsertFColumn(2, L"Fixed", LVCFMT_CENTER, 60, false);
        chain = grid.AddTopRow(grid.CreateRow(L"Shaft", 2));
        first = grid.AddChildRow(chain, grid.CreateRow(L"A1", 3));
        second = grid.AddChildRow(chain, grid.CreateRow(L"A2", -1));
        grid.SetCellKind(first, 1, kCellEdit);
        grid.SetCellKind(first, 2, kCellList);
        grid.SetCellText(first, 2, L"no");
        grid.SetCellKind(second, 0, kCellCheckBox);
        grid.UpdateWindow();
    }

    // A triangle, in each image in another colour and size.
    void AddImage(int image)
    {
        CClientDC screen(nullptr);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 16, 16);
        CBitmap* const former = dc.SelectObject(&bitmap);
        for (int y = 0; y < 16; ++y)
        {
            for (int x = 0; x < 16; ++x)
                dc.SetPixel(x, y, x + 2 * image < y ? RGB(60 * image, 100, 200) : RGB(255, 0, 255));
        }
        dc.SelectObject(former);
        images.Add(&bitmap, RGB(255, 0, 255));
    }

    void Expand()
    {
        grid.ExpandRow(chain);
        grid.UpdateWindow();
    }

    TestHost host;
    TestDialog dialog{host.MainWindow(), L"Weight"};
    GridParent parent;
    CImageList images;
    CFListCtrl grid;
    RowKey chain = nullptr;
    RowKey first = nullptr;
    RowKey second = nullptr;
};

}  // namespace

TEST_F(PlayedGrid, AClickOnTheExpandImageShowsAndHidesTheChildren)
{
    ExpectHolds(host, "expect-rows weight 1018 1\nclick weight 1018 0 0 expand\nexpect-rows weight 1018 3\n"
                      "expect-cell weight 1018 1 0 \"A1\"\nclick weight 1018 0 0 expand\nexpect-rows weight 1018 1\n");
}

TEST_F(PlayedGrid, ImagesAreReadBesideTheExpandImage)
{
    Expand();
    ExpectHolds(host, "expect-image weight 1018 2 0\nexpect-image weight 1018 3 1\nexpect-image weight 1018 none 2\n");
    ExpectFails(host, "expect-image weight 1018 0 0\n", 1, "expected image 0, found 2");
}

TEST_F(PlayedGrid, ClicksAndKeysMoveTheFocusCell)
{
    Expand();
    ExpectHolds(host, "click weight 1018 1 0\nexpect-focus weight 1018 1 0\nkey weight 1018 Tab\n"
                      "expect-focus weight 1018 1 1\nkey weight 1018 Shift+Tab\nexpect-focus weight 1018 1 0\n"
                      "key weight 1018 Up\nexpect-focus weight 1018 0 0\nkey weight 1018 Minus\n"
                      "expect-rows weight 1018 1\nkey weight 1018 Plus\nexpect-rows weight 1018 3\n"
                      "key weight 1018 End\nexpect-focus weight 1018 0 2\n");
}

TEST_F(PlayedGrid, InRowModeTheHighlightedRowHasTheFocus)
{
    Expand();
    grid.SetRowMode(true);
    grid.SetFocusRow(second, false);
    grid.UpdateWindow();
    ExpectHolds(host, "expect-focus weight 1018 2 -1\nkey weight 1018 Up\nexpect-focus weight 1018 1 -1\n");
}

TEST_F(PlayedGrid, TypingOpensTheEditorAndEnterStoresTheText)
{
    Expand();
    ExpectHolds(host, "click weight 1018 1 1\nchar weight 1018 \"12\"\nexpect-text weight 1018/301 \"12\"\n"
                      "expect-focus weight 1018 1 1\nexpect-focused weight 1018/301\nkey weight 1018 Enter\n"
                      "expect-cell weight 1018 1 1 \"12\"\nexpect-focused weight 1018\n"
                      "key weight 1018 F2\ntype weight 1018/301 \"7\"\nkey weight 1018 Escape\n"
                      "expect-cell weight 1018 1 1 \"12\"\n");
}

TEST_F(PlayedGrid, ADoubleClickOpensTheEditor)
{
    Expand();
    ExpectHolds(host, "click weight 1018 1 1 double\nexpect-visible weight 1018/301 yes\n"
                      "expect-rect weight 1018/301 0 0 w h at 1 1\nkey weight 1018 Escape\n");
}

TEST_F(PlayedGrid, AnEntryOfADropDownCellIsChosen)
{
    Expand();
    ExpectHolds(host, "click weight 1018 1 2\nexpect-count weight 1018/302 2\nexpect-focus weight 1018 1 2\n"
                      "choose weight 1018/302 0\nexpect-cell weight 1018 1 2 \"yes\"\n");
}

TEST_F(PlayedGrid, TheCheckBoxOfTheFocusCellIsToggled)
{
    Expand();
    ExpectHolds(host, "click weight 1018 2 0 check\nexpect-focus weight 1018 2 0\n");
    EXPECT_EQ(grid.FindRow(second)->Item(0).checked, 0);
    ExpectHolds(host, "click weight 1018 2 0 check\n");
    EXPECT_EQ(grid.FindRow(second)->Item(0).checked, 1);
    ExpectHolds(host, "key weight 1018 Space\n");
    EXPECT_EQ(grid.FindRow(second)->Item(0).checked, 0);
}

TEST_F(PlayedGrid, ARowBelowTheVisibleOnesIsScrolledToBeforeTheClick)
{
    for (int i = 0; i < 40; ++i)
        grid.AddTopRow(grid.CreateRow(L"more", 2));
    ExpectHolds(host, "click weight 1018 40 1\nexpect-focus weight 1018 40 1\nclick weight 1018 0 1\n"
                      "expect-focus weight 1018 0 1\n");
}
