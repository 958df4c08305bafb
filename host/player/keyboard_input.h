#pragma once

#include <windows.h>

#include "host/player/key_name.h"

/// Holds Shift and Ctrl down for the thread until the end of a scope, as the messages of a held key would.
class HeldModifiers
{
public:
    explicit HeldModifiers(const KeyName& key);
    ~HeldModifiers();
    HeldModifiers(const HeldModifiers&) = delete;
    HeldModifiers& operator=(const HeldModifiers&) = delete;

private:
    BYTE m_former[256] = {};
};

/// Gives the keyboard to the control unless it or a child of it has it, and returns the window inside the control that
/// keys reach then. Throws StepFailure when the control doesn't take the keyboard.
HWND TakeKeyboard(HWND window, HWND control);

/// Posts the key's down and up messages to the window that has the keyboard.
void PostKey(HWND target, const KeyName& key);

/// Posts a typed character; a space comes as its key, since controls may take it for a command.
void PostCharacter(HWND target, wchar_t character);
