#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <windows.h>

#include "host/player/played_host.h"
#include "host/player/script.h"
#include "host/player/step_task.h"

class NotificationLog;
struct ResourceCount;

/// A call inside a notification that could not be made.
struct FailedCall
{
    const Step* step;  ///< the `on` that asked for it
    std::string reason;
};

/// What lasts from step to step.
struct PlayState
{
    PlayedHost& host;
    NotificationLog& notifications;
    const Script& script;
    ResourceCount& marked;                 ///< what the last `mark` counted
    std::optional<FailedCall> failedCall;  ///< the first one
    int contextMenuGrid = 0;               ///< ID of the control that the right button was last pressed on
};

/// What a step's function gets. `window` is the window that the step names, found and alive; null when it names none.
struct StepContext
{
    PlayState& play;
    const Step& step;
    HWND window;
};

/// How a step is done: at once, or as a task that lets messages run in between. One of the two is set.
struct StepHandler
{
    std::string_view name;
    void (*atOnce)(const StepContext&) = nullptr;
    StepTask (*asTask)(StepContext) = nullptr;
};

/// Null for a step without a handler.
const StepHandler* FindStepHandler(std::string_view name);

// One list for each subject.
std::span<const StepHandler> HostSteps();
std::span<const StepHandler> MouseSteps();
std::span<const StepHandler> KeyboardSteps();
std::span<const StepHandler> ChoiceSteps();
std::span<const StepHandler> MenuSteps();
std::span<const StepHandler> ControlExpectations();
std::span<const StepHandler> EntryExpectations();
std::span<const StepHandler> GridExpectations();
std::span<const StepHandler> PictureSteps();
std::span<const StepHandler> ProtocolExpectations();
std::span<const StepHandler> ResourceSteps();
