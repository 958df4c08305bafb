#include "host/player/time_limit.h"

#include <cstdio>

#include <windows.h>

namespace
{

constexpr UINT kTimeIsUp = 3;

}  // namespace

TimeLimit::TimeLimit(std::chrono::milliseconds limit) : m_thread([this, limit] { Watch(limit); }) {}

TimeLimit::~TimeLimit()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void TimeLimit::SetPlace(const std::string& place)
{
    const std::lock_guard lock(m_mutex);
    m_place = place;
}

void TimeLimit::Watch(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    if (m_changed.wait_for(lock, limit, [this] { return m_ended; }))
        return;
    std::printf("stopped: the time is up after %lld ms, at %s\n", static_cast<long long>(limit.count()),
                m_place.c_str());
    std::fflush(stdout);
    // Not ExitProcess: that would wait for locks that a hanging thread may hold.
    TerminateProcess(GetCurrentProcess(), kTimeIsUp);
}
