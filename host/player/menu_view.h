#pragma once

#include <optional>
#include <vector>

#include <windows.h>

/// An item of a menu, by the menu that holds it directly.
struct MenuItem
{
    HMENU menu;
    int position;

    UINT State() const;
    bool IsEnabled() const;
    bool IsChecked() const;
};

/// The popup menus that are up, the innermost first.
std::vector<HMENU> OpenPopups();

/// The item with that command in one of the popups that are up.
std::optional<MenuItem> FindOpenItem(UINT command);

/// The window that the open menu belongs to.
HWND MenuOwner();

/// The item with that command anywhere in the window's menu bar, after the window was told that each popup on the way
/// drops down.
std::optional<MenuItem> DropDownTo(HWND window, UINT command);
