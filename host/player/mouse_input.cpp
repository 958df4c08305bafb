#include "host/player/mouse_input.h"

#include "host/player/step_failure.h"

namespace
{

struct Hit
{
    HWND window;
    POINT point;
};

Hit MovedTo(const Hit& hit, HWND window)
{
    Hit moved{window, hit.point};
    MapWindowPoints(hit.window, window, &moved.point, 1);
    return moved;
}

// The window that gets a click at the point: the innermost child there, or the parent of one that lets clicks through.
Hit WindowAt(HWND control, POINT point)
{
    Hit hit{control, point};
    while (true)
    {
        const HWND child =
            ChildWindowFromPointEx(hit.window, hit.point, CWP_SKIPINVISIBLE | CWP_SKIPDISABLED | CWP_SKIPTRANSPARENT);
        if (child == nullptr || child == hit.window)
            break;
        hit = MovedTo(hit, child);
    }
    POINT screen = hit.point;
    ClientToScreen(hit.window, &screen);
    const HWND parent = GetAncestor(hit.window, GA_PARENT);
    if (SendMessageW(hit.window, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)) == HTTRANSPARENT &&
        GetAncestor(hit.window, GA_ROOT) != hit.window)
        return MovedTo(hit, parent);
    return hit;
}

void Post(const Hit& hit, UINT message, WPARAM buttons)
{
    PostMessageW(hit.window, message, buttons, MAKELPARAM(hit.point.x, hit.point.y));
}

}  // namespace

StepTask ClickTask(HWND window, HWND control, POINT point, MouseClick click)
{
    RequireNoMenu();
    if (GetActiveWindow() != window)
        SetActiveWindow(window);

    const Hit first = WindowAt(control, point);
    if (click == MouseClick::kRight)
    {
        Post(first, WM_RBUTTONDOWN, MK_RBUTTON);
        co_await NextIdle();
        // A menu that the press has opened takes the release for itself.
        if (!IsMenuOpen() && IsWindow(first.window))
            Post(first, WM_RBUTTONUP, 0);
        co_return;
    }
    // Press and release together: a control may wait inside the press for the release.
    Post(first, WM_LBUTTONDOWN, MK_LBUTTON);
    Post(first, WM_LBUTTONUP, 0);
    if (click == MouseClick::kLeft)
        co_return;
    co_await NextIdle();
    if (!IsWindow(control) || !IsWindowEnabled(window) || IsMenuOpen())
        co_return;  // what the first click has opened gets nothing of the second
    // An editor that the first click has opened gets the second one as its own first.
    const Hit second = WindowAt(control, point);
    Post(second, second.window == first.window ? WM_LBUTTONDBLCLK : WM_LBUTTONDOWN, MK_LBUTTON);
    Post(second, WM_LBUTTONUP, 0);
}

bool IsMenuOpen()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    if (!GetGUIThreadInfo(GetCurrentThreadId(), &info))
        return false;
    return (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE)) != 0;
}

void RequireNoMenu()
{
    if (IsMenuOpen())
        throw StepFailure("a menu is open");
}
