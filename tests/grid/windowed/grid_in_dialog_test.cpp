#include "grid_window.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"

namespace
{
constexpr UINT kDialogTemplate = 900;
constexpr int kBefore = 901;
constexpr int kAfter = 902;

class GridDialog : public CDialog
{
public:
    CFListCtrl grid;
    int okCount = 0;
    int cancelCount = 0;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        return grid.SubclassDlgItem(1000, this);
    }
    void OnOK() override { ++okCount; }
    void OnCancel() override { ++cancelCount; }
};

class GridInDialog : public testing::Test
{
protected:
    GridInDialog()
    {
        dialog.Create(kDialogTemplate);
        grid.SetRowMode(false);
        grid.InsertFColumn(0, L"tree", LVCFMT_LEFT, 100, true);
        grid.InsertFColumn(1, L"edit", LVCFMT_LEFT, 100, false);
        a = grid.AddTopRow(grid.CreateRow(L"A", -1));
        b = grid.AddTopRow(grid.CreateRow(L"B", -1));
        grid.SetCellKind(a, 1, kCellEdit);
        grid.SetFocusCell(a, 0, false);
        PumpUntilIdle();
        grid.SetFocus();
    }
    ~GridInDialog() override
    {
        dialog.DestroyWindow();
        PumpUntilIdle();
    }

    int FocusedControl() const { return ::GetDlgCtrlID(::GetFocus()); }

    GridDialog dialog;
    CFListCtrl& grid = dialog.grid;
    RowKey a = nullptr;
    RowKey b = nullptr;
};
}  // namespace

TEST_F(GridInDialog, SelectsFullRowsWhenAttachedToATemplateControl)
{
    EXPECT_TRUE(grid.GetExtendedStyle() & LVS_EX_FULLROWSELECT);
}

TEST_F(GridInDialog, TabMovesFromCellToCell)
{
    PressKey(VK_TAB);
    EXPECT_EQ(grid.FocusColumn(), 1);
    PressKey(VK_TAB);
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_EQ(FocusedControl(), 1000);
}

TEST_F(GridInDialog, ControlTabLeavesToTheNextControl)
{
    const HeldKey control(VK_CONTROL);
    PressKey(VK_TAB);
    EXPECT_EQ(FocusedControl(), kAfter);
}

TEST_F(GridInDialog, ControlShiftTabLeavesToThePreviousControl)
{
    const HeldKey control(VK_CONTROL);
    const HeldKey shift(VK_SHIFT);
    PressKey(VK_TAB);
    EXPECT_EQ(FocusedControl(), kBefore);
}

TEST_F(GridInDialog, ControlTabInAnEditorLeavesWithoutCommit)
{
    grid.SetFocusCell(a, 1, false);
    ASSERT_TRUE(grid.OpenEditor());
    const HeldKey control(VK_CONTROL);
    PressKey(VK_TAB);
    EXPECT_EQ(FocusedControl(), kAfter);
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(GridInDialog, EnterOpensAnEditorAndCommitsIt)
{
    grid.SetFocusCell(a, 1, false);
    PressKey(VK_RETURN);
    ASSERT_TRUE(grid.HasEditor());
    TypeText(L"7");
    PressKey(VK_RETURN);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"7");
    EXPECT_EQ(dialog.okCount, 0);
}

TEST_F(GridInDialog, EnterOnATextCellIsNotTheDialogs)
{
    PressKey(VK_RETURN);
    EXPECT_EQ(dialog.okCount, 0);
}

TEST_F(GridInDialog, EscapeIsTheOpenEditorsAndElseTheDialogs)
{
    grid.SetFocusCell(a, 1, false);
    PressKey(VK_RETURN);
    PressKey(VK_ESCAPE);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(dialog.cancelCount, 0);
    PressKey(VK_ESCAPE);
    EXPECT_EQ(dialog.cancelCount, 1);
}

TEST_F(GridInDialog, KeysOfAnOpenButtonAreTheGrids)
{
    for (const UINT key : {VK_RETURN, VK_ESCAPE, VK_TAB, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN})
    {
        SCOPED_TRACE(key);
        grid.SetCellKind(a, 1, kCellButton);
        grid.SetFocusCell(a, 0, false);
        grid.SetFocusCell(a, 1, false);
        ASSERT_TRUE(grid.HasEditor());
        PressKey(key);
        EXPECT_TRUE(::GetFocus() == grid.GetSafeHwnd() || ::GetParent(::GetFocus()) == grid.GetSafeHwnd());
    }
    EXPECT_EQ(dialog.okCount, 0);
    EXPECT_EQ(dialog.cancelCount, 0);
}

// "a" is the mnemonic of a button.
TEST_F(GridInDialog, CharactersAreTheCells)
{
    grid.SetFocusCell(a, 1, false);
    TypeText(L"a");
    EXPECT_TRUE(grid.HasEditor());
}

TEST_F(GridInDialog, RowModeLeavesTabAndEnterToTheDialog)
{
    grid.SetRowMode(true);
    PressKey(VK_RETURN);
    EXPECT_EQ(dialog.okCount, 1);
    PressKey(VK_TAB);
    EXPECT_EQ(FocusedControl(), kAfter);
}

TEST_F(GridInDialog, RowModeLeavesCharactersToTheDialogsMnemonics)
{
    grid.SetRowMode(true);
    TypeText(L"b");
    EXPECT_NE(FocusedControl(), 1000);
}

TEST_F(GridInDialog, RowModeTakesArrowsAndPageKeys)
{
    grid.SetRowMode(true);
    PressKey(VK_DOWN);
    EXPECT_EQ(grid.FocusKey(), b);
    PressKey(VK_PRIOR);
    EXPECT_EQ(grid.FocusKey(), a);
    PressKey(VK_LEFT);
    EXPECT_EQ(FocusedControl(), 1000);
}

namespace
{
struct ClaimCase
{
    const char* name;
    bool rowMode;
    UINT message;
    WPARAM key;
    bool claimed;
};
class GridClaims : public testing::TestWithParam<ClaimCase>
{
};
}  // namespace

TEST_P(GridClaims, MessageIsTakenFromTheDialogOrLeft)
{
    GridWindow window;
    window.grid.SetRowMode(GetParam().rowMode);
    MSG message{};
    message.message = GetParam().message;
    message.wParam = GetParam().key;
    const LRESULT claims = window.grid.SendMessage(WM_GETDLGCODE, GetParam().key, reinterpret_cast<LPARAM>(&message));
    EXPECT_EQ((claims & DLGC_WANTMESSAGE) != 0, GetParam().claimed);
    EXPECT_TRUE(claims & DLGC_WANTARROWS);
    EXPECT_EQ((claims & DLGC_WANTTAB) != 0, !GetParam().rowMode);
    EXPECT_EQ((claims & DLGC_WANTCHARS) != 0, !GetParam().rowMode);
}

INSTANTIATE_TEST_SUITE_P(Messages, GridClaims,
                         testing::Values(ClaimCase{"CellEnter", false, WM_KEYDOWN, VK_RETURN, true},
                                         ClaimCase{"CellEscape", false, WM_KEYDOWN, VK_ESCAPE, false},
                                         ClaimCase{"RowEnter", true, WM_KEYDOWN, VK_RETURN, false},
                                         ClaimCase{"RowEscape", true, WM_KEYDOWN, VK_ESCAPE, false},
                                         ClaimCase{"RowTab", true, WM_KEYDOWN, VK_TAB, false},
                                         ClaimCase{"RowPageUp", true, WM_KEYDOWN, VK_PRIOR, true},
                                         ClaimCase{"RowPageDown", true, WM_KEYDOWN, VK_NEXT, true},
                                         ClaimCase{"RowSpace", true, WM_KEYDOWN, VK_SPACE, true},
                                         ClaimCase{"RowSpaceCharacter", true, WM_CHAR, L' ', true},
                                         ClaimCase{"RowNumericPlus", true, WM_KEYDOWN, VK_ADD, true},
                                         ClaimCase{"RowNumericMinus", true, WM_KEYDOWN, VK_SUBTRACT, true},
                                         ClaimCase{"RowPlusCharacter", true, WM_CHAR, L'+', true},
                                         ClaimCase{"RowMinusCharacter", true, WM_CHAR, L'-', true},
                                         ClaimCase{"RowOtherCharacter", true, WM_CHAR, L'a', false}),
                         [](const testing::TestParamInfo<ClaimCase>& info) { return info.param.name; });
