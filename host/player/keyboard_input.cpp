#include "host/player/keyboard_input.h"

#include "host/player/mouse_input.h"
#include "host/player/step_failure.h"
#include "host/player/window_text.h"

namespace
{

constexpr BYTE kDown = 0x80;
constexpr LPARAM kExtended = 1 << 24;
constexpr LPARAM kAltHeld = 1 << 29;
constexpr LPARAM kReleased = static_cast<LPARAM>(0xC0000000);  // was down and goes up

LPARAM KeyData(const KeyName& key)
{
    const UINT scan = MapVirtualKeyW(static_cast<UINT>(key.virtualKey), MAPVK_VK_TO_VSC);
    return 1 | static_cast<LPARAM>(scan) << 16 | (key.extended ? kExtended : 0) | (key.alt ? kAltHeld : 0);
}

bool HasKeyboard(HWND control)
{
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == control || IsChild(control, focus));
}

}  // namespace

HeldModifiers::HeldModifiers(const KeyName& key)
{
    GetKeyboardState(m_former);
    BYTE state[256];
    std::copy(std::begin(m_former), std::end(m_former), std::begin(state));
    const auto set = [&state](int virtualKey, int leftKey, bool down) {
        state[virtualKey] = down ? kDown : 0;
        state[leftKey] = down ? kDown : 0;
    };
    set(VK_SHIFT, VK_LSHIFT, key.shift);
    set(VK_CONTROL, VK_LCONTROL, key.control);
    set(VK_MENU, VK_LMENU, key.alt);
    SetKeyboardState(state);
}

HeldModifiers::~HeldModifiers()
{
    SetKeyboardState(m_former);
}

HWND TakeKeyboard(HWND window, HWND control)
{
    RequireNoMenu();
    if (GetActiveWindow() != window)
        SetActiveWindow(window);
    if (!HasKeyboard(control))
    {
        // A dialog moves the default button along; what is inside a control is not the dialog's to move to.
        if (GetParent(control) == window && WindowClass(window) == L"#32770")
            SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
        else
            SetFocus(control);
    }
    if (!HasKeyboard(control))
        throw StepFailure("the control doesn't take the keyboard");
    return GetFocus();
}

void PostKey(HWND target, const KeyName& key)
{
    const LPARAM data = KeyData(key);
    const auto code = static_cast<WPARAM>(key.virtualKey);
    PostMessageW(target, key.alt ? WM_SYSKEYDOWN : WM_KEYDOWN, code, data);
    PostMessageW(target, key.alt ? WM_SYSKEYUP : WM_KEYUP, code, data | kReleased);
}

void PostCharacter(HWND target, wchar_t character)
{
    if (character == L' ')
        PostKey(target, *FindKey("Space"));
    else
        PostMessageW(target, WM_CHAR, character == L'\n' ? L'\r' : character, 1);
}
