#include "tests/support/modal_script.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kRunStep = WM_APP + 1;
constexpr wchar_t kDriverClass[] = L"ModalScriptDriver";

void RegisterDriver(WNDPROC procedure)
{
    WNDCLASSW description{};
    description.lpfnWndProc = procedure;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = kDriverClass;
    ::RegisterClassW(&description);  // fails harmlessly the second time
}

}  // namespace

INT_PTR ModalScript::Run(CDialog& dialog, std::vector<Step> steps, std::function<bool()> running)
{
    RegisterDriver(&ModalScript::DriverProc);
    m_dialog = &dialog;
    m_steps = std::move(steps);
    m_next = 0;
    m_running = std::move(running);
    m_driver = ::CreateWindowExW(0, kDriverClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 ::GetModuleHandleW(nullptr), nullptr);
    ::SetWindowLongPtrW(m_driver, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ::PostMessageW(m_driver, kRunStep, 0, 0);
    const INT_PTR result = dialog.DoModal();
    ::DestroyWindow(m_driver);
    EXPECT_GT(m_next, 0U) << "the dialog did not open";
    return result;
}

LRESULT CALLBACK ModalScript::DriverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kRunStep)
        return ::DefWindowProcW(window, message, wParam, lParam);
    reinterpret_cast<ModalScript*>(::GetWindowLongPtrW(window, GWLP_USERDATA))->RunNext();
    return 0;
}

void ModalScript::RunNext()
{
    if (m_next < m_steps.size())
    {
        const Step step = m_steps[m_next++];
        step();
        ::PostMessageW(m_driver, kRunStep, 0, 0);
    }
    else if (m_running())
        m_dialog->EndDialog(kStepsDone);
}
