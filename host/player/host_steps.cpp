#include <cstdio>
#include <vector>

#include "host/player/interface_calls.h"
#include "host/player/mouse_input.h"
#include "host/player/notification_log.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_text.h"
#include "interface/notifications.h"

namespace
{

void Drawing(const StepContext& context)
{
    const std::filesystem::path name = ToWide(context.step.words.front());
    context.play.host.LoadDrawing(context.play.script.file.parent_path() / name);
}

void Open(const StepContext& context)
{
    std::optional<std::string> label;
    if (context.step.text)
        label = ResolveText(*context.step.text);
    context.play.host.OpenDialog(label);
}

void Pick(const StepContext& context)
{
    RequireNoMenu();
    if (!IsWindowEnabled(context.play.host.MainWindow()))
        throw StepFailure("the host's window is disabled");
    context.play.host.Pick(context.step.words.front());
}

void Answer(const StepContext& context)
{
    std::vector<int> codes = context.step.codes;
    if (codes.empty())
        codes = {kLinkAccepted, kLinkApplied, kClosingAccepted, kDistributionAccepted, kDialogClosed};
    for (const int code : codes)
        context.play.host.SetAnswering(static_cast<UINT>(code), context.step.Chose("on"));
}

void CallNow(const StepContext& context)
{
    MakeCall(context.play, context.step);
}

void CallInside(const StepContext& context)
{
    PlayState& play = context.play;
    const Step& step = context.step;
    play.notifications.CallInsideNext(static_cast<UINT>(*step.number), [&play, &step] {
        // What goes wrong must not pass through the module's own code: it is told before the play goes on.
        try
        {
            MakeCall(play, step);
        }
        catch (const std::exception& error)
        {
            if (!play.failedCall)
                play.failedCall = FailedCall{&step, error.what()};
        }
    });
}

void CancelDialog(const StepContext& context)
{
    context.play.host.CancelDialog();
}

void EndModal(const StepContext& context)
{
    context.play.host.EndModal();
}

void Print(const StepContext& context)
{
    for (const std::string& line : context.play.host.ChainLines())
        std::printf("%s\n", line.c_str());
}

void Command(const StepContext& context)
{
    const auto command = static_cast<int>(*context.step.number);
    context.play.notifications.NoteCommand(command);
    PostMessageW(context.window, WM_COMMAND, static_cast<WPARAM>(command), 0);
}

void CloseDialog(const StepContext& context)
{
    RequireNoMenu();
    if (!IsWindowEnabled(context.window))
        throw StepFailure("the calculation dialog is disabled");
    PostMessageW(context.window, WM_SYSCOMMAND, SC_CLOSE, 0);
}

constexpr StepHandler kHostSteps[] = {
    {.name = "drawing", .atOnce = Drawing},
    {.name = "open", .atOnce = Open},
    {.name = "pick", .atOnce = Pick},
    {.name = "answer", .atOnce = Answer},
    {.name = "call", .atOnce = CallNow},
    {.name = "on", .atOnce = CallInside},
    {.name = "cancel-dialog", .atOnce = CancelDialog},
    {.name = "end-modal", .atOnce = EndModal},
    {.name = "print", .atOnce = Print},
    {.name = "command", .atOnce = Command},
    {.name = "close-dialog", .atOnce = CloseDialog},
};

}  // namespace

std::span<const StepHandler> HostSteps()
{
    return kHostSteps;
}
