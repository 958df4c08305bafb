#include <string>

#include <gtest/gtest.h>

#include <windows.h>

#include <windowsx.h>

#include "test_play.h"
#include "test_windows.h"

namespace
{

/// A dialog that scripts call `calc`: two grids, a diagram, a menu bar and a context menu on the right button.
class MenuDialog : public TestDialog
{
public:
    explicit MenuDialog(HWND owner) : TestDialog(owner, L"Calc")
    {
        const HWND grid = Add(WC_LISTVIEWW, 1000, L"", LVS_REPORT, {10, 10, 200, 80});
        LVCOLUMNW column = {};
        column.mask = LVCF_WIDTH;
        column.cx = 100;
        SendMessageW(grid, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
        LVITEMW item = {};
        SendMessageW(grid, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        Add(WC_LISTVIEWW, 1002, L"", LVS_REPORT, {10, 90, 200, 120});
        Add(WC_STATICW, 1035, L"", 0, {210, 10, 300, 120});

        const HMENU list = CreatePopupMenu();
        AppendMenuW(list, MF_STRING, 32788, L"&Analytic");
        AppendMenuW(list, MF_STRING, 32787, L"&Probabilistic");
        AppendMenuW(list, MF_SEPARATOR, 0, nullptr);
        AppendMenuW(list, MF_STRING, 32772, L"Add &link");
        const HMENU bar = CreateMenu();
        AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(list), L"&Chain");
        SetMenu(Window(), bar);
        OnMessage(Handle);
        Show();
        SetWindowSubclass(grid, OnGrid, 1, reinterpret_cast<DWORD_PTR>(Window()));
    }

    ~MenuDialog() { RemoveWindowSubclass(Control(1000), OnGrid, 1); }

private:
    static bool Handle(TestDialog&, UINT message, WPARAM wParam, LPARAM)
    {
        if (message == WM_INITMENUPOPUP)
        {
            const auto menu = reinterpret_cast<HMENU>(wParam);
            CheckMenuItem(menu, 32788, MF_CHECKED);
            EnableMenuItem(menu, 32772, MF_GRAYED);
        }
        return false;
    }

    static LRESULT CALLBACK OnGrid(HWND grid, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR owner)
    {
        if (message != WM_RBUTTONDOWN)
            return DefSubclassProc(grid, message, wParam, lParam);
        POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ClientToScreen(grid, &point);
        const HMENU menu = CreatePopupMenu();
        AppendMenuW(menu, MF_STRING, 32780, L"&Add");
        AppendMenuW(menu, MF_STRING | MF_GRAYED, 32777, L"&Delete");
        AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuW(menu, MF_STRING, 32778, L"&Edit");
        TrackPopupMenu(menu, TPM_RIGHTBUTTON, point.x, point.y, 0, reinterpret_cast<HWND>(owner), nullptr);
        DestroyMenu(menu);
        return 0;
    }
};

class PlayedMenu : public testing::Test
{
protected:
    TestHost host;
    MenuDialog dialog{host.MainWindow()};
};

}  // namespace

TEST_F(PlayedMenu, TheBarsItemsAreReadAfterTheirPopupWasInitialised)
{
    ExpectHolds(host,
                "expect-menu 32788 enabled checked\nexpect-menu 32787 enabled unchecked\nexpect-menu 32772 disabled\n");
    ExpectFails(host, "expect-menu 32788 enabled unchecked\n", 1, "expected enabled unchecked, found enabled checked");
    ExpectFails(host, "expect-menu 32772 enabled\n", 1, "expected enabled, found disabled");
    ExpectFails(host, "expect-menu 7 enabled\n", 1, "the dialog's menu has no item 7");
}

TEST_F(PlayedMenu, AnItemOfTheContextMenuIsPicked)
{
    ExpectHolds(host,
                "click calc 1000 0 0 right\nexpect-context 1000 32780 enabled\nexpect-context 1000 32777 disabled\n"
                "menu-pick 32778\n");
    EXPECT_EQ(dialog.commands, (std::vector<std::string>{"0:32778"}));
}

TEST_F(PlayedMenu, TheFirstItemIsPickedToo)
{
    ExpectHolds(host, "click calc 1000 0 0 right\nmenu-pick 32780\n");
    EXPECT_EQ(dialog.commands, (std::vector<std::string>{"0:32780"}));
}

TEST_F(PlayedMenu, AMenuIsDismissedWithoutACommand)
{
    ExpectHolds(host, "click calc 1000 0 0 right\nmenu-dismiss\nclick calc 1000 0 0\n");
    EXPECT_TRUE(dialog.commands.empty());
}

TEST_F(PlayedMenu, AGreyedItemCanNotBePicked)
{
    ExpectFails(host, "click calc 1000 0 0 right\nmenu-pick 32777\n", 2, "item 32777 is disabled");
    ExpectFails(host, "click calc 1000 0 0 right\nmenu-pick 7\n", 2, "the menu that is up has no item 7");
    ExpectFails(host, "click calc 1000 0 0 right\nexpect-context 1002 32780 enabled\n", 2,
                "expected the context menu of 1002, found that of 1000");
}

TEST_F(PlayedMenu, AnOpenMenuKeepsMouseAndKeyboard)
{
    ExpectFails(host, "click calc 1000 0 0 right\nexpect-context 1000 32780 enabled\nclick calc 1000 0 0\n", 3,
                "a menu is open");
}

TEST_F(PlayedMenu, TheDialogIsClosedAsByItsCloseBox)
{
    ExpectHolds(host, "close-dialog\n");
    EXPECT_EQ(dialog.commands, (std::vector<std::string>{"0:2"}));
    EnableWindow(dialog.Window(), FALSE);
    ExpectFails(host, "close-dialog\n", 1, "the calculation dialog is disabled");
}
