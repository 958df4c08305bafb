#include "tests/support/message_pump.h"

#include <gtest/gtest.h>

#include <afxwin.h>

namespace
{
/// @return  false for WM_QUIT
bool PumpOne()
{
    CWinThread* thread = AfxGetThread();
    if (thread->PumpMessage())
        return true;
    AfxPostQuitMessage(static_cast<int>(thread->GetCurrentMessage()->wParam));
    return false;
}
}  // namespace

void PumpUntilIdle()
{
    constexpr int kEndless = 100000;  // a window that never validates itself is painted again and again
    MSG waiting;
    for (int handled = 0; ::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE); ++handled)
    {
        if (handled == kEndless)
        {
            ADD_FAILURE() << "messages never end; the last one is " << waiting.message;
            return;
        }
        if (!PumpOne())
            return;
    }
}

bool WaitUntil(const std::function<bool()>& condition, unsigned milliseconds)
{
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    while (!condition())
    {
        const ULONGLONG now = ::GetTickCount64();
        if (now >= end)
            return false;
        MSG waiting;
        if (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (!PumpOne())
                return condition();
        }
        else
        {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
    }
    return true;
}
