#include "grid_window.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/message_pump.h"

#include <algorithm>
#include <iterator>
#include <ostream>

// What a parent does while the grid tells it of rows, the focus and editors: it may delete, add and show rows, move the
// focus to another cell whose editor opens, and destroy the grid.

namespace
{
/// What the parent is told when it acts.
struct Occasion
{
    const char* name;
    UINT code;
    int column;              // of T, where the focus is before
    std::vector<UINT> keys;  // that lead to it
    void (*then)(HWND editor) = nullptr;
};

struct Reaction
{
    const char* name;
    std::function<void(GridWindow&, RowKey told)> act;
    int editor = 0;  // child ID of the one that it opens
};

void PrintTo(const Occasion& occasion, std::ostream* stream)
{
    *stream << occasion.name;
}

void PrintTo(const Reaction& reaction, std::ostream* stream)
{
    *stream << reaction.name;
}

constexpr int kEditColumn = 1;
constexpr int kListColumn = 2;
constexpr int kButtonColumn = 3;

void ReleaseOver(HWND button)
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP})
        ::PostMessageW(button, message, 0, MAKELPARAM(5, 5));
    PumpUntilIdle();
}

const Occasion kOccasions[] = {
    {"Expanded", kGridRowExpanded, 0, {VK_SUBTRACT, VK_ADD}},
    {"Collapsed", kGridRowCollapsed, 0, {VK_SUBTRACT}},
    {"FocusMoved", kGridFocusMoved, 0, {VK_DOWN}},
    {"FocusMovedToAnEditor", kGridFocusMoved, kEditColumn, {VK_RIGHT}},
    {"BeginEdit", kGridBeginEdit, kEditColumn, {VK_RETURN}},
    {"EndEdit", kGridEndEdit, kEditColumn, {VK_RETURN, VK_RETURN}},
    {"ListContents", kGridListContents, kEditColumn, {VK_RIGHT}},
    {"EndList", kGridEndList, kListColumn, {VK_RETURN, VK_RETURN}},
    {"EndListByMouse", kGridEndList, kListColumn, {}, [](HWND list) { PickByMouse(list, 1); }},
    {"ButtonPressed", kGridButtonPressed, kButtonColumn, {VK_RETURN}},
    {"ButtonReleased", kGridButtonPressed, kButtonColumn, {}, &ReleaseOver},
};

/// The occasions on which an editor has just ended with Enter.
std::vector<Occasion> EndsOfEditors()
{
    std::vector<Occasion> ends;
    std::ranges::copy_if(kOccasions, std::back_inserter(ends), [](const Occasion& occasion) {
        return occasion.code == kGridEndEdit || occasion.code == kGridEndList || occasion.code == kGridButtonPressed;
    });
    return ends;
}

RowKey LastTopRow(const CFListCtrl& grid)
{
    const CFListCtrl::CFListRow* row = grid.FirstTopRow();
    while (row != nullptr && row->NextSibling() != nullptr)
        row = row->NextSibling();
    return row != nullptr ? row->Key() : nullptr;
}

void DeleteAllRows(CFListCtrl& grid)
{
    while (const auto* const row = grid.FirstTopRow())
        grid.DeleteRow(row->Key());
}

const Reaction kReactions[] = {
    {"DeletesTheRow", [](GridWindow& window, RowKey told) { window.grid.DeleteRow(told); }},
    {"DeletesAllRows", [](GridWindow& window, RowKey) { DeleteAllRows(window.grid); }},
    {"DestroysTheGrid", [](GridWindow& window, RowKey) { window.grid.DestroyWindow(); }},
    {"AddsRows",
     [](GridWindow& window, RowKey told) {
         window.AddChild(told, L"N");
         window.AddTop(L"N");
     }},
    {"InsertsAColumn",
     [](GridWindow& window, RowKey) { window.grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 40, false); }},
    {"CollapsesTheRow", [](GridWindow& window, RowKey told) { window.grid.CollapseRow(told); }},
    {"ExpandsTheRow", [](GridWindow& window, RowKey told) { window.grid.ExpandRow(told); }},
    {"SwitchesToRows", [](GridWindow& window, RowKey) { window.grid.SetRowMode(true); }},
    {"ShowsAMessage",
     [](GridWindow& window, RowKey) {
         const ExpectMessageBox expected;
         window.MessageBox(L"message");
     }},
    {"TakesTheKeyboard", [](GridWindow& window, RowKey) { ::SetFocus(window.GetSafeHwnd()); }},
    {"OpensAnEdit",
     [](GridWindow& window, RowKey) {
         window.grid.SetFocusCell(LastTopRow(window.grid), kEditColumn, false);
         window.grid.OpenEditor();
     },
     301},
    {"OpensAList",
     [](GridWindow& window, RowKey) { window.grid.SetFocusCell(LastTopRow(window.grid), kListColumn, true); }, 302},
    {"OpensAButton",
     [](GridWindow& window, RowKey) { window.grid.SetFocusCell(LastTopRow(window.grid), kButtonColumn, true); }, 303},
};

// T expanded with A and B, then U. Column 1 holds edit, column 2 list, column 3 button cells.
class ReactingParent : public GridTest
{
protected:
    ReactingParent()
    {
        grid.InsertFColumn(3, L"button", LVCFMT_LEFT, 80, false);
        window.entries = {{L"one", 1}, {L"two", 2}};
        window.selectedEntry = 0;
        for (const RowKey key : {t, a, b, u})
        {
            grid.SetCellKind(key, kEditColumn, kCellEdit);
            grid.SetCellKind(key, kListColumn, kCellList);
            grid.SetCellKind(key, kButtonColumn, kCellButton);
        }
        grid.ExpandRow(t);
    }

    static void LeadTo(const Occasion& occasion)
    {
        for (const UINT key : occasion.keys)
            PressKey(key);
        if (occasion.then != nullptr)
            occasion.then(::GetFocus());
        PumpUntilIdle();
    }

    std::vector<std::wstring> TextsOf(RowKey key) const
    {
        std::vector<std::wstring> texts;
        for (int column = 0; column < grid.ColumnCount(); ++column)
            texts.emplace_back(grid.FindRow(key)->Text(column));
        return texts;
    }

    RowKey t = window.AddTop(L"T");
    RowKey a = window.AddChild(t, L"A");
    RowKey b = window.AddChild(t, L"B");
    RowKey u = window.AddTop(L"U");
};

class ParentReactions : public ReactingParent, public testing::WithParamInterface<std::tuple<Occasion, Reaction>>
{
};
}  // namespace

TEST_P(ParentReactions, LeaveTheGridInOrder)
{
    const auto& [occasion, reaction] = GetParam();
    grid.SetFocusCell(t, occasion.column, true);
    int reactions = 0;
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == occasion.code && reactions++ == 0)
            reaction.act(window, record.rowKey);
    };
    LeadTo(occasion);
    ASSERT_GT(reactions, 0);

    EXPECT_TRUE(grid.FocusKey() == nullptr || grid.FocusRow() != nullptr);
    if (grid.GetSafeHwnd() == nullptr)
    {
        EXPECT_EQ(grid.RowCount(), 0);
        EXPECT_FALSE(grid.HasEditor());
        return;
    }
    EXPECT_TRUE(window.IndicesAreExact());
    EXPECT_EQ(EditorWindows(grid.GetSafeHwnd()).size(), grid.HasEditor() ? 1U : 0U);
    if (grid.HasEditor() || reaction.editor != 0)
    {
        EXPECT_TRUE(grid.HasEditor());
        EXPECT_EQ(::GetParent(::GetFocus()), grid.GetSafeHwnd());
    }
    if (reaction.editor != 0)
    {
        EXPECT_NE(Editor(reaction.editor), nullptr);
    }
}

INSTANTIATE_TEST_SUITE_P(Everywhere, ParentReactions,
                         testing::Combine(testing::ValuesIn(kOccasions), testing::ValuesIn(kReactions)),
                         [](const testing::TestParamInfo<std::tuple<Occasion, Reaction>>& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });

namespace
{
class MessageOfTheParent : public ReactingParent, public testing::WithParamInterface<Occasion>
{
protected:
    /// What the grid tells after the focus came to T, and the editor that is open then; 0 for none.
    std::pair<std::vector<std::string>, int> ToldAndOpenedOn(const Occasion& occasion, bool showsMessages)
    {
        grid.SetFocusCell(u, 0, true);
        grid.SetCellText(t, kListColumn, L"T2");
        grid.SetFocusCell(t, occasion.column, true);
        window.TakeTold();
        if (showsMessages)
            window.onTold = [&](const NMFLISTCTRL& record) {
                if (record.hdr.code == occasion.code)
                    ShowMessage();
            };
        LeadTo(occasion);
        window.onTold = nullptr;
        return {window.TakeTold(), grid.HasEditor() ? ::GetDlgCtrlID(::GetFocus()) : 0};
    }
    void ShowMessage()
    {
        const HWND focus = ::GetFocus();
        const ExpectMessageBox message;
        window.MessageBox(L"message");
        ::SetFocus(focus);  // as a dialog does when its message box is closed
    }
};
}  // namespace

TEST_P(MessageOfTheParent, ChangesNothingOfWhatIsToldAndOpened)
{
    const auto [toldWithout, openedWithout] = ToldAndOpenedOn(GetParam(), false);
    grid.CloseEditor();
    grid.ExpandRow(t);
    const auto [told, opened] = ToldAndOpenedOn(GetParam(), true);
    EXPECT_FALSE(told.empty());
    EXPECT_EQ(told, toldWithout);
    EXPECT_EQ(opened, openedWithout);
}

INSTANTIATE_TEST_SUITE_P(Everywhere, MessageOfTheParent, testing::ValuesIn(kOccasions),
                         [](const testing::TestParamInfo<Occasion>& info) { return std::string(info.param.name); });

namespace
{
class EditorThatGetsTheKeyboardBack : public ReactingParent, public testing::WithParamInterface<Occasion>
{
};
}  // namespace

TEST_P(EditorThatGetsTheKeyboardBack, TellsItsEndOnceAndGoes)
{
    grid.SetFocusCell(t, GetParam().column, true);
    window.answers[GetParam().code] = 1;
    int told = 0;
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == GetParam().code && ++told == 1)
            ::SetFocus(EditorWindows(grid.GetSafeHwnd()).at(0));
    };
    LeadTo(GetParam());
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_TRUE(EditorWindows(grid.GetSafeHwnd()).empty());
}

INSTANTIATE_TEST_SUITE_P(Everywhere, EditorThatGetsTheKeyboardBack, testing::ValuesIn(EndsOfEditors()),
                         [](const testing::TestParamInfo<Occasion>& info) { return std::string(info.param.name); });

namespace
{
using CommitIntoAMovedCell = ReactingParent;
}

TEST_F(CommitIntoAMovedCell, OfAnEditIsStoredThere)
{
    grid.SetFocusCell(t, kEditColumn, true);
    PressKey(VK_RETURN);
    TypeText(L"7");
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridEndEdit)
            grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 40, false);
    };
    PressKey(VK_RETURN);
    EXPECT_EQ(TextsOf(t), (std::vector<std::wstring>{L"", L"T", L"7", L"T2", L""}));
    EXPECT_EQ(grid.GetItemText(0, 2), L"7");
}

TEST_F(CommitIntoAMovedCell, OfAListIsStoredThere)
{
    grid.SetFocusCell(t, kListColumn, true);
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridEndList)
            grid.InsertFColumn(1, L"new", LVCFMT_LEFT, 40, false);
    };
    for (const UINT key : {VK_RETURN, VK_DOWN, VK_RETURN})
        PressKey(key);
    EXPECT_EQ(TextsOf(t), (std::vector<std::wstring>{L"T", L"", L"T1", L"two", L""}));
    EXPECT_EQ(grid.GetItemText(0, 3), L"two");
}

namespace
{
using ParentReaction = GridTest;
}

TEST_F(ParentReaction, FocusMovedInsideCollapsedStaysThere)
{
    const RowKey t = window.AddTop(L"T");
    const RowKey a = window.AddChild(t, L"A");
    const RowKey u = window.AddTop(L"U");
    grid.ExpandRow(t);
    grid.SetFocusCell(a, 1, true);
    window.TakeTold();
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridRowCollapsed)
            grid.SetFocusCell(u, 2, true);
    };
    grid.CollapseRow(t);
    EXPECT_EQ(grid.FocusKey(), u);
    EXPECT_EQ(window.TakeTold(), (std::vector<std::string>{"1115 T 1 \"T1\"", "1116 U 2 \"U2\""}));
}

TEST_F(ParentReaction, EditorOfAFocusRowThatIsNotShownStaysClosed)
{
    const RowKey t = window.AddTop(L"T");
    const RowKey a = window.AddChild(t, L"A");
    for (const std::int32_t kind : {kCellEdit, kCellList, kCellButton})
    {
        SCOPED_TRACE(kind);
        window.entries = {{L"one", 1}};
        grid.SetCellKind(a, 1, kind);
        grid.SetFocusCell(a, 1, false);
        EXPECT_FALSE(grid.OpenEditor());
        EXPECT_FALSE(grid.HasEditor());
        EXPECT_TRUE(window.TakeTold().empty());
        grid.SetFocusCell(nullptr, -1, false);
    }
}

TEST_F(ParentReaction, GridDestroyedByARightClickLeavesTheKeyboardWhereItWas)
{
    const RowKey a = window.AddTop(L"A");
    ::SetFocus(window.GetSafeHwnd());
    window.onTold = [&](const NMFLISTCTRL&) { grid.DestroyWindow(); };
    RightClick(grid, CellCentre(a, 2));
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(::GetFocus(), window.GetSafeHwnd());
}

TEST_F(ParentReaction, GridDestroyedByADoubleClickSendsNoCommand)
{
    const RowKey a = window.AddTop(L"A");
    grid.SetCellKind(a, 2, kCellEdit);
    window.answers[kGridBeginEdit] = 1;
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridBeginEdit)
            grid.DestroyWindow();
    };
    DoubleClick(grid, CellCentre(a, 2));
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(window.TakeTold(), (std::vector<std::string>{"1116 A 2 \"A2\"", "1117 A 2 \"A2\""}));
}
