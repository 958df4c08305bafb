#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <afxwin.h>

/// A message that a RecordingWindow got.
struct ReceivedMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    NMHDR header;  ///< of WM_NOTIFY, else zeros
};

/// A bare visible top-level window that stands for a parent or a host: it records WM_COMMAND, WM_NOTIFY and WM_CHAR
/// before it handles them.
class RecordingWindow : public CWnd
{
public:
    /// Creates the window; check with GetSafeHwnd.
    explicit RecordingWindow(int width = 600, int height = 400, CWnd* owner = nullptr);
    ~RecordingWindow() override;

    const std::vector<ReceivedMessage>& Received() const { return m_received; }
    /// Those of one message only, in order.
    std::vector<ReceivedMessage> Received(UINT message) const;
    /// The wParam of each WM_CHAR that carries the mark 0xFFFF, in order: what a host is told.
    std::vector<WPARAM> Notifications() const;
    int CountOfCommand(UINT id, UINT code) const;
    /// @param code  such as NM_CLICK
    int CountOfNotify(UINT_PTR id, UINT code) const;
    void Forget() { m_received.clear(); }

    /// Called for each recorded message; a result given is the answer, nothing leads to the usual handling.
    void OnReceived(std::function<std::optional<LRESULT>(const ReceivedMessage&)> answer);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::vector<ReceivedMessage> m_received;
    std::function<std::optional<LRESULT>(const ReceivedMessage&)> m_answer;
};
