#include "tests/support/private_desktop.h"

#include <string>

namespace
{
HDESK desktop = nullptr;  // lives as long as the process
}

bool EnterPrivateDesktop()
{
    const std::wstring name = L"test" + std::to_wstring(::GetCurrentProcessId());
    desktop = ::CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    return JoinPrivateDesktop();
}

bool JoinPrivateDesktop()
{
    return desktop != nullptr && ::SetThreadDesktop(desktop);
}
