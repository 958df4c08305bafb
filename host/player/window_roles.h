#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include "host/player/script.h"

/// Every top-level window of the calling thread, the topmost first.
std::vector<HWND> TopLevelWindows();

/// The open (visible) window with that role, the topmost where there are several; null when there is none.
/// Roles are told by the controls that a window has, so that nothing of the module's inside is asked.
HWND FindRole(WindowRole role, HWND hostWindow);

/// Whether a window with that role exists, visible or not.
bool RoleExists(WindowRole role, HWND hostWindow);

/// The open windows by their roles, for messages.
std::string OpenRoles(HWND hostWindow);

/// The control at the path, or null.
HWND FindControl(HWND window, const ControlPath& control);

/// The control; throws StepFailure when the window has none at that path.
HWND RequireControl(HWND window, const ControlPath& control);

/// The control, which a person can use now: it and everything around it is visible and enabled. Throws StepFailure with
/// the reason otherwise.
HWND RequireUsableControl(HWND window, const ControlPath& control);
