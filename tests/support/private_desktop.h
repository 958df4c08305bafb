#pragma once

#include <windows.h>

/// Puts the calling thread on a desktop of this process alone, so that programs which run at the same time do not take
/// the activation and the input from each other. To be called before the thread has a window or a hook.
/// @return  false when Windows refuses, or when no window can be created there because nothing displays it
bool EnterPrivateDesktop();

/// Joins another thread to that desktop.
bool JoinPrivateDesktop();
