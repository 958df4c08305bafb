#include "grid_window.h"
#include "tests/support/framework_printers.h"

// What a parent does while the list view below the grid tells it of scrolling, of the keyboard and of changed texts.

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

using ParentToldOfScrolling = GridTest;
}  // namespace

TEST_F(ParentToldOfScrolling, RowDeletedWhileItsEditorComesIntoViewGetsNone)
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

TEST_F(ParentToldOfScrolling, GridDestroyedWhileAnEditorComesIntoViewHasNone)
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

TEST_F(ParentToldOfScrolling, RowDeletedWhileItIsExpandedIsNotToldAsExpanded)
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
        OpenOnA();
    }

    void OpenOnA()
    {
        grid.SetFocusCell(a, 1, false);
        EXPECT_TRUE(grid.OpenEditor());
    }

    /// The parent acts the next time that it is told of the keyboard.
    void ActOnce(std::function<void()> act)
    {
        window.onListTold = [this, act = std::move(act)](UINT code) {
            if (code != NM_SETFOCUS)
                return;
            const std::function<void()> once = act;  // this one goes with what is replaced
            window.onListTold = nullptr;
            once();
        };
    }

    void MoveToB(const std::function<void()>& act)
    {
        bool acted = false;
        ActOnce([&] {
            acted = true;
            act();
        });
        grid.SetFocusCell(b, 2, true);
        EXPECT_TRUE(acted);
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

// B has children; A's editor closes first.
TEST_F(ParentToldOfTheKeyboard, MayExpandTheRowThatIsExpanded)
{
    window.AddChild(b, L"C");
    window.AddChild(b, L"D");
    ActOnce([this] { grid.ExpandRow(b); });
    grid.ExpandRow(b);
    EXPECT_EQ(window.ShownNames(), "A B C D");
    EXPECT_TRUE(window.IndicesAreExact());
}

TEST_F(ParentToldOfTheKeyboard, MayCollapseTheRowThatIsCollapsed)
{
    window.AddChild(b, L"C");
    window.AddChild(b, L"D");
    window.AddTop(L"E");
    grid.ExpandRow(b);
    OpenOnA();
    ActOnce([this] { grid.CollapseRow(b); });
    grid.CollapseRow(b);
    EXPECT_EQ(window.ShownNames(), "A B E");
    EXPECT_TRUE(window.IndicesAreExact());
}

TEST_F(ParentToldOfTheKeyboard, MayEmptyTheRowThatIsExpandedOrCollapsed)
{
    for (const bool expands : {true, false})
    {
        SCOPED_TRACE(expands);
        const RowKey child = window.AddChild(b, L"C");
        if (!expands)
            grid.ExpandRow(b);
        OpenOnA();
        ActOnce([this, child] { grid.DeleteRow(child); });
        if (expands)
            grid.ExpandRow(b);
        else
            grid.CollapseRow(b);
        EXPECT_EQ(window.ShownNames(), "A B");
        EXPECT_TRUE(window.IndicesAreExact());
    }
}

// It opens while the edit of A loses the keyboard to its own editor: the later one stays.
TEST_F(ParentToldOfTheKeyboard, MayOpenAnotherEditWhileOneTakesTheKeyboard)
{
    grid.CloseEditor();
    grid.SetCellKind(b, 1, kCellEdit);
    int told = 0;
    window.onListTold = [&](UINT code) {
        if (code != NM_KILLFOCUS || told++ != 0)
            return;
        grid.SetFocusCell(b, 1, false);
        EXPECT_TRUE(grid.OpenEditor());
    };
    EXPECT_FALSE(grid.OpenEditor());
    window.onListTold = nullptr;
    EXPECT_GT(told, 0);
    EXPECT_TRUE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_EQ(EditorWindows(grid.GetSafeHwnd()).size(), 1U);
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

namespace
{
// Of the texts the list view tells that of the first column alone.
class ParentToldOfATextChange : public GridTest
{
protected:
    void DeleteAAtTheNextChange()
    {
        window.onListTold = [this](UINT code) {
            if (code == LVN_ITEMCHANGED)
                grid.DeleteRow(a);
        };
    }
    void ExpectBAndC() const
    {
        EXPECT_EQ(window.ShownNames(), "B C");
        EXPECT_EQ(grid.RowCount(), 2);
        EXPECT_TRUE(window.IndicesAreExact());
    }
    /// What the list view itself holds, as others ask it.
    std::vector<CString> ListTexts(int index) const
    {
        std::vector<CString> texts;
        for (int column = 0; column < grid.ColumnCount(); ++column)
            texts.push_back(grid.GetItemText(index, column));
        return texts;
    }

    RowKey a = window.AddTop(L"A");
    RowKey b = window.AddTop(L"B");
    RowKey c = window.AddTop(L"C");
};
}  // namespace

TEST_F(ParentToldOfATextChange, MayDeleteTheRow)
{
    DeleteAAtTheNextChange();
    grid.SetCellText(a, 0, L"new");
    ExpectBAndC();
}

TEST_F(ParentToldOfATextChange, MayDeleteTheRowWhoseEditCommits)
{
    grid.SetCellKind(a, 0, kCellEdit);
    grid.SetFocusCell(a, 0, false);
    ASSERT_TRUE(grid.OpenEditor());
    TypeText(L"new");
    window.onTold = [this](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridEndEdit)
            DeleteAAtTheNextChange();
    };
    PressKey(VK_RETURN);
    ExpectBAndC();
    // A crash while the keyboard changes hands goes unnoticed, but the editor stays then.
    EXPECT_TRUE(EditorWindows(grid.GetSafeHwnd()).empty());
    EXPECT_EQ(grid.FocusKey(), b);
}

TEST_F(ParentToldOfATextChange, MayDeleteTheRowThatGetsACell)
{
    DeleteAAtTheNextChange();
    EXPECT_EQ(grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 40, false), 0);
    ExpectBAndC();
    EXPECT_EQ(ListTexts(0), (std::vector<CString>{L"", L"B", L"B1", L"B2"}));
    EXPECT_EQ(ListTexts(1), (std::vector<CString>{L"", L"C", L"C1", L"C2"}));
}

TEST_F(ParentToldOfATextChange, MayDeleteAllRowsThatGetACell)
{
    window.onListTold = [this](UINT code) {
        if (code == LVN_ITEMCHANGED)
            for (const RowKey key : {a, b, c})
                grid.DeleteRow(key);
    };
    EXPECT_EQ(grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 40, false), 0);
    EXPECT_EQ(grid.GetItemCount(), 0);
    EXPECT_EQ(grid.ColumnCount(), 4);
}

TEST_F(ParentToldOfATextChange, MayDestroyTheGrid)
{
    window.onListTold = [this](UINT code) {
        if (code == LVN_ITEMCHANGED)
            grid.DestroyWindow();
    };
    grid.SetCellText(a, 0, L"new");
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.RowCount(), 0);
}

TEST_F(ParentToldOfATextChange, MayDestroyTheGridThatGetsAColumn)
{
    window.onListTold = [this](UINT code) {
        if (code == LVN_ITEMCHANGED)
            grid.DestroyWindow();
    };
    EXPECT_EQ(grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 40, false), -1);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.ColumnCount(), 0);
}
