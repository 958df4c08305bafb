#pragma once

#include <windows.h>

/// Sends the messages of a window to its permanent object from now on.
/// @return  the window's former procedure
WNDPROC EnterWindowProcedure(HWND window);
/// Gives the window its former procedure back, unless another one was put above ours meanwhile.
void LeaveWindowProcedure(HWND window, WNDPROC former);
