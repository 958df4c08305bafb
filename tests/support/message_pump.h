#pragma once

#include <functional>

/// Handles messages, as the program's own loop does, until none waits. Temporary framework objects live on.
/// WM_QUIT stays in the queue and ends the pumping.
void PumpUntilIdle();

/// Handles messages until the condition is met.
/// @return  false when it is not met within the time
bool WaitUntil(const std::function<bool()>& condition, unsigned milliseconds = 5000);
