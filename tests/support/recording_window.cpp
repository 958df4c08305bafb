#include "tests/support/recording_window.h"

#include <algorithm>
#include <iterator>
#include <utility>

RecordingWindow::RecordingWindow(int width, int height, CWnd* owner)
{
    CreateEx(0, nullptr, L"recording window", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE, 0, 0, width, height,
             HandleOf(owner), nullptr);
}

RecordingWindow::~RecordingWindow()
{
    m_answer = nullptr;
    DestroyWindow();
}

std::vector<ReceivedMessage> RecordingWindow::Received(UINT message) const
{
    std::vector<ReceivedMessage> found;
    std::copy_if(m_received.begin(), m_received.end(), std::back_inserter(found),
                 [message](const ReceivedMessage& received) { return received.message == message; });
    return found;
}

std::vector<WPARAM> RecordingWindow::Notifications() const
{
    std::vector<WPARAM> codes;
    for (const ReceivedMessage& received : m_received)
    {
        if (received.message == WM_CHAR && received.lParam == 0xFFFF)
            codes.push_back(received.wParam);
    }
    return codes;
}

int RecordingWindow::CountOfCommand(UINT id, UINT code) const
{
    return static_cast<int>(
        std::count_if(m_received.begin(), m_received.end(), [id, code](const ReceivedMessage& received) {
            return received.message == WM_COMMAND && LOWORD(received.wParam) == id && HIWORD(received.wParam) == code;
        }));
}

int RecordingWindow::CountOfNotify(UINT_PTR id, UINT code) const
{
    return static_cast<int>(
        std::count_if(m_received.begin(), m_received.end(), [id, code](const ReceivedMessage& received) {
            return received.message == WM_NOTIFY && received.header.idFrom == id && received.header.code == code;
        }));
}

void RecordingWindow::OnReceived(std::function<std::optional<LRESULT>(const ReceivedMessage&)> answer)
{
    m_answer = std::move(answer);
}

LRESULT RecordingWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND || message == WM_NOTIFY || message == WM_CHAR)
    {
        ReceivedMessage received = {message, wParam, lParam, {}};
        if (message == WM_NOTIFY)
            received.header = *reinterpret_cast<const NMHDR*>(lParam);
        m_received.push_back(received);
        if (m_answer)
        {
            if (const std::optional<LRESULT> result = m_answer(received))
                return *result;
        }
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
