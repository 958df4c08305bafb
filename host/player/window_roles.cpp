#include "host/player/window_roles.h"

#include "host/player/step_failure.h"
#include "host/player/window_text.h"
#include "platform/moduleskin/resource.h"

namespace
{

constexpr int kMessageTextId = 0xFFFF;  // the text of a message box

bool HasControl(HWND window, int id)
{
    return GetDlgItem(window, id) != nullptr;
}

bool IsCalculationDialog(HWND window)
{
    return HasControl(window, IDC_CHAIN_LIST) && HasControl(window, IDC_CLOSING_LIST) &&
           HasControl(window, IDC_CHAIN_DIAGRAM);
}

bool IsChildDialog(HWND window)
{
    return HasControl(window, IDC_LINK_FIELD) || HasControl(window, IDC_CLOSING_FIELD) ||
           HasControl(window, IDC_VARIABLE_PLOT) || HasControl(window, IDC_WEIGHT_LIST);
}

bool HasRole(HWND window, WindowRole role, HWND hostWindow)
{
    if (window == hostWindow)
        return role == WindowRole::kHost;
    switch (role)
    {
    case WindowRole::kHost:
        return false;
    case WindowRole::kCalc:
        return IsCalculationDialog(window);
    case WindowRole::kLink:
        return HasControl(window, IDC_LINK_FIELD);
    case WindowRole::kClosing:
        return HasControl(window, IDC_CLOSING_FIELD);
    case WindowRole::kDistribution:
        return HasControl(window, IDC_VARIABLE_PLOT);
    case WindowRole::kWeight:
        return HasControl(window, IDC_WEIGHT_LIST);
    case WindowRole::kMessage:
        return HasControl(window, kMessageTextId) && WindowClass(window) == L"#32770" && !IsCalculationDialog(window) &&
               !IsChildDialog(window);
    }
    return false;
}

BOOL CALLBACK Collect(HWND window, LPARAM windows)
{
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

HWND FindChild(HWND parent, int id)
{
    if (id == ControlPath::kMessageText)
        return GetDlgItem(parent, kMessageTextId);
    if (id != ControlPath::kMessageOk)
        return GetDlgItem(parent, id);
    // The only button of a box with nothing but OK has the ID of Cancel, so that Escape reaches it.
    const HWND button = GetDlgItem(parent, IDOK);
    return button != nullptr ? button : GetDlgItem(parent, IDCANCEL);
}

}  // namespace

std::vector<HWND> TopLevelWindows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

HWND FindRole(WindowRole role, HWND hostWindow)
{
    for (const HWND window : TopLevelWindows())
    {
        if (IsWindowVisible(window) && HasRole(window, role, hostWindow))
            return window;
    }
    return nullptr;
}

bool RoleExists(WindowRole role, HWND hostWindow)
{
    for (const HWND window : TopLevelWindows())
    {
        if (HasRole(window, role, hostWindow))
            return true;
    }
    return false;
}

std::string OpenRoles(HWND hostWindow)
{
    std::string names;
    for (const WindowRole role : {WindowRole::kHost, WindowRole::kCalc, WindowRole::kLink, WindowRole::kClosing,
                                  WindowRole::kDistribution, WindowRole::kWeight, WindowRole::kMessage})
    {
        const HWND window = FindRole(role, hostWindow);
        if (window == nullptr)
            continue;
        names += names.empty() ? "open: " : ", ";
        names += RoleName(role);
        if (role == WindowRole::kMessage)
            names += " " + Quoted(WindowText(GetDlgItem(window, kMessageTextId)));
    }
    return names.empty() ? "no window open" : names;
}

HWND FindControl(HWND window, const ControlPath& control)
{
    for (const int id : control.ids)
    {
        if (window == nullptr)
            return nullptr;
        window = FindChild(window, id);
    }
    return window;
}

HWND RequireControl(HWND window, const ControlPath& control)
{
    const HWND found = FindControl(window, control);
    if (found == nullptr)
        throw StepFailure("there is no control " + control.name);
    return found;
}

HWND RequireUsableControl(HWND window, const ControlPath& control)
{
    if (!IsWindowEnabled(window))
        throw StepFailure("the window is disabled");
    HWND found = window;
    for (const int id : control.ids)
    {
        found = FindChild(found, id);
        if (found == nullptr)
            throw StepFailure("there is no control " + control.name);
        if (!IsWindowVisible(found))
            throw StepFailure("control " + control.name + " is hidden");
        if (!IsWindowEnabled(found))
            throw StepFailure("control " + control.name + " is disabled");
    }
    return found;
}
