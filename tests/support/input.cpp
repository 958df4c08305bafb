#include "tests/support/input.h"

namespace
{
LPARAM PackedPoint(POINT point)
{
    return MAKELPARAM(point.x, point.y);
}

void SetKeyState(BYTE key, BYTE state)
{
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[key] = state;
    ::SetKeyboardState(keys);
}
}  // namespace

void PostKey(HWND window, UINT key)
{
    const LPARAM scanCode = static_cast<LPARAM>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
    ::PostMessageW(window, WM_KEYDOWN, key, scanCode | 1);
    ::PostMessageW(window, WM_KEYUP, key, scanCode | static_cast<LPARAM>(0xC0000001));
}

void PostText(HWND window, const wchar_t* text)
{
    for (; *text != L'\0'; ++text)
        ::PostMessageW(window, WM_CHAR, *text, 1);
}

void PostClick(HWND window, POINT point)
{
    ::PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, PackedPoint(point));
    ::PostMessageW(window, WM_LBUTTONUP, 0, PackedPoint(point));
}

void PostDoubleClick(HWND window, POINT point)
{
    PostClick(window, point);
    ::PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, PackedPoint(point));
    ::PostMessageW(window, WM_LBUTTONUP, 0, PackedPoint(point));
}

void PostRightClick(HWND window, POINT point)
{
    ::PostMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, PackedPoint(point));
    ::PostMessageW(window, WM_RBUTTONUP, 0, PackedPoint(point));
}

void PostButtonClick(HWND dialog, int buttonId)
{
    const HWND button = ::GetDlgItem(dialog, buttonId);
    RECT client = {};
    ::GetClientRect(button, &client);
    PostClick(button, {client.right / 2, client.bottom / 2});
}

HeldKey::HeldKey(BYTE key) : m_key(key)
{
    SetKeyState(m_key, 0x80);
}

HeldKey::~HeldKey()
{
    SetKeyState(m_key, 0);
}
