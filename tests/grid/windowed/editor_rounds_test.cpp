#include "grid_window.h"
#include "tests/support/message_pump.h"
#include "tests/support/resource_count.h"

#include <cstdlib>
#include <random>

namespace
{
int ChildWindows(HWND parent)
{
    int children = 0;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        ++children;
    return children;
}

// A grid whose 4 columns hold text, edit, list and button cells in 12 rows of two levels.
class EditorRounds : public GridTest
{
protected:
    EditorRounds()
    {
        grid.InsertFColumn(3, L"button", LVCFMT_LEFT, 700, false);
        window.entries = {{L"one", 1}, {L"two", 2}, {L"three", 3}};
        window.selectedEntry = 1;
        for (int top = 0; top < 4; ++top)
        {
            keys.push_back(window.AddTop(L"T"));
            const RowKey parent = keys.back();
            for (int child = 0; child < 2; ++child)
                keys.push_back(window.AddChild(parent, L"C"));
            grid.ExpandRow(parent);
        }
        for (const RowKey key : keys)
        {
            grid.SetCellKind(key, 1, kCellEdit);
            grid.SetCellKind(key, 2, kCellList);
            grid.SetCellKind(key, 3, kCellButton | kCellCheckBox);
        }
    }

    /// Opens the editor of a random cell and does something random with it.
    void Round(std::mt19937& random)
    {
        const RowKey key = keys[random() % keys.size()];
        if (grid.FindRow(key)->ListIndex() < 0)
            grid.ExpandRow(grid.FindRow(key)->Parent()->Key());
        grid.SetFocus();
        grid.SetFocusCell(key, static_cast<int>(random() % 4), true);
        if (!grid.HasEditor())
            grid.OpenEditor();
        static constexpr UINT kKeys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_SPACE,   VK_PRIOR, VK_NEXT,
                                         VK_UP,  VK_DOWN,   VK_LEFT,   VK_RIGHT,   VK_HOME,  VK_DELETE,
                                         VK_F4,  VK_ADD,    VK_F2,     VK_SUBTRACT};
        for (unsigned step = random() % 4; step > 0; --step)
            PressKey(kKeys[random() % std::size(kKeys)]);
        switch (random() % 8)
        {
        case 0:
            grid.SendMessage(WM_VSCROLL, random() % 2 == 0 ? SB_LINEDOWN : SB_LINEUP);
            break;
        case 1:
            grid.SendMessage(WM_HSCROLL, random() % 2 == 0 ? SB_PAGERIGHT : SB_PAGELEFT);
            break;
        case 2:
            TypeText(L"x");
            break;
        case 3:
            LeftClick(grid, CPoint(static_cast<int>(random() % 600), static_cast<int>(random() % 300)));
            break;
        case 4:
            ::SetFocus(window.GetSafeHwnd());
            break;
        default:
            break;
        }
        PumpUntilIdle();
        window.TakeTold();
    }
    /// Brings the grid into one state, whatever happened before.
    void CloseAll()
    {
        grid.CloseEditor();
        for (const RowKey key : keys)
            grid.ExpandRow(key);
        for (const RowKey key : keys)
            for (int column = 0; column < 4; ++column)
            {
                grid.SetCellText(key, column, L"same");
                grid.SetCellChecked(key, column, false);
            }
        grid.SetFocusCell(keys[0], 0, false);
        ::SetFocus(window.GetSafeHwnd());
        window.UpdateWindow();
        PumpUntilIdle();
        AfxGetThread()->OnIdle(0);  // deletes the temporary objects
    }

    std::vector<RowKey> keys;
};
}  // namespace

// CALCTOL_EDITOR_ROUNDS in the environment sets another number of rounds.
TEST_F(EditorRounds, LeaveNoWindowNoObjectAndNoMemoryBehind)
{
    constexpr int kWarmUp = 200;  // until everything is made that the system keeps
    const char* const wanted = std::getenv("CALCTOL_EDITOR_ROUNDS");
    const int rounds = kWarmUp + (wanted != nullptr ? std::atoi(wanted) : 500);
    std::mt19937 random(20240607);
    int objects = 0;
    std::size_t blocks = 0;
    for (int round = 0; round <= rounds; ++round)
    {
        SCOPED_TRACE(round);
        if (round == kWarmUp || round == rounds)
        {
            CloseAll();
            EXPECT_EQ(ChildWindows(grid.GetSafeHwnd()), 1);  // the header
        }
        if (round == kWarmUp)
        {
            objects = GdiObjectCount();
            blocks = HeapBlockCount();
        }
        else if (round == rounds)
        {
            EXPECT_EQ(GdiObjectCount(), objects);
            EXPECT_EQ(HeapBlockCount(), blocks);
        }
        Round(random);
        ASSERT_TRUE(window.IndicesAreExact());
        ASSERT_LE(ChildWindows(grid.GetSafeHwnd()), 2);
    }
}
