#include "host/owned_windows.h"

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
