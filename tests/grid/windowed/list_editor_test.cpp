#include "grid_window.h"
#include "tests/support/framework_printers.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/message_pump.h"
#include "tests/support/resource_count.h"

namespace
{
using Told = std::vector<std::string>;

LOGFONT FontOf(HWND window)
{
    LOGFONT description{};
    ::GetObjectW(reinterpret_cast<HGDIOBJ>(::SendMessageW(window, WM_GETFONT, 0, 0)), sizeof(description),
                 &description);
    return description;
}

// Two rows; column 2, 210 to 290, is a drop-down list cell with the entries one, two, three. The focus is on A's first
// cell.
class ListEditor : public GridTest
{
protected:
    ListEditor()
    {
        window.entries = {{L"one", 11}, {L"two", 12}, {L"three", 13}};
        window.selectedEntry = 0;
        for (const RowKey key : {a, b})
            grid.SetCellKind(key, 2, kCellList);
        grid.SetFocusCell(a, 1, true);
        window.TakeTold();
    }

    /// Moves the focus to A's list cell, which opens its editor.
    HWND OpenIt()
    {
        grid.SetFocusCell(a, 2, true);
        window.TakeTold();
        return List();
    }
    HWND List() const { return Editor(302); }
    bool IsDropped() const { return ::SendMessageW(List(), CB_GETDROPPEDSTATE, 0, 0) != 0; }

    RowKey a = window.AddTop(L"A");
    RowKey b = window.AddTop(L"B");
};
}  // namespace

TEST_F(ListEditor, ShowsTheParentsEntriesWithTheirValues)
{
    window.selectedEntry = 1;
    const HWND list = OpenIt();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(::SendMessageW(list, CB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(::SendMessageW(list, CB_GETITEMDATA, 2, 0), 13);
    EXPECT_EQ(::SendMessageW(list, CB_GETCURSEL, 0, 0), 1);
    CString text;
    CWnd::FromHandle(list)->GetWindowText(text);
    EXPECT_EQ(text, L"two");
    EXPECT_EQ(::GetFocus(), list);
}

TEST_F(ListEditor, SelectsNothingWhenTheParentNamesNone)
{
    window.selectedEntry = -1;
    EXPECT_EQ(::SendMessageW(OpenIt(), CB_GETCURSEL, 0, 0), CB_ERR);
}

TEST_F(ListEditor, ClosedListCoversTheCellExactly)
{
    const HWND list = OpenIt();
    CRect place;
    ::GetWindowRect(list, &place);
    grid.ScreenToClient(&place);
    EXPECT_EQ(place, grid.GetCellRect(a, 2));
}

// It shows whole entries only.
TEST_F(ListEditor, DropDownPartIsTenCellsHighLessAPartOfAnEntry)
{
    window.entries.assign(40, {L"entry", 1});
    const HWND list = OpenIt();
    ::SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(list, &info));
    CRect part;
    ::GetWindowRect(info.hwndList, &part);
    grid.ScreenToClient(&part);
    const CRect cell = grid.GetCellRect(a, 2);
    EXPECT_EQ(part.top, cell.bottom);
    EXPECT_EQ(part.left, cell.left);
    EXPECT_EQ(part.right, cell.right);
    EXPECT_GT(part.Height(), 9 * cell.Height());
    EXPECT_LE(part.Height(), 10 * cell.Height());
}

namespace
{
/// Windows that are made in its life have the common controls of version 6, as in a program whose manifest asks for
/// them.
class VersionSixControls
{
public:
    VersionSixControls()
    {
        constexpr WORD kManifest = 903;
        ACTCTXW description{};
        description.cbSize = sizeof(description);
        description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        description.hModule = ::GetModuleHandleW(nullptr);
        description.lpResourceName = MAKEINTRESOURCEW(kManifest);
        m_context = ::CreateActCtxW(&description);
        EXPECT_NE(m_context, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(::ActivateActCtx(m_context, &m_cookie));
    }
    ~VersionSixControls()
    {
        ::DeactivateActCtx(0, m_cookie);
        ::ReleaseActCtx(m_context);
    }
    VersionSixControls(const VersionSixControls&) = delete;
    VersionSixControls& operator=(const VersionSixControls&) = delete;

private:
    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
};
}  // namespace

TEST_F(ListEditor, DropDownPartIsTenCellsHighUnderTheControlsOfVersionSix)
{
    window.entries.assign(40, {L"entry", 1});
    const VersionSixControls controls;
    const HWND list = OpenIt();
    ::SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(list, &info));
    CRect part;
    ::GetWindowRect(info.hwndList, &part);
    const int cellHeight = grid.GetCellRect(a, 2).Height();
    EXPECT_GT(part.Height(), 9 * cellHeight);
    EXPECT_LE(part.Height(), 10 * cellHeight);
}

// The combo box hands the scroll bar it was created with on to its drop-down part.
TEST_F(ListEditor, HasItsStyleWithoutClientEdge)
{
    const HWND list = OpenIt();
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_DISABLENOSCROLL;
    EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(list, GWL_STYLE)) & kStyle, kStyle);
    EXPECT_EQ(::GetWindowLongW(list, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(list, &info));
    EXPECT_TRUE(::GetWindowLongW(info.hwndList, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(ListEditor, FontIsBoldInABoldRow)
{
    EXPECT_LT(FontOf(OpenIt()).lfWeight, FW_BOLD);
    grid.SetFocusCell(a, 0, false);
    grid.SetRowBold(a, true);
    EXPECT_EQ(FontOf(OpenIt()).lfWeight, FW_BOLD);
}

TEST_F(ListEditor, FontIsOtherwiseTheGrids)
{
    const LargeGridFont large(grid);
    const LOGFONT ofTheGrid = FontOf(grid.GetSafeHwnd());
    const LOGFONT ofTheList = FontOf(OpenIt());
    EXPECT_EQ(ofTheList.lfHeight, ofTheGrid.lfHeight);
    EXPECT_STREQ(ofTheList.lfFaceName, ofTheGrid.lfFaceName);
}

TEST_F(ListEditor, ParentCanForbidIt)
{
    window.answers[kGridListContents] = 1;
    EXPECT_EQ(OpenIt(), nullptr);
    EXPECT_EQ(::GetDlgItem(grid.GetSafeHwnd(), 302), nullptr);
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(ListEditor, NoEntriesOpenNoList)
{
    window.entries.clear();
    EXPECT_EQ(OpenIt(), nullptr);
}

TEST_F(ListEditor, EnterOpensAndASecondEnterCommitsTheHighlightedEntry)
{
    OpenIt();
    PressKey(VK_RETURN);
    EXPECT_TRUE(IsDropped());
    PressKey(VK_DOWN);
    EXPECT_TRUE(IsDropped());
    EXPECT_TRUE(window.TakeTold().empty());
    PressKey(VK_RETURN);
    EXPECT_EQ(window.TakeTold(), (Told{"1124 A 2 \"two\" extra=12", "1121 A 2 \"two\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"two");
    EXPECT_EQ(grid.GetItemText(0, 2), L"two");
}

// After Enter a drop-down cell opens its editor again.
TEST_F(ListEditor, EditorIsBackAfterACommit)
{
    const HWND former = OpenIt();
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    EXPECT_NE(List(), nullptr);
    EXPECT_FALSE(::IsWindow(former) && former != List());
    EXPECT_EQ(::GetFocus(), List());
}

TEST_F(ListEditor, VetoOfTheParentKeepsTheOldText)
{
    window.answers[kGridEndList] = 1;
    OpenIt();
    PressKey(VK_RETURN);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_EQ(window.TakeTold(), (Told{"1124 A 2 \"two\" extra=12", "1121 A 2 \"A2\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
}

TEST_F(ListEditor, MinusFiveStoresNothingAndLeavesTheFocusInTheGrid)
{
    window.answers[kGridEndList] = -5;
    OpenIt();
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    EXPECT_EQ(window.TakeTold(), (Told{"1124 A 2 \"one\" extra=11"}));
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(::GetFocus(), grid.GetSafeHwnd());
    EXPECT_EQ(grid.FocusKey(), a);
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(ListEditor, EntryPickedWithTheMouseCommitsAtOnce)
{
    PickByMouse(OpenIt(), 2);
    EXPECT_EQ(window.TakeTold(), (Told{"1124 A 2 \"three\" extra=13", "1121 A 2 \"three\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"three");
}

// The combo box is in the midst of its own work then.
TEST_F(ListEditor, WindowStaysUntilTheMessageThatEndedItIsHandled)
{
    const HWND list = OpenIt();
    bool existed = false;
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridEndList)
            existed = ::IsWindow(list) != FALSE;
    };
    ::SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
    ::SendMessageW(list, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(existed);
    EXPECT_TRUE(::IsWindow(list));
    PumpUntilIdle();
    EXPECT_FALSE(::IsWindow(list) && list != List());
}

// A message box handles what was posted before.
TEST_F(ListEditor, WindowStaysWhileTheParentShowsAMessage)
{
    for (const bool byMouse : {false, true})
    {
        SCOPED_TRACE(byMouse ? "mouse" : "key");
        const HWND list = OpenIt();
        bool exists = false;
        window.onTold = [&](const NMFLISTCTRL& record) {
            if (record.hdr.code != kGridEndList)
                return;
            ExpectMessageBox message;
            window.MessageBox(L"message");
            exists = ::IsWindow(list) != FALSE;
        };
        if (byMouse)
            PickByMouse(list, 1);
        else
        {
            PressKey(VK_RETURN);
            PressKey(VK_RETURN);
        }
        EXPECT_TRUE(exists);
        EXPECT_FALSE(::IsWindow(list));
        window.onTold = nullptr;
        grid.SetFocusCell(a, 1, true);
    }
}

TEST_F(ListEditor, EscapeDoesNotCommit)
{
    OpenIt();
    PressKey(VK_RETURN);
    PressKey(VK_DOWN);
    PressKey(VK_ESCAPE);
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
    EXPECT_EQ(window.TakeTold(), (Told{"1121 A 2 \"A2\""}));
}

TEST_F(ListEditor, TabDoesNotCommitAndMovesOn)
{
    for (const bool dropped : {false, true})
    {
        SCOPED_TRACE(dropped);
        OpenIt();
        if (dropped)
            PressKey(VK_RETURN);
        PressKey(VK_TAB);
        EXPECT_EQ(window.TakeTold(), (Told{"1116 B 0 \"B\""}));
        EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
        EXPECT_FALSE(grid.HasEditor());
        EXPECT_EQ(::GetDlgItem(grid.GetSafeHwnd(), 302), nullptr);
    }
}

TEST_F(ListEditor, ClickElsewhereDoesNotCommit)
{
    for (const bool dropped : {false, true})
    {
        SCOPED_TRACE(dropped);
        const HWND list = OpenIt();
        if (dropped)
        {
            PressKey(VK_RETURN);
            PressKey(VK_DOWN);
        }
        // While it is dropped the list has the mouse captured: Windows sends it the click first.
        const HWND captured = ::GetCapture();
        if (captured != nullptr)
        {
            CPoint point = CellCentre(b, 0);
            ::MapWindowPoints(grid.GetSafeHwnd(), captured, &point, 1);
            ::PostMessageW(captured, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
            PumpUntilIdle();
        }
        LeftClick(grid, CellCentre(b, 0));
        EXPECT_EQ(window.TakeTold(), (Told{"1116 B 0 \"B\""}));
        EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
        EXPECT_FALSE(::IsWindow(list));
    }
}

TEST_F(ListEditor, UpAndDownMoveWhileTheListIsClosed)
{
    OpenIt();
    PressKey(VK_DOWN);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 B 2 \"B2\"", "1121 B 2 \"B2\""}));
    EXPECT_NE(List(), nullptr);
    PressKey(VK_UP);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 A 2 \"A2\"", "1121 A 2 \"A2\""}));
}

TEST_F(ListEditor, PageKeysMoveWhileTheListIsClosed)
{
    OpenIt();
    PressKey(VK_NEXT);
    EXPECT_EQ(grid.FocusKey(), b);
    PressKey(VK_PRIOR);
    EXPECT_EQ(grid.FocusKey(), a);
}

TEST_F(ListEditor, ArrowsAndPageKeysAreTheOpenLists)
{
    OpenIt();
    PressKey(VK_RETURN);
    for (const UINT key : {VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR})
    {
        PressKey(key);
        EXPECT_TRUE(IsDropped());
    }
    EXPECT_TRUE(window.TakeTold().empty());
}

// Column 2 is the last: to the right there is no cell to go to.
TEST_F(ListEditor, LeftAndRightEndItWithoutCommit)
{
    for (const bool dropped : {false, true})
        for (const UINT key : {VK_LEFT, VK_RIGHT})
        {
            SCOPED_TRACE(testing::Message() << "key " << key << (dropped ? ", open" : ", closed"));
            const HWND list = OpenIt();
            if (dropped)
            {
                PressKey(VK_RETURN);
                PressKey(VK_DOWN);
            }
            PressKey(key);
            EXPECT_EQ(window.TakeTold(), key == VK_LEFT ? Told{"1116 A 1 \"A1\""} : Told{});
            EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
            EXPECT_FALSE(grid.HasEditor());
            EXPECT_FALSE(::IsWindow(list));
            grid.SetFocusCell(a, 1, true);
        }
}

TEST_F(ListEditor, EscapeOnTheClosedListBringsItBack)
{
    const HWND former = OpenIt();
    PressKey(VK_ESCAPE);
    EXPECT_EQ(window.TakeTold(), (Told{"1121 A 2 \"A2\""}));
    EXPECT_FALSE(::IsWindow(former) && former != List());
    ASSERT_NE(List(), nullptr);
    EXPECT_FALSE(IsDropped());
}

TEST_F(ListEditor, SpaceIsTheLists)
{
    OpenIt();
    PressKey(VK_SPACE);
    EXPECT_NE(List(), nullptr);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(ListEditor, ScrollingClosesItWithoutCommit)
{
    const HWND list = OpenIt();
    PressKey(VK_RETURN);
    PressKey(VK_DOWN);
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
    PumpUntilIdle();
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ(grid.FindRow(a)->Text(2), L"A2");
}

TEST_F(ListEditor, WheelOverTheClosedListScrollsTheGridAndLeavesTheFocusRow)
{
    for (int row = 0; row < 20; ++row)
        window.AddTop(L"V");
    const HWND list = OpenIt();
    ASSERT_EQ(grid.GetTopIndex(), 0);
    ::SendMessageW(list, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), a);
    EXPECT_GT(grid.GetTopIndex(), 0);
    EXPECT_TRUE(window.TakeTold().empty());
    PumpUntilIdle();
    EXPECT_FALSE(::IsWindow(list));
}

TEST_F(ListEditor, WheelIsTheOpenLists)
{
    for (int row = 0; row < 20; ++row)
        window.AddTop(L"V");
    const HWND list = OpenIt();
    PressKey(VK_RETURN);
    ::SendMessageW(list, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_EQ(List(), list);
    EXPECT_TRUE(IsDropped());
    EXPECT_EQ(grid.GetTopIndex(), 0);
}

// Its window is still there then, without being the open editor.
TEST_F(ListEditor, KeyAfterItsEndIsNobodys)
{
    const HWND former = OpenIt();
    ::SendMessageW(former, WM_KEYDOWN, VK_DOWN, 0);
    ASSERT_EQ(grid.FocusKey(), b);
    const HWND open = List();
    ASSERT_TRUE(::IsWindow(former));
    ::SendMessageW(former, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(List(), open);
}

TEST_F(ListEditor, RowDeletedUnderItClosesItWithoutCommit)
{
    const HWND list = OpenIt();
    PressKey(VK_RETURN);
    grid.DeleteRow(a);
    PumpUntilIdle();
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_FALSE(grid.HasEditor());
}

namespace
{
/// Lets no drop-down part be made, so that the combo box it belongs to fails too.
class NoDropDownParts
{
public:
    NoDropDownParts() : m_hook(::SetWindowsHookExW(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId())) {}
    ~NoDropDownParts() { ::UnhookWindowsHookEx(m_hook); }
    NoDropDownParts(const NoDropDownParts&) = delete;
    NoDropDownParts& operator=(const NoDropDownParts&) = delete;

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        wchar_t name[20] = {};
        if (code == HCBT_CREATEWND)
            ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 20);
        return ::_wcsicmp(name, L"ComboLBox") == 0 ? 1 : ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};
}  // namespace

TEST_F(ListEditor, ThatCannotBeMadeLeavesNothingBehind)
{
    const auto openInVain = [&] {
        const NoDropDownParts none;
        EXPECT_EQ(OpenIt(), nullptr);
        grid.SetFocusCell(a, 1, true);
        window.TakeTold();
    };
    openInVain();  // the first time may keep memory for good
    const std::size_t blocks = HeapBlockCount();
    openInVain();
    EXPECT_EQ(HeapBlockCount(), blocks);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(::GetDlgItem(grid.GetSafeHwnd(), 302), nullptr);
}

TEST_F(ListEditor, GridDestroyedWhileItIsOpenTakesItAlong)
{
    const HWND list = OpenIt();
    grid.DestroyWindow();
    EXPECT_FALSE(::IsWindow(list));
}
