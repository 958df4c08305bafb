#include "grid_window.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/message_pump.h"

#include <algorithm>
#include <iterator>
#include <ostream>

// What a parent does while it is told something: it may delete, add and show rows, move the focus to another cell whose
// editor opens, and destroy the grid.

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

std::vector<HWND> EditorWindows(HWND grid)
{
    std::vector<HWND> editors;
    for (HWND child = ::GetWindow(grid, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const int id = ::GetDlgCtrlID(child);
        if (id >= 301 && id <= 303)
            editors.push_back(child);
    }
    return editors;
}

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

namespace
{
void TellList(HWND list, UINT code)
{
    NMLVSCROLL record{};
    record.hdr = {list, static_cast<UINT_PTR>(::GetDlgCtrlID(list)), code};
    ::SendMessageW(::GetParent(list), WM_NOTIFY, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
}

LRESULT CALLBACK TellOfScrolling(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    const bool scrolls = message == LVM_ENSUREVISIBLE || message == LVM_SCROLL;
    if (scrolls)
        TellList(list, LVN_BEGINSCROLL);
    if (!::IsWindow(list))
        return 0;
    const LRESULT result = ::DefSubclassProc(list, message, wParam, lParam);
    if (scrolls && ::IsWindow(list))
        TellList(list, LVN_ENDSCROLL);
    return result;
}

/// Windows tells of every scrolling, Wine of that by the scroll bars alone.
void MakeItTellOfScrolling(const CFListCtrl& grid)
{
    ::SetWindowSubclass(grid.GetSafeHwnd(), &TellOfScrolling, 1, 0);
}
}  // namespace

TEST_F(ParentReaction, RowDeletedWhileItsEditorComesIntoViewGetsNone)
{
    MakeItTellOfScrolling(grid);
    window.entries = {{L"one", 1}};
    for (int row = 0; row < 20; ++row)
        window.AddTop(L"V");
    for (const UINT scrolled : {LVN_BEGINSCROLL, LVN_ENDSCROLL})
        for (const std::int32_t kind : {kCellEdit, kCellList, kCellButton})
        {
            SCOPED_TRACE(testing::Message() << "code " << scrolled << ", kind " << kind);
            grid.EnsureVisible(0, FALSE);
            const RowKey last = window.AddTop(L"W");
            grid.SetFocusCell(last, 1, false);
            grid.SetCellKind(last, 1, kind);
            int told = 0;
            window.onListTold = [&](UINT code) {
                if (code == scrolled && told++ == 0)
                    grid.DeleteRow(last);
            };
            EXPECT_FALSE(grid.OpenEditor());
            EXPECT_GT(told, 0);
            EXPECT_FALSE(grid.HasEditor());
            EXPECT_EQ(grid.FindRow(last), nullptr);
            EXPECT_TRUE(window.IndicesAreExact());
            window.onListTold = nullptr;
        }
}

TEST_F(ParentReaction, GridDestroyedWhileAnEditorComesIntoViewHasNone)
{
    for (const std::int32_t kind : {kCellEdit, kCellList, kCellButton})
    {
        SCOPED_TRACE(kind);
        GridWindow other;
        other.entries = {{L"one", 1}};
        MakeItTellOfScrolling(other.grid);
        other.grid.SetRowMode(false);
        other.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
        for (int row = 0; row < 20; ++row)
            other.AddTop(L"V");
        const RowKey last = other.AddTop(L"W");
        other.grid.SetFocusCell(last, 0, false);
        other.grid.SetCellKind(last, 0, kind);
        other.onListTold = [&](UINT code) {
            if (code == LVN_ENDSCROLL)
                other.grid.DestroyWindow();
        };
        EXPECT_FALSE(other.grid.OpenEditor());
        EXPECT_EQ(other.grid.GetSafeHwnd(), nullptr);
        EXPECT_FALSE(other.grid.HasEditor());
    }
}

TEST_F(ParentReaction, RowDeletedWhileItIsExpandedIsNotToldAsExpanded)
{
    MakeItTellOfScrolling(grid);
    for (int row = 0; row < 20; ++row)
        window.AddTop(L"V");
    const RowKey last = window.AddTop(L"W");
    window.AddChild(last, L"X");
    grid.EnsureVisible(0, FALSE);
    window.onListTold = [&](UINT code) {
        if (code == LVN_ENDSCROLL)
            grid.DeleteRow(last);
    };
    grid.ExpandRow(last);
    EXPECT_EQ(grid.FindRow(last), nullptr);
    EXPECT_TRUE(window.IndicesAreExact());
    EXPECT_TRUE(window.TakeTold().empty());
}

namespace
{
// An edit open on A; the focus goes to B. The editor that closes gives the grid the keyboard, which the list view
// tells.
class ParentToldOfTheKeyboard : public GridTest
{
protected:
    ParentToldOfTheKeyboard()
    {
        grid.SetCellKind(a, 1, kCellEdit);
        grid.SetFocusCell(a, 1, false);
        EXPECT_TRUE(grid.OpenEditor());
    }

    void MoveToB(const std::function<void()>& act)
    {
        int told = 0;
        window.onListTold = [&](UINT code) {
            if (code == NM_SETFOCUS && told++ == 0)
                act();
        };
        grid.SetFocusCell(b, 2, true);
        window.onListTold = nullptr;
        EXPECT_GT(told, 0);
        EXPECT_FALSE(grid.HasEditor());
    }

    RowKey a = window.AddTop(L"A");
    RowKey b = window.AddTop(L"B");
};
}  // namespace

TEST_F(ParentToldOfTheKeyboard, MayDeleteTheRowThatTheFocusGoesTo)
{
    MoveToB([this] { grid.DeleteRow(b); });
    EXPECT_EQ(grid.FocusKey(), a);
    EXPECT_EQ(grid.FocusColumn(), 1);
    EXPECT_EQ(window.ShownNames(), "A");
}

TEST_F(ParentToldOfTheKeyboard, OpensNoEditorWhileAnotherOneCloses)
{
    bool opened = true;
    MoveToB([&] {
        grid.SetCellKind(b, 1, kCellEdit);
        grid.SetFocusCell(b, 1, false);
        opened = grid.OpenEditor();
    });
    EXPECT_FALSE(opened);
    EXPECT_TRUE(EditorWindows(grid.GetSafeHwnd()).empty());
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(ParentToldOfTheKeyboard, KeepsNoEditorOfADeletedRow)
{
    window.onListTold = [&](UINT code) {
        if (code == NM_SETFOCUS)
            grid.OpenEditor();
    };
    grid.DeleteRow(a);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_TRUE(EditorWindows(grid.GetSafeHwnd()).empty());
    EXPECT_EQ(window.ShownNames(), "B");
}

TEST_F(ParentToldOfTheKeyboard, MaySwitchToRows)
{
    MoveToB([this] { grid.SetRowMode(true); });
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_EQ(grid.FocusColumn(), -1);
}

TEST_F(ParentToldOfTheKeyboard, MayDestroyTheGrid)
{
    MoveToB([this] { grid.DestroyWindow(); });
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.FocusKey(), nullptr);
}

TEST_F(ParentToldOfTheKeyboard, MayDestroyTheGridThatGetsARow)
{
    window.onListTold = [&](UINT code) {
        if (code == NM_SETFOCUS)
            grid.DestroyWindow();
    };
    EXPECT_EQ(grid.AddTopRow(grid.CreateRow(L"C", -1)), nullptr);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.RowCount(), 0);
}

TEST_F(ParentToldOfTheKeyboard, MayDestroyTheGridThatGetsAColumn)
{
    window.onListTold = [&](UINT code) {
        if (code == NM_SETFOCUS)
            grid.DestroyWindow();
    };
    EXPECT_EQ(grid.InsertFColumn(2, L"new", LVCFMT_LEFT, 40, false), -1);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.ColumnCount(), 0);
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

namespace
{
/// A parent that is asked beyond the notifications, and acts then.
class AskedParent : public GridWindow, public GridEditMenuParent, public GridSelectionParent
{
public:
    AskedParent() { grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true); }

    std::function<void()> act;
    int asked = 0;

    void TrackEditMenu(CPoint, int) override { Act(); }
    void OnSelectionChanged(int, void*) override { Act(); }

private:
    void Act()
    {
        ++asked;
        if (act)
            act();
    }
};
}  // namespace

TEST(AskedParentReactions, MayDestroyTheGrid)
{
    for (void (*const click)(const CWnd&, CPoint) : {&LeftClick, &DoubleClick, &RightClick})
    {
        AskedParent parent;
        const RowKey a = parent.AddTop(L"A");
        parent.act = [&] { parent.grid.DestroyWindow(); };
        click(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
        EXPECT_EQ(parent.asked, 1);
        EXPECT_EQ(parent.grid.GetSafeHwnd(), nullptr);
    }
}

TEST(AskedParentReactions, MayDeleteTheRow)
{
    for (void (*const click)(const CWnd&, CPoint) : {&LeftClick, &DoubleClick, &RightClick})
    {
        AskedParent parent;
        const RowKey a = parent.AddTop(L"A");
        const RowKey b = parent.AddTop(L"B");
        parent.act = [&] { parent.grid.DeleteRow(a); };
        click(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
        EXPECT_EQ(parent.ShownNames(), "B");
        EXPECT_EQ(parent.grid.FocusKey(), b);
    }
}

// The menu is of the row under the pointer: no row, no menu.
TEST(AskedParentReactions, MenuIsNotAskedForARowThatIsDeletedWhenItTakesTheFocus)
{
    AskedParent parent;
    const RowKey a = parent.AddTop(L"A");
    parent.AddTop(L"B");
    parent.onTold = [&](const NMFLISTCTRL& record) { parent.grid.DeleteRow(record.rowKey); };
    RightClick(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
    EXPECT_EQ(parent.ShownNames(), "B");
    EXPECT_EQ(parent.asked, 0);
}
