#pragma once

#include <windows.h>

// Input as the user gives it, posted to a window; nothing happens before messages are pumped.

/// A key pressed and released.
/// @param key  VK_ constant
void PostKey(HWND window, UINT key);
/// Characters, as WM_CHAR.
void PostText(HWND window, const wchar_t* text);
/// The left button pressed and released at a point of the client area.
void PostClick(HWND window, POINT point);
void PostDoubleClick(HWND window, POINT point);
void PostRightClick(HWND window, POINT point);
/// A click in the middle of a dialog's button.
void PostButtonClick(HWND dialog, int buttonId);

/// A key, such as VK_SHIFT, that is held down during the life of this object. Pump before it ends.
class HeldKey
{
public:
    explicit HeldKey(BYTE key);
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    BYTE m_key;
};
