#include "tests/support/watchdog.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <string>
#include <thread>

#include <windows.h>

#include <gtest/gtest.h>

namespace
{
constexpr std::chrono::seconds kTimeForTest(30);
constexpr std::chrono::seconds kTimeToQuit(10);
constexpr UINT kQuitRequest = WM_APP + 0x3FF;  // to the thread, which only itself can post WM_QUIT

LRESULT CALLBACK OnMessageTaken(int code, WPARAM wParam, LPARAM lParam)
{
    auto* message = reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message->hwnd == nullptr && message->message == kQuitRequest)
        ::PostQuitMessage(1);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

class Watchdog : public testing::EmptyTestEventListener
{
public:
    Watchdog()
        : m_mainThread(::GetCurrentThreadId()),
          m_hook(::SetWindowsHookExW(WH_GETMESSAGE, &OnMessageTaken, nullptr, m_mainThread)),
          m_thread([this] { Watch(); })
    {
    }

    ~Watchdog() override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_finished = true;
        }
        m_changed.notify_all();
        m_thread.join();
        ::UnhookWindowsHookEx(m_hook);
    }

    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    void OnTestStart(const testing::TestInfo& test) override
    {
        const std::lock_guard lock(m_mutex);
        m_test = std::string(test.test_suite_name()) + '.' + test.name();
        m_deadline = std::chrono::steady_clock::now() + kTimeForTest;
        m_toldToQuit = false;
        m_changed.notify_all();
    }

    void OnTestEnd(const testing::TestInfo&) override
    {
        bool failed = false;
        {
            const std::lock_guard lock(m_mutex);
            failed = m_toldToQuit;
            m_test.clear();
        }
        if (failed)
            ADD_FAILURE() << "the test did not end within " << kTimeForTest.count() << " seconds";
    }

private:
    void Watch()
    {
        std::unique_lock lock(m_mutex);
        while (!m_finished)
        {
            if (m_test.empty())
            {
                m_changed.wait(lock);
                continue;
            }
            m_changed.wait_until(lock, m_deadline);
            if (!m_test.empty() && !m_finished && std::chrono::steady_clock::now() >= m_deadline)
                Intervene();
        }
    }

    // Called with the lock held.
    void Intervene()
    {
        if (!m_toldToQuit)
        {
            m_toldToQuit = true;
            m_deadline = std::chrono::steady_clock::now() + kTimeToQuit;
            ::PostThreadMessageW(m_mainThread, kQuitRequest, 0, 0);
            return;
        }
        std::fprintf(stderr, "[  FAILED  ] %s: the test hangs; the program ends\n", m_test.c_str());
        std::fflush(stderr);
        ::TerminateProcess(::GetCurrentProcess(), 1);
    }

    DWORD m_mainThread;
    HHOOK m_hook;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_test;  // empty between tests
    std::chrono::steady_clock::time_point m_deadline;
    bool m_toldToQuit = false;
    bool m_finished = false;
    std::thread m_thread;  // last: it uses the others
};
}  // namespace

std::unique_ptr<testing::TestEventListener> MakeWatchdog()
{
    return std::make_unique<Watchdog>();
}
