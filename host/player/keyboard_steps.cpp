#include "host/player/keyboard_input.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

#include <commctrl.h>

namespace
{

StepTask Key(StepContext context)
{
    const HWND control = RequireUsableControl(context.window, context.step.control);
    const KeyName& key = *FindKey(context.step.words.front());
    const HWND target = TakeKeyboard(context.window, control);
    const HeldModifiers held(key);
    PostKey(target, key);
    co_await NextIdle();
}

StepTask Char(StepContext context)
{
    const HWND control = RequireUsableControl(context.window, context.step.control);
    for (const wchar_t character : ToWide(ResolveText(*context.step.text)))
    {
        if (!IsWindow(control))
            throw StepFailure("the control is gone before all characters were typed");
        // Each on its own: the first may open an editor, which gets the others.
        PostCharacter(TakeKeyboard(context.window, control), character);
        co_await NextIdle();
    }
}

// The edit itself, or the edit part of a combo box; null when there is none.
HWND EditOf(HWND control)
{
    const std::wstring name = WindowClass(control);
    if (name == WC_COMBOBOXEXW)
        return reinterpret_cast<HWND>(SendMessageW(control, CBEM_GETEDITCONTROL, 0, 0));
    if (name != WC_COMBOBOXW)
        return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0 ? control : nullptr;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    if (!GetComboBoxInfo(control, &info) || info.hwndItem == control)
        return nullptr;
    return WindowClass(info.hwndItem) == WC_EDITW ? info.hwndItem : nullptr;
}

StepTask Type(StepContext context)
{
    const HWND control = RequireUsableControl(context.window, context.step.control);
    const HWND edit = EditOf(control);
    if (edit == nullptr)
        throw StepFailure("the control has no text to edit");
    if ((GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY) != 0)
        throw StepFailure("the control's text can't be changed");
    TakeKeyboard(context.window, edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    const std::wstring text = ToWide(ResolveText(*context.step.text));
    if (text.empty() && GetWindowTextLengthW(edit) > 0)
        PostKey(edit, KeyName{.name = "Delete", .virtualKey = VK_DELETE, .extended = true});
    for (const wchar_t character : text)
        PostMessageW(edit, WM_CHAR, character == L'\n' ? L'\r' : character, 1);
    co_await NextIdle();
}

constexpr StepHandler kKeyboardSteps[] = {
    {.name = "key", .asTask = Key},
    {.name = "char", .asTask = Char},
    {.name = "type", .asTask = Type},
};

}  // namespace

std::span<const StepHandler> KeyboardSteps()
{
    return kKeyboardSteps;
}
