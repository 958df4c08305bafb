#pragma once

#include <vector>

#include <windows.h>

/// Disables a window's top-level window and all windows that own that one, as far as they are enabled, and enables
/// exactly those again.
class DisabledOwners
{
public:
    explicit DisabledOwners(HWND owner);
    ~DisabledOwners() { Restore(); }
    DisabledOwners(const DisabledOwners&) = delete;
    DisabledOwners& operator=(const DisabledOwners&) = delete;

    /// To be called before the window that they wait for is destroyed: Windows can activate only an enabled window.
    void Restore();

private:
    std::vector<HWND> m_disabled;
};
