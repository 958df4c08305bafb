#include "grid_window.h"
#include "tests/support/message_pump.h"
#include "tests/support/resource_count.h"

#include <random>

namespace
{
constexpr UINT kKeys[] = {VK_TAB,  VK_RETURN, VK_ESCAPE, VK_SPACE,  VK_PRIOR, VK_NEXT, VK_UP, VK_DOWN,
                          VK_LEFT, VK_RIGHT,  VK_HOME,   VK_DELETE, VK_F4,    VK_ADD,  VK_F2, VK_SUBTRACT};

enum class LastAct
{
    Nothing,
    ScrollRows,
    ScrollColumns,
    TypeCharacter,
    Click,
    TakeFocusAway
};
constexpr int kLastActs = 6;

int ChildWindows(HWND parent)
{
    int children = 0;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        ++children;
    return children;
}

/// A grid whose 4 columns hold text, edit, list and button cells in 12 rows of two levels.
class EditorGrid
{
public:
    EditorGrid()
    {
        window.grid.SetRowMode(false);
        for (int column = 0; column < 3; ++column)
            window.grid.InsertFColumn(column, L"column", LVCFMT_CENTER, 100, column == 0);
        window.grid.InsertFColumn(3, L"button", LVCFMT_LEFT, 700, false);
        window.entries = {{L"one", 1}, {L"two", 2}, {L"three", 3}};
        window.selectedEntry = 1;
        for (int top = 0; top < 4; ++top)
        {
            const RowKey parent = window.AddTop(L"T");
            keys.push_back(parent);
            for (int child = 0; child < 2; ++child)
                keys.push_back(window.AddChild(parent, L"C"));
            window.grid.ExpandRow(parent);
        }
        for (const RowKey key : keys)
        {
            window.grid.SetCellKind(key, 1, kCellEdit);
            window.grid.SetCellKind(key, 2, kCellList);
            window.grid.SetCellKind(key, 3, kCellButton | kCellCheckBox);
        }
    }

    /// Opens the editor of a cell, presses keys, and does one thing more.
    void Round(RowKey key, int column, const std::vector<UINT>& pressed, LastAct last, CPoint clicked)
    {
        CFListCtrl& grid = window.grid;
        if (grid.FindRow(key)->ListIndex() < 0)
            grid.ExpandRow(grid.FindRow(key)->Parent()->Key());
        grid.SetFocus();
        grid.SetFocusCell(key, column, true);
        if (!grid.HasEditor())
            grid.OpenEditor();
        for (const UINT pressedKey : pressed)
            PressKey(pressedKey);
        switch (last)
        {
        case LastAct::Nothing:
            break;
        case LastAct::ScrollRows:
            grid.SendMessage(WM_VSCROLL, clicked.x % 2 == 0 ? SB_LINEDOWN : SB_LINEUP);
            break;
        case LastAct::ScrollColumns:
            grid.SendMessage(WM_HSCROLL, clicked.x % 2 == 0 ? SB_PAGERIGHT : SB_PAGELEFT);
            break;
        case LastAct::TypeCharacter:
            TypeText(L"x");
            break;
        case LastAct::Click:
            LeftClick(grid, clicked);
            break;
        case LastAct::TakeFocusAway:
            ::SetFocus(window.GetSafeHwnd());
            break;
        }
        PumpUntilIdle();
        window.TakeTold();
    }
    void RandomRound(std::mt19937& random)
    {
        std::vector<UINT> pressed;
        for (unsigned count = random() % 4; count > 0; --count)
            pressed.push_back(kKeys[random() % std::size(kKeys)]);
        const RowKey key = keys[random() % keys.size()];
        const int column = static_cast<int>(random() % 4);
        const auto last = static_cast<LastAct>(random() % kLastActs);
        const CPoint clicked(static_cast<int>(random() % 600), static_cast<int>(random() % 300));
        Round(key, column, pressed, last, clicked);
    }

    GridWindow window;
    std::vector<RowKey> keys;
};

struct Held
{
    int objects;
    std::size_t blocks;
};

Held HeldNow()
{
    PumpUntilIdle();
    AfxGetThread()->OnIdle(0);  // deletes the temporary objects
    return {GdiObjectCount(), HeapBlockCount()};
}

class EditorRounds : public testing::TestWithParam<int>
{
protected:
    // The system keeps what it made for the first use of a thing, so everything is used once before anything is
    // counted.
    static void SetUpTestSuite()
    {
        int round = 0;
        for (int column = 0; column < 4; ++column)
        {
            {
                EditorGrid used;
                for (const UINT key : kKeys)
                    for (const std::vector<UINT>& pressed : {std::vector<UINT>{key}, std::vector<UINT>{VK_RETURN, key}})
                    {
                        used.Round(used.keys[static_cast<std::size_t>(round) % used.keys.size()], column, pressed,
                                   static_cast<LastAct>(round % kLastActs), CPoint(round * 37 % 600, round * 17 % 300));
                        ++round;
                    }
            }
            HeldNow();
        }
    }
};
}  // namespace

// Five times a hundred rounds, each with a seed of its own. With --gtest_shuffle the seeds follow the one that is
// printed, so --gtest_repeat=20 makes ten thousand different rounds.
TEST_P(EditorRounds, LeaveNoWindowNoObjectAndNoMemoryBehind)
{
    constexpr int kRounds = 100;
    std::mt19937 random(static_cast<unsigned>(GetParam() + testing::UnitTest::GetInstance()->random_seed()));
    const Held before = HeldNow();
    {
        EditorGrid edited;
        for (int round = 0; round < kRounds; ++round)
        {
            edited.RandomRound(random);
            ASSERT_TRUE(edited.window.IndicesAreExact()) << round;
            ASSERT_LE(ChildWindows(edited.window.grid.GetSafeHwnd()), 2) << round;
        }
        edited.window.grid.CloseEditor();
        PumpUntilIdle();
        EXPECT_EQ(ChildWindows(edited.window.grid.GetSafeHwnd()), 1);  // the header
    }
    const Held after = HeldNow();
    EXPECT_EQ(after.objects, before.objects);
    EXPECT_EQ(after.blocks, before.blocks);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditorRounds, testing::Values(10, 20, 30, 40, 50));
