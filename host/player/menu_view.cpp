#include "host/player/menu_view.h"

namespace
{

std::optional<MenuItem> FindDirect(HMENU menu, UINT command)
{
    for (int position = 0; position < GetMenuItemCount(menu); ++position)
    {
        if (GetSubMenu(menu, position) == nullptr && GetMenuItemID(menu, position) == command)
            return MenuItem{menu, position};
    }
    return std::nullopt;
}

// The popups from the outermost to the one that holds the command, each with its position in the one before.
bool FindWay(HMENU menu, UINT command, std::vector<MenuItem>& way)
{
    if (FindDirect(menu, command))
        return true;
    for (int position = 0; position < GetMenuItemCount(menu); ++position)
    {
        const HMENU popup = GetSubMenu(menu, position);
        if (popup == nullptr)
            continue;
        way.push_back({menu, position});
        if (FindWay(popup, command, way))
            return true;
        way.pop_back();
    }
    return false;
}

}  // namespace

UINT MenuItem::State() const
{
    return GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
}

bool MenuItem::IsEnabled() const
{
    return (State() & (MF_GRAYED | MF_DISABLED)) == 0;
}

bool MenuItem::IsChecked() const
{
    return (State() & MF_CHECKED) != 0;
}

std::vector<HMENU> OpenPopups()
{
    std::vector<HMENU> popups;
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, L"#32768", nullptr)) != nullptr)
    {
        if (GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId() || !IsWindowVisible(window))
            continue;
        const auto menu = reinterpret_cast<HMENU>(SendMessageW(window, MN_GETHMENU, 0, 0));
        if (menu != nullptr)
            popups.push_back(menu);
    }
    return popups;
}

std::optional<MenuItem> FindOpenItem(UINT command)
{
    for (const HMENU popup : OpenPopups())
    {
        const std::optional<MenuItem> item = FindDirect(popup, command);
        if (item)
            return item;
    }
    return std::nullopt;
}

HWND MenuOwner()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) ? info.hwndMenuOwner : nullptr;
}

std::optional<MenuItem> DropDownTo(HWND window, UINT command)
{
    const HMENU bar = GetMenu(window);
    std::vector<MenuItem> way;
    if (bar == nullptr || !FindWay(bar, command, way))
        return std::nullopt;
    SendMessageW(window, WM_INITMENU, reinterpret_cast<WPARAM>(bar), 0);
    HMENU innermost = bar;
    for (const MenuItem& step : way)
    {
        innermost = GetSubMenu(step.menu, step.position);
        SendMessageW(window, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(innermost), MAKELPARAM(step.position, FALSE));
    }
    return FindDirect(innermost, command);
}
