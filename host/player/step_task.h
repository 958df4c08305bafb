#pragma once

#include <coroutine>
#include <exception>
#include <utility>

/// One step at work: a coroutine that runs until it awaits NextIdle and goes on when the message loop is idle again.
class StepTask
{
public:
    // The names below are those that the language looks for.
    struct promise_type
    {
        std::exception_ptr failure;

        StepTask get_return_object() { return StepTask(std::coroutine_handle<promise_type>::from_promise(*this)); }
        std::suspend_always initial_suspend() noexcept { return {}; }
        std::suspend_always final_suspend() noexcept { return {}; }
        void return_void() {}
        void unhandled_exception() { failure = std::current_exception(); }
    };

    StepTask(StepTask&& other) noexcept : m_coroutine(std::exchange(other.m_coroutine, nullptr)) {}
    StepTask& operator=(StepTask&&) = delete;
    ~StepTask()
    {
        if (m_coroutine)
            m_coroutine.destroy();
    }

    /// Goes on to the next await or to the end; true when the step is done. Throws what the step throws.
    bool Resume()
    {
        m_coroutine.resume();
        if (m_coroutine.promise().failure)
            std::rethrow_exception(m_coroutine.promise().failure);
        return m_coroutine.done();
    }

private:
    explicit StepTask(std::coroutine_handle<promise_type> coroutine) : m_coroutine(coroutine) {}

    std::coroutine_handle<promise_type> m_coroutine;
};

/// `co_await NextIdle()` lets the messages run that the step has posted.
using NextIdle = std::suspend_always;
