#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/resource_module.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"
#include "tests/support/planned_actions.h"
#include "tests/support/recording_window.h"

TEST(Menu, IsLoadedFromTheCurrentResourceModule)
{
    CString text;
    CMenu ofProgram;
    ASSERT_TRUE(ofProgram.LoadMenu(IDM_COMMANDS));
    ofProgram.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_EQ(text, CString(L"&Chain"));
    const ResourceModule module;
    ASSERT_TRUE(module.IsLoaded());
    CMenu ofModule;
    ASSERT_TRUE(ofModule.LoadMenu(IDM_COMMANDS));
    ofModule.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_EQ(text, CString(L"&Module"));
}

TEST(Menu, IsDestroyedWithItsObject)
{
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        handle = menu.m_hMenu;
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST(Menu, ItemsAreCheckedAndDisabledThroughTheSubMenu)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDM_COMMANDS));
    CMenu* chain = menu.GetSubMenu(0);
    ASSERT_NE(chain, nullptr);
    EXPECT_EQ(chain->GetMenuItemCount(), 2u);
    chain->CheckMenuItem(ID_DRAW, MF_BYCOMMAND | MF_CHECKED);
    chain->EnableMenuItem(ID_ERASE, MF_BYCOMMAND | MF_GRAYED);
    EXPECT_NE(chain->GetMenuState(ID_DRAW, MF_BYCOMMAND) & MF_CHECKED, 0u);
    EXPECT_NE(chain->GetMenuState(ID_ERASE, MF_BYCOMMAND) & MF_GRAYED, 0u);
    EXPECT_EQ(chain->EnableMenuItem(4711, MF_BYCOMMAND | MF_ENABLED), static_cast<UINT>(-1));
    EXPECT_EQ(menu.GetSubMenu(1), nullptr);
}

TEST(Menu, PopupSendsTheChosenCommandToItsOwner)
{
    RecordingWindow owner;
    owner.SetActiveWindow();
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, ID_DRAW, L"&Draw");
    menu.AppendMenu(MF_STRING, ID_ERASE, L"&Erase");
    DoWhen([] { return ::FindWindowW(L"#32768", nullptr) != nullptr; },
           [&owner] { ::PostMessageW(owner, WM_CHAR, L'e', 0); });
    menu.TrackPopupMenu(TPM_LEFTALIGN, 50, 50, &owner);
    PumpUntilIdle();
    EXPECT_EQ(owner.CountOfCommand(ID_ERASE, 0), 1);
    EXPECT_EQ(owner.CountOfCommand(ID_DRAW, 0), 0);
}

TEST(Menu, WindowTellsOfAMenuBeforeItOpens)
{
    class CMenuOwner : public CWnd
    {
    public:
        HMENU m_popup = nullptr;
        UINT m_index = 99;

    protected:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (message == WM_INITMENUPOPUP)
            {
                m_popup = CMenu::FromHandle(reinterpret_cast<HMENU>(wParam))->m_hMenu;
                m_index = LOWORD(lParam);
            }
            return CWnd::OnWndMsg(message, wParam, lParam, result);
        }
    };
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDM_COMMANDS));
    CMenuOwner owner;
    ASSERT_TRUE(owner.CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr));
    EXPECT_TRUE(owner.SetMenu(&menu));
    owner.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(::GetSubMenu(menu, 0)), MAKELPARAM(0, FALSE));
    EXPECT_EQ(owner.m_popup, menu.GetSubMenu(0)->m_hMenu);
    EXPECT_EQ(owner.m_index, 0u);
    EXPECT_EQ(owner.GetMenu(), &menu);
    owner.SetMenu(nullptr);
}
