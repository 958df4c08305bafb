#include "host/owned_windows.h"

#include <algorithm>

namespace
{

struct Search
{
    HWND owner;
    HWND found;
};

// Windows come from the foremost to the hindmost.
BOOL CALLBACK Look(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !IsOwnedBy(window, search.owner))
        return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

bool IsOwnedBy(HWND window, HWND owner)
{
    for (HWND above = GetWindow(window, GW_OWNER); above != nullptr; above = GetWindow(above, GW_OWNER))
    {
        if (above == owner)
            return true;
    }
    return false;
}

HWND ForemostOwnedWindow(HWND owner)
{
    Search search = {owner, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void PlaceBeside(HWND window, HWND other)
{
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    RECT place = {};
    RECT beside = {};
    if (!GetMonitorInfoW(MonitorFromWindow(other, MONITOR_DEFAULTTONEAREST), &monitor) ||
        !GetWindowRect(window, &place) || !GetWindowRect(other, &beside))
        return;
    const RECT& work = monitor.rcWork;
    const LONG left = std::max(work.left, std::min(beside.right, work.right - (place.right - place.left)));
    const LONG top = std::max(work.top, std::min(beside.top, work.bottom - (place.bottom - place.top)));
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
