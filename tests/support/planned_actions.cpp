#include "tests/support/planned_actions.h"

#include <list>
#include <utility>

#include <windows.h>

namespace
{
struct PlannedAction
{
    std::function<bool()> condition;
    std::function<void()> action;
};

std::list<PlannedAction> planned;
HWND clockWindow = nullptr;
constexpr UINT_PTR kTimer = 1;
constexpr UINT kMillisecondsBetweenLooks = 10;

// One action at a look: an action may run a loop of its own, in which the next looks come.
void RunNextAction()
{
    for (auto entry = planned.begin(); entry != planned.end(); ++entry)
    {
        if (!entry->condition())
            continue;
        const std::function<void()> action = std::move(entry->action);
        planned.erase(entry);
        if (planned.empty())
            ::KillTimer(clockWindow, kTimer);
        action();
        return;
    }
}

LRESULT CALLBACK OnClockMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_TIMER)
        return ::DefWindowProcW(window, message, wParam, lParam);
    RunNextAction();
    return 0;
}
}  // namespace

void DoLater(std::function<void()> action)
{
    DoWhen([] { return true; }, std::move(action));
}

void DoWhen(std::function<bool()> condition, std::function<void()> action)
{
    planned.push_back({std::move(condition), std::move(action)});
    ::SetTimer(clockWindow, kTimer, kMillisecondsBetweenLooks, nullptr);
}

void PreparePlannedActions()
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = &OnClockMessage;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"PlannedActions";
    ::RegisterClassW(&windowClass);
    clockWindow = ::CreateWindowExW(0, windowClass.lpszClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                    windowClass.hInstance, nullptr);
}

int CancelPlannedActions()
{
    const auto left = static_cast<int>(planned.size());
    planned.clear();
    ::KillTimer(clockWindow, kTimer);
    return left;
}
