#include "tests/support/leftover_windows.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <vector>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/support/framework_printers.h"
#include "tests/support/planned_actions.h"

namespace
{
// Windows makes these for a thread when it needs them and keeps them.
bool BelongsToSystem(HWND window)
{
    constexpr const wchar_t* kSystemClasses[] = {L"IME", L"MSCTFIME UI", L"OleMainThreadWndClass",
                                                 L"CicMarshalWndClass"};
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    return std::any_of(std::begin(kSystemClasses), std::end(kSystemClasses),
                       [&name](const wchar_t* systemClass) { return ::wcscmp(systemClass, name) == 0; });
}

BOOL CALLBACK AddWindow(HWND window, LPARAM list)
{
    if (!BelongsToSystem(window))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> WindowsOfThread()
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), &AddWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

class LeftoverCheck : public testing::EmptyTestEventListener
{
public:
    void OnTestStart(const testing::TestInfo&) override { m_before = WindowsOfThread(); }

    void OnTestEnd(const testing::TestInfo&) override
    {
        const int actionsLeft = CancelPlannedActions();
        EXPECT_EQ(actionsLeft, 0) << "planned actions were not reached";
        for (const HWND window : WindowsOfThread())
        {
            if (std::find(m_before.begin(), m_before.end(), window) != m_before.end() || !::IsWindow(window))
                continue;
            CString name;
            ::GetClassNameW(window, name.GetBuffer(63), 64);
            name.ReleaseBuffer();
            CString title;
            CWnd::FromHandle(window)->GetWindowText(title);
            ADD_FAILURE() << "a window is left behind: class " << testing::PrintToString(name) << ", title "
                          << testing::PrintToString(title);
            ::DestroyWindow(window);
        }
        AfxGetThread()->m_pMainWnd = nullptr;
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);  // WM_QUIT among them does nothing here
        AfxGetThread()->OnIdle(0);
    }

private:
    std::vector<HWND> m_before;
};
}  // namespace

std::unique_ptr<testing::TestEventListener> MakeLeftoverCheck()
{
    return std::make_unique<LeftoverCheck>();
}
