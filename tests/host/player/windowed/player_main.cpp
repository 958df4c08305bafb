#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

// On a desktop of its own the program neither takes the keyboard from others nor loses it to them.
int main(int argc, char** argv)
{
    const std::wstring name = L"host_player_" + std::to_wstring(GetCurrentProcessId());
    const HDESK desktop = CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (desktop == nullptr || !SetThreadDesktop(desktop))
    {
        std::puts("no desktop for the tests");
        return 1;
    }
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_USEREX_CLASSES};
    InitCommonControlsEx(&controls);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
