#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// Ends the process with exit code 3 when the play has not ended in time, also when its user interface hangs.
class TimeLimit
{
public:
    explicit TimeLimit(std::chrono::milliseconds limit);
    ~TimeLimit();
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

    /// What the play is at, for the message.
    void SetPlace(const std::string& place);

private:
    void Watch(std::chrono::milliseconds limit);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_ended = false;
    std::string m_place = "the first step";
    std::thread m_thread;
};
