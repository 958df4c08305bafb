#include "host/player/script_player.h"

#include <cstdio>
#include <optional>
#include <string>
#include <utility>

#include <windows.h>

#include "host/player/menu_view.h"
#include "host/player/notification_log.h"
#include "host/player/resource_count.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/time_limit.h"
#include "host/player/window_roles.h"

namespace
{

constexpr UINT kTick = 10;                               // milliseconds between two looks whether the loop is idle
constexpr std::chrono::milliseconds kWindowWait(10000);  // a step's patience with the window that it names
constexpr int kHeld = 0;
constexpr int kFailed = 1;

void PrintLine(const std::string& line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

// Nothing but timers is waiting for the thread.
bool IsIdle()
{
    constexpr UINT kAllButTimers = QS_ALLINPUT & ~static_cast<UINT>(QS_TIMER);
    return HIWORD(GetQueueStatus(kAllButTimers)) == 0;
}

bool NeedsMenu(const Step& step)
{
    return step.name == "menu-pick" || step.name == "menu-dismiss" || step.name == "expect-context";
}

// The window that a step names, also where the name goes without saying.
std::optional<WindowRole> RoleOf(const Step& step)
{
    if (step.window)
        return step.window;
    if (step.name == "command" || step.name == "expect-menu" || step.name == "close-dialog")
        return WindowRole::kCalc;
    if (step.name == "expect-message")
        return WindowRole::kMessage;
    return std::nullopt;
}

}  // namespace

class ScriptPlayer::Run
{
public:
    Run(Script script, PlayedHost& host, std::chrono::milliseconds timeout)
        : m_script(std::move(script)), m_notifications(host),
          m_timeout(timeout), m_play{host, m_notifications, m_script, m_marked, std::nullopt, 0}
    {
    }

    ~Run()
    {
        if (m_timer == 0)
            return;
        StopTimer();
        m_play.host.SetObserver(nullptr);
    }

    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    void Start()
    {
        m_play.host.SetObserver(&m_notifications);
        m_limit.emplace(m_timeout);
        s_current = this;
        m_timer = SetTimer(nullptr, 0, kTick, OnTimer);
        if (m_timer == 0)
            Fail("Windows gives no timer");
    }

private:
    // A timer's function also comes inside modal dialogs, message boxes and menus, whichever loop is current.
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        if (s_current != nullptr)
            s_current->OnTick();
    }

    void OnTick()
    {
        m_notifications.NoteDialogs();
        while (!m_ended && IsIdle() && Advance())
        {
        }
    }

    // Goes on with the play; false when it has to wait for something.
    bool Advance()
    {
        if (m_isInside)
        {
            // The step at work has opened a message loop inside a call and waits in there: it counts as done, and those
            // behind it go on in that loop. Should it fail when the call returns, it is told then.
            m_isInside = false;
            EndStep();
        }
        if (m_play.failedCall)
        {
            FailAtCall();
            return false;
        }
        if (m_next == m_script.steps.size())
        {
            End(kHeld);
            return false;
        }
        try
        {
            return m_task ? Resume() : Begin();
        }
        catch (const std::exception& error)
        {
            Fail(m_script.steps[m_next], error.what());
            return false;
        }
    }

    bool Begin()
    {
        const Step& step = m_script.steps[m_next];
        const HWND hostWindow = m_play.host.MainWindow();
        m_limit->SetPlace(Place(step));
        if (!m_waitingSince)
            m_waitingSince = std::chrono::steady_clock::now();
        const bool timeIsUp = std::chrono::steady_clock::now() - *m_waitingSince >= kWindowWait;

        HWND window = nullptr;
        const std::optional<WindowRole> role = RoleOf(step);
        if (role && step.name != "expect-closed")
        {
            window = FindRole(*role, hostWindow);
            if (window == nullptr && timeIsUp)
                throw StepFailure(std::string(RoleName(*role)) + " open", OpenRoles(hostWindow));
            if (window == nullptr)
                return false;
        }
        if (NeedsMenu(step) && OpenPopups().empty())
        {
            if (timeIsUp)
                throw StepFailure("a context menu that is up", OpenRoles(hostWindow));
            return false;
        }

        const StepHandler* const handler = FindStepHandler(step.name);
        if (handler == nullptr)
            throw StepFailure("the player has no such step");
        const StepContext context{m_play, step, window};
        m_task.emplace(handler->asTask != nullptr ? handler->asTask(context) : AtOnce(handler->atOnce, context));
        return Resume();
    }

    static StepTask AtOnce(void (*handler)(const StepContext&), StepContext context)
    {
        handler(context);
        co_return;
    }

    // True when the next step may begin at once, if the loop is idle still.
    bool Resume()
    {
        // Taken out: while it runs, a message loop inside it may go on with the steps behind it.
        StepTask task = std::move(*m_task);
        m_task.reset();
        const std::size_t at = m_next;
        m_isInside = true;
        bool isDone = false;
        try
        {
            isDone = task.Resume();
        }
        catch (const std::exception& error)
        {
            Fail(m_script.steps[at], error.what());
            return false;
        }
        const bool wasOvertaken = m_ended || m_next != at;
        if (wasOvertaken)
            return false;
        m_isInside = false;
        if (isDone)
            EndStep();
        else
            m_task.emplace(std::move(task));
        return true;
    }

    void EndStep()
    {
        const Step& step = m_script.steps[m_next];
        PrintLine("ok   " + std::to_string(step.line) + ": " + step.source);
        ++m_next;
        m_waitingSince.reset();
    }

    std::string Place(const Step& step) const
    {
        const std::u8string file = m_script.file.u8string();
        return std::string(file.begin(), file.end()) + ":" + std::to_string(step.line) + ": " + step.source;
    }

    void FailAtCall() { Fail(Place(*m_play.failedCall->step) + "\n     " + m_play.failedCall->reason); }

    void Fail(const Step& step, const std::string& reason)
    {
        // A call inside a notification that could not be made came before what went wrong after it.
        if (m_play.failedCall)
            FailAtCall();
        else
            Fail(Place(step) + "\n     " + reason);
    }

    void Fail(const std::string& message)
    {
        if (m_ended)
            return;
        PrintLine("FAIL " + message);
        End(kFailed);
    }

    void End(int exitCode)
    {
        if (m_ended)
            return;
        m_ended = true;
        if (exitCode == kHeld)
            PrintLine("all " + std::to_string(m_script.steps.size()) + " steps held");
        StopTimer();
        m_limit.reset();
        m_play.host.SetObserver(nullptr);
        m_play.host.OnPlayEnded(exitCode);
    }

    void StopTimer()
    {
        KillTimer(nullptr, m_timer);
        m_timer = 0;
        s_current = nullptr;
    }

    // A timer's function gets no pointer along; one play runs at a time.
    static Run* s_current;

    const Script m_script;
    NotificationLog m_notifications;
    ResourceCount m_marked;
    std::chrono::milliseconds m_timeout;
    PlayState m_play;
    std::optional<TimeLimit> m_limit;
    UINT_PTR m_timer = 0;

    std::size_t m_next = 0;
    std::optional<StepTask> m_task;
    std::optional<std::chrono::steady_clock::time_point> m_waitingSince;
    bool m_isInside = false;  // a step's code is on the stack and no step has overtaken it
    bool m_ended = false;
};

ScriptPlayer::Run* ScriptPlayer::Run::s_current = nullptr;

ScriptPlayer::ScriptPlayer(Script script, PlayedHost& host, std::chrono::milliseconds timeout)
    : m_run(std::make_unique<Run>(std::move(script), host, timeout))
{
}

ScriptPlayer::~ScriptPlayer() = default;

void ScriptPlayer::Start()
{
    m_run->Start();
}
