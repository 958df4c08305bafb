#include "tests/support/private_desktop.h"

#include <string>

namespace
{
HDESK desktop = nullptr;  // lives as long as the process

bool WindowsCanBeCreated()
{
    const HWND window =
        ::CreateWindowExW(0, L"Static", nullptr, WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    return window != nullptr && ::DestroyWindow(window);
}
}  // namespace

bool EnterPrivateDesktop()
{
    const std::wstring name = L"test" + std::to_wstring(::GetCurrentProcessId());
    desktop = ::CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    return JoinPrivateDesktop() && WindowsCanBeCreated();
}

bool JoinPrivateDesktop()
{
    return desktop != nullptr && ::SetThreadDesktop(desktop);
}
