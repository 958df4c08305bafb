#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "dialog/calc_tol_dlg.h"
#include "tests/support/released_pages.h"

/// The calculation dialog, counting its paints. Who touches it after it was deleted crashes.
class WatchedDialog : public OnReleasedPages<CCalcTolDlg>
{
public:
    /// Paints of the whole client area with the background erased before: what a repaint is.
    int Repaints() const { return m_repaints; }
    /// How often a grid has told it of a moved focus.
    int FocusNotifications() const { return m_focusNotifications; }
    int CancelDialogCalls() const { return m_cancelDialogCalls; }
    /// Done the next time that one of its controls notifies it of that.
    void OnNotified(UINT code, std::function<void()> action)
    {
        m_awaitedCode = code;
        m_whenNotified = std::move(action);
    }

    void CancelDialog() override
    {
        ++m_cancelDialogCalls;
        OnReleasedPages<CCalcTolDlg>::CancelDialog();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ERASEBKGND)
            m_erased = true;
        const UINT notified = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->code : 0;
        if (notified == kGridFocusMoved)
            ++m_focusNotifications;
        if (notified != 0 && notified == m_awaitedCode)
            if (const auto action = std::exchange(m_whenNotified, nullptr))
                action();
        if (message != WM_PAINT)
            return OnReleasedPages<CCalcTolDlg>::WindowProc(message, wParam, lParam);
        CRect client;
        GetClientRect(&client);
        CRect update;
        GetUpdateRect(&update);
        m_erased = false;
        const LRESULT result = OnReleasedPages<CCalcTolDlg>::WindowProc(message, wParam, lParam);
        m_repaints += update == client && m_erased ? 1 : 0;
        return result;
    }

private:
    bool m_erased = false;
    int m_repaints = 0;
    int m_focusNotifications = 0;
    int m_cancelDialogCalls = 0;
    UINT m_awaitedCode = 0;
    std::function<void()> m_whenNotified;
};
