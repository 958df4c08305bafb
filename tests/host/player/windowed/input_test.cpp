#include <string>

#include <gtest/gtest.h>

#include <windows.h>

#include <windowsx.h>

#include "test_play.h"
#include "test_windows.h"

namespace
{

constexpr DWORD kGridStyle = LVS_REPORT | LVS_SHOWSELALWAYS | WS_TABSTOP;

/// A dialog that scripts call `link`: an edit 1007, a combo box 1006, a box with an edit part 1017, a check box 1009, a
/// slider 1021 and a grid 1000 of three rows and two columns.
class InputDialog : public TestDialog
{
public:
    explicit InputDialog(HWND owner) : TestDialog(owner, L"Link")
    {
        Add(WC_EDITW, 1007, L"0.1", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {10, 10, 110, 30});
        Add(WC_EDITW, 1008, L"0.2", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {120, 10, 220, 30});
        const HWND combo = Add(WC_COMBOBOXW, 1006, L"", WS_TABSTOP | CBS_DROPDOWNLIST, {10, 40, 110, 200});
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"increasing"));
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"decreasing"));
        SendMessageW(combo, CB_SETCURSEL, 0, 0);
        const HWND box =
            Add(WC_COMBOBOXEXW, 1017, L"", WS_TABSTOP | CBS_DROPDOWN | CBS_AUTOHSCROLL, {120, 40, 220, 200});
        for (const wchar_t* text : {L"H7", L"h6", L"js6"})
        {
            COMBOBOXEXITEMW item = {};
            item.mask = CBEIF_TEXT;
            item.iItem = -1;
            item.pszText = const_cast<wchar_t*>(text);
            SendMessageW(box, CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        Add(WC_BUTTONW, 1009, L"fixed", WS_TABSTOP | BS_AUTOCHECKBOX, {230, 10, 330, 30});
        const HWND slider = Add(TRACKBAR_CLASSW, 1021, L"", WS_TABSTOP | TBS_AUTOTICKS, {230, 40, 400, 70});
        SendMessageW(slider, TBM_SETRANGE, TRUE, MAKELPARAM(1, 10));
        SendMessageW(slider, TBM_SETPOS, TRUE, 1);
        const HWND grid = Add(WC_LISTVIEWW, 1000, L"", kGridStyle, {10, 80, 300, 220});
        SendMessageW(grid, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
        for (int column = 0; column < 2; ++column)
        {
            LVCOLUMNW description = {};
            description.mask = LVCF_WIDTH | LVCF_TEXT;
            description.cx = 100;
            description.pszText = const_cast<wchar_t*>(L"title");
            SendMessageW(grid, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&description));
        }
        for (int row = 0; row < 3; ++row)
        {
            LVITEMW item = {};
            item.mask = LVIF_TEXT;
            item.iItem = row;
            item.pszText = const_cast<wchar_t*>(L"row");
            SendMessageW(grid, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        Show();
    }

    bool Received(const std::string& command) const
    {
        return std::find(commands.begin(), commands.end(), command) != commands.end();
    }
};

class PlayedInput : public testing::Test
{
protected:
    TestHost host;
    InputDialog dialog{host.MainWindow()};
};

/// What a control was sent, seen by a subclass of its window.
class Listener
{
public:
    explicit Listener(HWND control) : m_control(control)
    {
        SetWindowSubclass(control, Listen, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Listener() { RemoveWindowSubclass(m_control, Listen, 1); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    std::vector<std::string> heard;

private:
    static LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self)
    {
        std::vector<std::string>& heard = reinterpret_cast<Listener*>(self)->heard;
        const auto modifiers = [] {
            return std::string(GetKeyState(VK_SHIFT) < 0 ? "Shift+" : "") +
                   (GetKeyState(VK_CONTROL) < 0 ? "Ctrl+" : "") + (GetKeyState(VK_MENU) < 0 ? "Alt+" : "");
        };
        const std::string place = std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
        switch (message)
        {
        case WM_GETDLGCODE:
            return DLGC_WANTALLKEYS | DefSubclassProc(window, message, wParam, lParam);
        case WM_KEYDOWN:
            heard.push_back("key " + modifiers() + std::to_string(wParam));
            break;
        case WM_SYSKEYDOWN:
            heard.push_back("syskey " + modifiers() + std::to_string(wParam));
            break;
        case WM_CHAR:
            heard.push_back("char " + std::to_string(wParam));
            break;
        case WM_LBUTTONDOWN:
            heard.push_back("down " + place);
            break;
        case WM_LBUTTONUP:
            heard.push_back("up " + place);
            break;
        case WM_LBUTTONDBLCLK:
            heard.push_back("double " + place);
            break;
        case WM_RBUTTONDOWN:
            heard.push_back("right down " + place);
            return 0;
        case WM_RBUTTONUP:
            heard.push_back("right up " + place);
            return 0;
        default:
            break;
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_control;
};

}  // namespace

TEST_F(PlayedInput, TypingReplacesAnEditsText)
{
    ExpectHolds(host, "type link 1007 \"-0.039\"\nexpect-text link 1007 \"-0.039\"\n"
                      "type link 1007 \"a b \xC3\xA9\"\nexpect-text link 1007 \"a b \xC3\xA9\"\n");
    EXPECT_TRUE(dialog.Received(std::to_string(EN_CHANGE) + ":1007"));
}

TEST_F(PlayedInput, TypingNothingEmptiesTheEdit)
{
    ExpectHolds(host, "type link 1007 \"\"\nexpect-text link 1007 \"\"\ntype link 1007 \"\"\n");
    EXPECT_TRUE(dialog.Received(std::to_string(EN_CHANGE) + ":1007"));
}

TEST_F(PlayedInput, TypingReachesTheEditPartOfABox)
{
    ExpectHolds(host, "type link 1017 \"k6\"\nexpect-text link 1017 \"k6\"\nexpect-focused link 1017\n");
    EXPECT_TRUE(dialog.Received(std::to_string(CBN_EDITCHANGE) + ":1017"));
}

TEST_F(PlayedInput, TypingNeedsSomethingToEdit)
{
    ExpectFails(host, "type link 1009 \"x\"\n", 1, "the control has no text to edit");
    ExpectFails(host, "type link 1006 \"x\"\n", 1, "the control has no text to edit");
    SendMessageW(dialog.Control(1007), EM_SETREADONLY, TRUE, 0);
    ExpectFails(host, "type link 1007 \"x\"\n", 1, "the control's text can't be changed");
    EnableWindow(dialog.Control(1017), FALSE);
    ExpectFails(host, "type link 1017 \"x\"\n", 1, "control 1017 is disabled");
}

TEST_F(PlayedInput, ChoosingDropsDownPicksAndClosesUp)
{
    ExpectHolds(host, "choose link 1006 1\nexpect-selected link 1006 1\nexpect-text link 1006 \"decreasing\"\n");
    EXPECT_TRUE(dialog.Received(std::to_string(CBN_DROPDOWN) + ":1006"));
    EXPECT_TRUE(dialog.Received(std::to_string(CBN_SELCHANGE) + ":1006"));
    EXPECT_TRUE(dialog.Received(std::to_string(CBN_CLOSEUP) + ":1006"));
}

TEST_F(PlayedInput, ChoosingWorksInAnExtendedBox)
{
    ExpectHolds(host, "choose link 1017 2\nexpect-selected link 1017 2\nexpect-text link 1017 \"js6\"\n");
    EXPECT_TRUE(dialog.Received(std::to_string(CBN_SELCHANGE) + ":1017"));
}

TEST_F(PlayedInput, ChoosingAnEntryThatThereIsNotFails)
{
    ExpectFails(host, "choose link 1006 2\n", 1, "expected entry 2, found 2 entries");
    ExpectFails(host, "choose link 1007 0\n", 1, "the control is no combo box");
}

TEST_F(PlayedInput, ALongListIsScrolledToTheEntry)
{
    const HWND combo = dialog.Control(1006);
    for (int i = 0; i < 60; ++i)
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"more"));
    ExpectHolds(host,
                "choose link 1006 50\nexpect-selected link 1006 50\nchoose link 1006 0\nexpect-selected link 1006 0\n");
}

TEST_F(PlayedInput, ASliderIsMovedByItsOwnMessages)
{
    ExpectHolds(host,
                "slide link 1021 4\nexpect-selected link 1021 4\nslide link 1021 2\nexpect-selected link 1021 2\n");
    EXPECT_EQ(std::count(dialog.scrolls.begin(), dialog.scrolls.end(), TB_LINEDOWN), 3);
    EXPECT_EQ(std::count(dialog.scrolls.begin(), dialog.scrolls.end(), TB_LINEUP), 2);
    ExpectFails(host, "slide link 1021 11\n", 1, "expected position 11, found a slider from 1 to 10");
}

TEST_F(PlayedInput, PressingTogglesACheckBox)
{
    ExpectHolds(host, "expect-checked link 1009 no\npress link 1009\nexpect-checked link 1009 yes\n"
                      "press link 1009\nexpect-checked link 1009 no\n");
    ExpectFails(host, "press link 1007\n", 1, "the control is no button");
}

TEST_F(PlayedInput, TabMovesThroughTheDialog)
{
    ExpectHolds(host,
                "key link 1007 Tab\nexpect-focused link 1008\nkey link 1008 Shift+Tab\nexpect-focused link 1007\n");
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST_F(PlayedInput, EveryKeyArrivesWithItsModifiers)
{
    Listener grid(dialog.Control(1000));
    ExpectHolds(host, "key link 1000 Shift+Tab\nkey link 1000 Ctrl+Left\nkey link 1000 Ctrl+Shift+Tab\n"
                      "key link 1000 F2\nkey link 1000 Plus\nkey link 1000 Alt+Down\n");
    EXPECT_EQ(grid.heard, (std::vector<std::string>{"key Shift+9", "char 9", "key Ctrl+37", "key Shift+Ctrl+9",
                                                    "key 113", "key 107", "char 43", "syskey Alt+40"}));
}

TEST_F(PlayedInput, CharactersComeOneByOneAndASpaceAsItsKey)
{
    Listener grid(dialog.Control(1000));
    ExpectHolds(host, "char link 1000 \"1 b\"\n");
    EXPECT_EQ(grid.heard, (std::vector<std::string>{"char 49", "key 32", "char 32", "char 98"}));
}

TEST_F(PlayedInput, AKeyGoesToTheEditorThatIsOpenInAGrid)
{
    const HWND grid = dialog.Control(1000);
    const HWND editor = CreateWindowW(WC_EDITW, L"", WS_CHILD | WS_VISIBLE, 100, 30, 80, 20, grid,
                                      reinterpret_cast<HMENU>(301), nullptr, nullptr);
    SetFocus(editor);
    Listener heard(editor);
    ExpectHolds(host, "char link 1000 \"7\"\nkey link 1000 Escape\nexpect-text link 1000/301 \"7\"\n"
                      "expect-focused link 1000/301\n");
    EXPECT_EQ(heard.heard, (std::vector<std::string>{"char 55", "key 27", "char 27"}));
    ExpectFails(host, "expect-focused link 1000\n", 1, "expected the keyboard at link 1000, found link 1000/301");
}

// Columns of 100 pixels: column 1 reaches from 100 to 200. The header is 24 or so pixels high, so only x is exact.
TEST_F(PlayedInput, AClickFallsOnTheMiddleOfItsCell)
{
    Listener grid(dialog.Control(1000));
    ExpectHolds(host, "click link 1000 1 1\n");
    ASSERT_EQ(grid.heard.size(), 2U);
    EXPECT_EQ(grid.heard[0].substr(0, 9), "down 150,");
    EXPECT_EQ(ListView_GetNextItem(dialog.Control(1000), -1, LVNI_FOCUSED), 1);
    ExpectFails(host, "click link 1000 3 0\n", 1, "expected row 3, found 3 rows");
    ExpectFails(host, "click link 1000 0 2\n", 1, "expected column 2, found 2 columns");
    ExpectFails(host, "click link 1000 0 0 expand\n", 1, "row 0 shows no expand image");
}

// Far more rows than the 140 pixels of the grid have room for, and two columns of 200 in its 290.
TEST_F(PlayedInput, ACellOutOfViewIsScrolledToBeforeTheClick)
{
    const HWND list = dialog.Control(1000);
    for (int row = 3; row < 40; ++row)
    {
        LVITEMW item = {};
        item.iItem = row;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    for (const int column : {0, 1})
        ListView_SetColumnWidth(list, column, 200);
    ExpectHolds(host, "click link 1000 39 1\n");
    EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_FOCUSED), 39);
    Listener grid(list);
    ExpectHolds(host, "click link 1000 0 0\n");
    EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_FOCUSED), 0);
    ASSERT_FALSE(grid.heard.empty());
    EXPECT_EQ(grid.heard[0].substr(0, 9), "down 100,");
}

TEST_F(PlayedInput, ADoubleClickIsTwoClicks)
{
    Listener grid(dialog.Control(1000));
    ExpectHolds(host, "click link 1000 0 1 double\n");
    ASSERT_EQ(grid.heard.size(), 4U);
    EXPECT_EQ(grid.heard[0].substr(0, 4), "down");
    EXPECT_EQ(grid.heard[1].substr(0, 2), "up");
    EXPECT_EQ(grid.heard[2].substr(0, 6), "double");
    EXPECT_EQ(grid.heard[3].substr(0, 2), "up");
}

TEST_F(PlayedInput, ARightClickIsPressAndRelease)
{
    Listener grid(dialog.Control(1000));
    ExpectHolds(host, "click link 1000 0 1 right\n");
    ASSERT_EQ(grid.heard.size(), 2U);
    EXPECT_EQ(grid.heard[0].substr(0, 15), "right down 150,");
    EXPECT_EQ(grid.heard[1].substr(0, 13), "right up 150,");
}

// The edit is 100 pixels wide with a border of one pixel each: 98 inside.
TEST_F(PlayedInput, AClickAtAPointIsMeasuredInTheControl)
{
    RECT client = {};
    GetClientRect(dialog.Control(1007), &client);
    Listener edit(dialog.Control(1007));
    ExpectHolds(host, "click-at link 1007 w/2+10 h-3\n");
    ASSERT_FALSE(edit.heard.empty());
    EXPECT_EQ(edit.heard[0], "down " + std::to_string(client.right / 2 + 10) + "," + std::to_string(client.bottom - 3));
    ExpectFails(host, "click-at link 1007 w 3\n", 1, "expected a point of the control");
}

TEST_F(PlayedInput, AClickAtAPointOfTheWindowReachesTheControlThere)
{
    ExpectHolds(host, "click-at link window 240 20\nexpect-checked link 1009 yes\n");
}

TEST_F(PlayedInput, AClickAtAPointMayBeMeasuredInACell)
{
    Listener grid(dialog.Control(1000));
    ExpectHolds(host, "click-at link 1000 w-5 h/2 at 2 0\n");
    ASSERT_FALSE(grid.heard.empty());
    EXPECT_EQ(grid.heard[0].substr(0, 8), "down 95,");
    EXPECT_EQ(ListView_GetNextItem(dialog.Control(1000), -1, LVNI_FOCUSED), 2);
}
