#pragma once

#include <vector>

#include <windows.h>

/// Disables a window's top-level window and all windows that own that one, as far as they are enabled, and enables
/// exactly those again.
class DisabledOwners
{
public:
    DisabledOwners() = default;
    ~DisabledOwners() { Restore(); }
    DisabledOwners(const DisabledOwners&) = delete;
    DisabledOwners& operator=(const DisabledOwners&) = delete;

    /// The windows are told while it runs, and may have everything enabled again: then it leaves the rest alone.
    void Disable(HWND owner);
    /// To be called before the window that they wait for is destroyed: Windows can activate only an enabled window.
    void Restore();

private:
    std::vector<HWND> m_disabled;
    bool m_restored = false;
};
