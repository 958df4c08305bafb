#include <cstdio>

#include <gtest/gtest.h>

#include <afxwin.h>
#include <commctrl.h>

#include "tests/support/leftover_windows.h"
#include "tests/support/planned_actions.h"
#include "tests/support/private_desktop.h"
#include "tests/support/watchdog.h"

// As the main function of all windowed tests, but without the guard that answers message boxes: here the plays do that.
int main(int argc, char** argv)
{
    if (!EnterPrivateDesktop())
    {
        std::fprintf(stderr, "no desktop for the test windows (error %lu)\n", GetLastError());
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_SHOWNORMAL))
        return 1;
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_USEREX_CLASSES};
    InitCommonControlsEx(&controls);
    PreparePlannedActions();
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    listeners.Append(MakeLeftoverCheck().release());  // the list deletes them
    listeners.Append(MakeWatchdog().release());
    return RUN_ALL_TESTS();
}
