#include "grid_window.h"
#include "tests/support/framework_printers.h"
#include "tests/support/message_pump.h"

namespace
{
using Told = std::vector<std::string>;

// Two rows; column 2, 210 to 290, of A is a button cell, whose button is up.
class ButtonEditor : public GridTest
{
protected:
    ButtonEditor()
    {
        grid.SetCellKind(a, 2, kCellButton);
        grid.SetFocusCell(a, 2, true);
        window.TakeTold();
    }

    HWND Button() const { return Editor(303); }
    void Mouse(UINT message, int x, int y)
    {
        ::PostMessageW(Button(), message, message != WM_LBUTTONUP ? MK_LBUTTON : 0, MAKELPARAM(x, y));
        PumpUntilIdle();
    }

    RowKey a = window.AddTop(L"A");
    RowKey b = window.AddTop(L"B");
};
}  // namespace

TEST_F(ButtonEditor, IsASquareAtTheRightEndOfTheCell)
{
    CRect place;
    ::GetWindowRect(Button(), &place);
    grid.ScreenToClient(&place);
    const CRect cell = grid.GetCellRect(a, 2);
    EXPECT_EQ(place, CRect(cell.right - cell.Height(), cell.top, cell.right, cell.bottom));
}

TEST_F(ButtonEditor, ShowsThreeDots)
{
    CString text;
    CWnd::FromHandle(Button())->GetWindowText(text);
    EXPECT_EQ(text, L"...");
    EXPECT_EQ(::GetFocus(), Button());
}

TEST_F(ButtonEditor, IsAVisiblePushButton)
{
    constexpr LONG kStyle = WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON;
    EXPECT_EQ(::GetWindowLongW(Button(), GWL_STYLE) & (WS_CHILD | WS_VISIBLE | BS_TYPEMASK), kStyle);
}

TEST_F(ButtonEditor, HasTheGridsFont)
{
    grid.SetFocusCell(a, 1, false);
    const LargeGridFont font(grid);
    grid.SetFocusCell(a, 2, false);
    EXPECT_NE(grid.SendMessage(WM_GETFONT), 0);
    EXPECT_EQ(::SendMessageW(Button(), WM_GETFONT, 0, 0), grid.SendMessage(WM_GETFONT));
}

TEST_F(ButtonEditor, CellKnowsOfItsButton)
{
    EXPECT_EQ(grid.FindRow(a)->Item(2).buttonShown, 1);
    PressKey(VK_LEFT);
    EXPECT_EQ(grid.FindRow(a)->Item(2).buttonShown, 0);
}

TEST_F(ButtonEditor, EnterIsAPressAndTheButtonIsBack)
{
    PressKey(VK_RETURN);
    EXPECT_EQ(window.TakeTold(), (Told{"1122 A 2 \"A2\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
    EXPECT_NE(Button(), nullptr);
}

TEST_F(ButtonEditor, AnswerToAPressIsIgnored)
{
    for (const LRESULT answer : {LRESULT{1}, kGridKeepFocus})
    {
        SCOPED_TRACE(answer);
        window.answers[kGridButtonPressed] = answer;
        PressKey(VK_RETURN);
        EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
        EXPECT_NE(Button(), nullptr);
    }
}

TEST_F(ButtonEditor, ReleasedOverItIsAPress)
{
    Mouse(WM_LBUTTONDOWN, 5, 5);
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(::GetCapture(), Button());
    Mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(window.TakeTold(), (Told{"1122 A 2 \"A2\""}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

// The second of two quick presses arrives as a double click.
TEST_F(ButtonEditor, ReleasedOverItAfterADoubleClickIsAPress)
{
    Mouse(WM_LBUTTONDOWN, 5, 5);
    Mouse(WM_LBUTTONUP, 500, 5);
    Mouse(WM_LBUTTONDBLCLK, 5, 5);
    EXPECT_TRUE(window.TakeTold().empty());
    Mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(window.TakeTold(), (Told{"1122 A 2 \"A2\""}));
}

TEST_F(ButtonEditor, ReleasedElsewhereIsNothing)
{
    Mouse(WM_LBUTTONDOWN, 5, 5);
    Mouse(WM_LBUTTONUP, 500, 5);
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_NE(Button(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ButtonEditor, ReleasedOverItAfterAPressElsewhereIsNothing)
{
    Mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(ButtonEditor, MovingKeysEndItWithoutAPress)
{
    for (const UINT key : {VK_TAB, VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT})
    {
        SCOPED_TRACE(key);
        grid.SetFocusCell(a, 2, false);
        const HWND button = Button();
        ASSERT_NE(button, nullptr);
        window.TakeTold();
        PressKey(key);
        EXPECT_FALSE(::IsWindow(button));
        for (const std::string& line : window.TakeTold())
            EXPECT_EQ(line.substr(0, 4), "1116");
    }
}

TEST_F(ButtonEditor, SpaceEndsItWithoutAPress)
{
    PressKey(VK_SPACE);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(ButtonEditor, EscapeBringsItBackWithoutAPress)
{
    const HWND former = Button();
    PressKey(VK_ESCAPE);
    EXPECT_FALSE(::IsWindow(former) && former != Button());
    EXPECT_NE(Button(), nullptr);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(ButtonEditor, OtherKeysArePassedOn)
{
    for (const UINT key : {VK_HOME, VK_END, VK_DELETE, VK_F2})
        PressKey(key);
    EXPECT_NE(Button(), nullptr);
}

TEST_F(ButtonEditor, GrowsToItsTextAfterACharacter)
{
    ::SetWindowTextW(Button(), L"a text wider than the button");
    CRect before;
    ::GetWindowRect(Button(), &before);
    TypeText(L"x");
    CRect after;
    ::GetWindowRect(Button(), &after);
    EXPECT_EQ(after.left, before.left);
    EXPECT_GT(after.Width(), 3 * before.Width());
}

TEST_F(ButtonEditor, GrownWidthIsThatOfItsTextInTheGridsFontAndFivePixels)
{
    grid.SetFocusCell(a, 1, false);
    const LargeGridFont font(grid);
    grid.SetFocusCell(a, 2, false);
    ::SetWindowTextW(Button(), L"wider than the button");
    TypeText(L"x");
    CRect client;
    ::GetClientRect(Button(), &client);
    EXPECT_EQ(client.Width(), font.WidthOf(L"wider than the button") + 5);
}

// A level of 20 pixels, 20 for an image and 5 of margin don't fit into 10.
TEST_F(ButtonEditor, StandsBehindTheIndentationInAColumnNarrowerThanThat)
{
    const RowKey child = window.AddChild(a, L"C");
    grid.SetCellKind(child, 0, kCellButton);
    grid.ExpandRow(a);
    grid.SetColumnWidth(0, 10);
    grid.SetFocusCell(child, 0, false);
    CRect place;
    ::GetWindowRect(Button(), &place);
    grid.ScreenToClient(&place);
    EXPECT_EQ(place.right, 45);
    EXPECT_EQ(place.Width(), grid.GetCellRect(child, 0).Height());
}

TEST_F(ButtonEditor, RowDeletedUnderItClosesItWithoutAPress)
{
    const HWND button = Button();
    grid.DeleteRow(a);
    EXPECT_FALSE(::IsWindow(button));
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(ButtonEditor, ParentMayMoveTheKeyboardElsewhereWhenPressed)
{
    window.onTold = [&](const NMFLISTCTRL&) { ::SetFocus(window.GetSafeHwnd()); };
    PressKey(VK_RETURN);
    EXPECT_EQ(::GetFocus(), window.GetSafeHwnd());
    EXPECT_FALSE(grid.HasEditor());
}
