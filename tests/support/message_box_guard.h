#pragma once

#include <functional>
#include <string>
#include <vector>

#include <windows.h>

/// Watches the message boxes of the thread. One that no test expects is closed and makes the running test fail with the
/// box's text. The main function holds one of these.
class MessageBoxGuard
{
public:
    MessageBoxGuard();
    ~MessageBoxGuard();
    MessageBoxGuard(const MessageBoxGuard&) = delete;
    MessageBoxGuard& operator=(const MessageBoxGuard&) = delete;

private:
    HHOOK m_hook;
};

/// The next message box is expected and gets that answer; when none comes in the life of this object the test fails.
/// Several expected boxes are answered in the order in which they were announced.
class ExpectMessageBox
{
public:
    explicit ExpectMessageBox(int answer = IDOK);
    ~ExpectMessageBox();
    ExpectMessageBox(const ExpectMessageBox&) = delete;
    ExpectMessageBox& operator=(const ExpectMessageBox&) = delete;

    /// Runs while the box is open, before it is answered.
    void WhileShown(std::function<void()> action);

    // what the box showed; empty as long as it has not come
    bool WasShown() const { return m_shown; }
    const std::wstring& Text() const { return m_text; }
    const std::wstring& Caption() const { return m_caption; }
    HWND Owner() const { return m_owner; }
    /// IDs from the left to the right.
    const std::vector<int>& Buttons() const { return m_buttons; }

private:
    friend class MessageBoxes;

    int m_answer;
    std::function<void()> m_whileShown;
    bool m_shown = false;
    std::wstring m_text;
    std::wstring m_caption;
    HWND m_owner = nullptr;
    std::vector<int> m_buttons;
};
