#pragma once

#include <windows.h>

/// Whether `owner` is the owner of the window, or its owner's owner and so on.
bool IsOwnedBy(HWND window, HWND owner);

/// The foremost visible and enabled window of the thread that is owned by `owner`; null when there is none.
HWND ForemostOwnedWindow(HWND owner);

/// Moves a window to the right of another one, as far as the monitor's work area allows; it may overlap it then.
void PlaceBeside(HWND window, HWND other);
