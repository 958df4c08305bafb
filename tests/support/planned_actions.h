#pragma once

#include <functional>

/// Runs the action from the next message loop that handles messages: a test plans with it what happens inside a modal
/// dialog, a message box or a menu. An action that is never reached fails the test.
void DoLater(std::function<void()> action);

/// As DoLater, but not before the condition is met.
void DoWhen(std::function<bool()> condition, std::function<void()> action);

/// For the main function: to be called before the first test.
void PreparePlannedActions();
/// For the main function: forgets what was planned.
/// @return  how many actions were not reached
int CancelPlannedActions();
