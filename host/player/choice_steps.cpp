#include <cstdlib>

#include "host/player/keyboard_input.h"
#include "host/player/mouse_input.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

#include <commctrl.h>

namespace
{

// The combo box proper: an extended one has it inside.
HWND PlainCombo(HWND control)
{
    const std::wstring name = WindowClass(control);
    if (name == WC_COMBOBOXEXW)
        return reinterpret_cast<HWND>(SendMessageW(control, CBEM_GETCOMBOCONTROL, 0, 0));
    if (name != WC_COMBOBOXW)
        throw StepFailure("the control is no combo box but a " + ToUtf8(name));
    return control;
}

RECT EntryArea(HWND list, int entry)
{
    RECT area = {};
    RECT view = {};
    GetClientRect(list, &view);
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&area));
    if (area.top < view.top || area.bottom > view.bottom)
    {
        SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(entry), 0);
        SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&area));
    }
    return area;
}

StepTask Choose(StepContext context)
{
    const HWND control = RequireUsableControl(context.window, context.step.control);
    const HWND combo = PlainCombo(control);
    const int entry = static_cast<int>(*context.step.number);
    const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));

    TakeKeyboard(context.window, control);
    if (!SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0))
        SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    co_await NextIdle();
    if (entry < 0 || entry >= count)
        throw StepFailure("entry " + std::to_string(entry), std::to_string(count) + " entries");

    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    if (!GetComboBoxInfo(combo, &info) || info.hwndList == nullptr || !IsWindowVisible(info.hwndList))
        throw StepFailure("the list does not drop down");
    const RECT area = EntryArea(info.hwndList, entry);
    const LPARAM point = MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2);
    PostMessageW(info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(info.hwndList, WM_LBUTTONUP, 0, point);
    co_await NextIdle();
    if (IsWindow(combo) && SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0))
        throw StepFailure("the list stays open");
}

StepTask Slide(StepContext context)
{
    const HWND slider = RequireUsableControl(context.window, context.step.control);
    if (WindowClass(slider) != TRACKBAR_CLASSW)
        throw StepFailure("the control is no slider but a " + ToUtf8(WindowClass(slider)));
    const auto ask = [slider](UINT message) { return static_cast<int>(SendMessageW(slider, message, 0, 0)); };
    const int wanted = static_cast<int>(*context.step.number);
    if (wanted < ask(TBM_GETRANGEMIN) || wanted > ask(TBM_GETRANGEMAX))
        throw StepFailure("position " + std::to_string(wanted), "a slider from " +
                                                                    std::to_string(ask(TBM_GETRANGEMIN)) + " to " +
                                                                    std::to_string(ask(TBM_GETRANGEMAX)));
    const HWND target = TakeKeyboard(context.window, slider);
    while (ask(TBM_GETPOS) != wanted)
    {
        const int former = ask(TBM_GETPOS);
        PostKey(target, *FindKey(wanted > former ? "Right" : "Left"));
        co_await NextIdle();
        if (!IsWindow(slider))
            throw StepFailure("the slider is gone before it was moved");
        const int now = ask(TBM_GETPOS);
        if (std::abs(wanted - now) >= std::abs(wanted - former))
            throw StepFailure("position " + std::to_string(wanted), "the slider at " + std::to_string(now));
    }
}

constexpr StepHandler kChoiceSteps[] = {
    {.name = "choose", .asTask = Choose},
    {.name = "slide", .asTask = Slide},
};

}  // namespace

std::span<const StepHandler> ChoiceSteps()
{
    return kChoiceSteps;
}
