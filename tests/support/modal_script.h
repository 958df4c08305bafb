#pragma once

#include <functional>
#include <vector>

#include <afxwin.h>

/// Runs steps one after the other inside the modal loop of a dialog. Between two steps the loop handles everything that
/// the step before has posted, keys and mouse clicks among it.
class ModalScript
{
public:
    using Step = std::function<void()>;

    /// Runs the dialog. A dialog that still runs behind the last step is ended with kStepsDone.
    /// @param running  says whether the dialog object still exists and has a window
    INT_PTR Run(CDialog& dialog, std::vector<Step> steps, std::function<bool()> running);

    static constexpr int kStepsDone = 777;

private:
    static LRESULT CALLBACK DriverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void RunNext();

    CDialog* m_dialog = nullptr;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    std::function<bool()> m_running;
    HWND m_driver = nullptr;
};
