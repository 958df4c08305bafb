#include <cstdio>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/support/leftover_windows.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/planned_actions.h"
#include "tests/support/private_desktop.h"
#include "tests/support/seed_printer.h"
#include "tests/support/watchdog.h"

int main(int argc, char** argv)
{
    if (!EnterPrivateDesktop())
    {
        std::fprintf(stderr, "no windows can be created for the tests: is there a display?\n");
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL))
        return 1;
    const MessageBoxGuard messageBoxGuard;
    PreparePlannedActions();
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    listeners.Append(new SeedPrinter);  // the list deletes them
    listeners.Append(MakeLeftoverCheck().release());
    listeners.Append(MakeWatchdog().release());
    return RUN_ALL_TESTS();
}
