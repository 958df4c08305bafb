#pragma once

#include <vector>

#include <windows.h>

/// Holds a window's top-level window and all windows that own that one disabled. Of several that live one inside the
/// other, the last one that lets a window go enables it, in whatever order they do.
///
/// A window that was disabled before the first of them stays so. One that was enabled by somebody else meanwhile, and
/// is disabled by the next of them, is that one's alone.
class DisabledOwners
{
public:
    DisabledOwners();
    ~DisabledOwners();
    DisabledOwners(const DisabledOwners&) = delete;
    DisabledOwners& operator=(const DisabledOwners&) = delete;

    /// The windows are told while it runs, and may have everything enabled again: then it leaves the rest alone.
    void Disable(HWND owner);
    /// Disables what owns the window, but not the window, on which something stands that takes care of it.
    void DisableAbove(HWND window);
    /// Lets all windows go. To be called before the window that they wait for is destroyed: Windows can activate only
    /// an enabled window.
    void Restore();
    /// The same for all that wait for something which goes with that window: what it owns, or what stands on it.
    static void RestoreBelow(HWND window);

private:
    static DisabledOwners* HolderOf(HWND window);
    static DisabledOwners* HolderAbove(HWND window);
    static void LetGoEverywhere(HWND window);

    DisabledOwners* m_outer;
    std::vector<HWND> m_windows;
    HWND m_below = nullptr;  // of DisableAbove
    bool m_restored = false;
};
