#pragma once

#include <windows.h>

#include "host/player/step_task.h"

enum class MouseClick
{
    kLeft,
    kDouble,
    kRight
};

/// A click at a point of the control's client area, sent the way that the mouse's own would come: to the child window
/// that is at the point then, in the window that the click makes active.
StepTask ClickTask(HWND window, HWND control, POINT point, MouseClick click);

/// Throws StepFailure while a menu is open: mouse and keyboard belong to it then.
void RequireNoMenu();

/// Whether a menu is open and takes all input.
bool IsMenuOpen();
