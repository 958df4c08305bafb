#pragma once

#include <functional>
#include <vector>

#include <windows.h>

/// Runs steps one after the other in the message loop that runs next, such as a child dialog's. Between two steps the
/// loop handles everything that the step before has posted. A loop inside may have a script of its own; the outer
/// script waits until that has ended.
///
/// The test fails when the loop ends before the last step or goes on behind it; in the second case it is stopped.
class LoopScript
{
public:
    using Step = std::function<void()>;

    /// @param stop  ends the loop
    LoopScript(std::vector<Step> steps, std::function<void()> stop);
    ~LoopScript();
    LoopScript(const LoopScript&) = delete;
    LoopScript& operator=(const LoopScript&) = delete;

private:
    static LoopScript*& Innermost();
    static LRESULT CALLBACK DriverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void RunNext();

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    std::function<void()> m_stop;
    HWND m_driver;
    LoopScript* m_outer;
    bool m_waits = false;  // for the end of an inner script
};
