#include "tests/dialog/windowed/loop_script.h"

#include <utility>

#include <gtest/gtest.h>

namespace
{

constexpr UINT kRunStep = WM_APP + 1;
constexpr wchar_t kDriverClass[] = L"LoopScriptDriver";

void RegisterDriver(WNDPROC procedure)
{
    WNDCLASSW description{};
    description.lpfnWndProc = procedure;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = kDriverClass;
    ::RegisterClassW(&description);  // fails harmlessly the second time
}

}  // namespace

LoopScript::LoopScript(std::vector<Step> steps, std::function<void()> stop)
    : m_steps(std::move(steps)), m_stop(std::move(stop)), m_outer(Innermost())
{
    Innermost() = this;
    RegisterDriver(&LoopScript::DriverProc);
    m_driver = ::CreateWindowExW(0, kDriverClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 ::GetModuleHandleW(nullptr), nullptr);
    ::SetWindowLongPtrW(m_driver, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ::PostMessageW(m_driver, kRunStep, 0, 0);
}

LoopScript::~LoopScript()
{
    ::DestroyWindow(m_driver);
    Innermost() = m_outer;
    if (m_outer != nullptr && m_outer->m_waits)
    {
        m_outer->m_waits = false;
        ::PostMessageW(m_outer->m_driver, kRunStep, 0, 0);
    }
    EXPECT_EQ(m_next, m_steps.size()) << "the loop ended early, or none ran";
}

LoopScript*& LoopScript::Innermost()
{
    static LoopScript* innermost = nullptr;
    return innermost;
}

LRESULT CALLBACK LoopScript::DriverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kRunStep)
        return ::DefWindowProcW(window, message, wParam, lParam);
    reinterpret_cast<LoopScript*>(::GetWindowLongPtrW(window, GWLP_USERDATA))->RunNext();
    return 0;
}

void LoopScript::RunNext()
{
    if (Innermost() != this)
    {
        m_waits = true;
        return;
    }
    if (m_next == m_steps.size())
    {
        ADD_FAILURE() << "the loop goes on behind the last step";
        m_stop();
        return;
    }
    const Step step = m_steps[m_next++];
    step();
    ::PostMessageW(m_driver, kRunStep, 0, 0);
}
