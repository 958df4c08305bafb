#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "interface/notifications.h"
#include "platform/moduleskin/module_skin.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/modal_script.h"
#include "tests/support/pixels.h"
#include "tests/support/recording_window.h"
#include "tests/support/released_pages.h"
#include "tests/support/resource_text.h"

inline Pixels ResourcePicture(UINT bitmapId)
{
    const CModuleSkin skin(kModuleCalcTol);
    return BitmapPixels(bitmapId);
}

/// A modal dialog of the module with a window that is its owner, its host and the application's main window. A test
/// makes the dialog and runs it with steps that act on its controls by number.
template <class DialogUnderTest>
class ModalDialogTest : public testing::Test
{
protected:
    using Dialog = DialogUnderTest;

    ModalDialogTest() { AfxGetThread()->m_pMainWnd = &host; }
    ~ModalDialogTest() override { AfxGetThread()->m_pMainWnd = nullptr; }

    /// Does something inside every notification.
    void OnNotification(std::function<void(UINT code)> action)
    {
        host.OnReceived([action](const ReceivedMessage& received) -> std::optional<LRESULT> {
            if (received.message != WM_CHAR || received.lParam != kNotificationMark)
                return std::nullopt;
            action(static_cast<UINT>(received.wParam));
            return 0;
        });
    }

    /// The codes of the notifications so far.
    std::vector<WPARAM> Codes() const { return host.Notifications(); }

    /// The caller's resource context ends when the dialog is open: from then on the dialog needs its own.
    INT_PTR Run(std::vector<ModalScript::Step> steps)
    {
        auto skin = std::make_unique<CModuleSkin>(kModuleCalcTol);
        steps.insert(steps.begin(), [&skin] { skin.reset(); });
        return script.Run(*dialog, std::move(steps), [this] { return dialog != nullptr && dialog->m_hWnd != nullptr; });
    }

    HWND Window(int control) const { return ::GetDlgItem(dialog->m_hWnd, control); }

    CString Text(int control) const
    {
        wchar_t text[300] = L"";
        ::GetWindowTextW(Window(control), text, 300);
        return text;
    }

    void Write(int control, const wchar_t* text) const { ::SetWindowTextW(Window(control), text); }

    bool IsEnabled(int control) const { return ::IsWindowEnabled(Window(control)) != FALSE; }
    bool IsShown(int control) const { return (::GetWindowLongPtrW(Window(control), GWL_STYLE) & WS_VISIBLE) != 0; }
    bool IsChecked(int control) const { return ::SendMessageW(Window(control), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    /// A command of a button, whether or not it can be clicked now.
    void Command(int button) const
    {
        ::SendMessageW(dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                       reinterpret_cast<LPARAM>(Window(button)));
    }

    void Click(int button) const { ::SendMessageW(Window(button), BM_CLICK, 0, 0); }

    /// As the user's Tab does it: the focused button becomes the one that Enter presses.
    void FocusOn(int control) const
    {
        ::SendMessageW(dialog->m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Window(control)), TRUE);
    }

    /// The control that has the focus; for a part of a control, the control.
    int Focused() const
    {
        HWND window = ::GetFocus();
        while (window != nullptr && ::GetParent(window) != dialog->m_hWnd)
            window = ::GetParent(window);
        return window == nullptr ? 0 : ::GetDlgCtrlID(window);
    }

    /// Runs the dialog and presses Tab: where the focus goes from `first` on.
    /// @param opening  done before the first Tab
    std::vector<int> TabOrder(int first, std::size_t count, std::vector<ModalScript::Step> opening = {})
    {
        std::vector<int> order;
        std::vector<ModalScript::Step> steps = std::move(opening);
        steps.push_back([this, first] { FocusOn(first); });
        for (std::size_t i = 0; i < count; ++i)
            steps.push_back([this, &order] {
                order.push_back(Focused());
                PostKey(::GetFocus(), VK_TAB);
            });
        Run(std::move(steps));
        return order;
    }

    RecordingWindow host;
    std::unique_ptr<Dialog> dialog;
    ModalScript script;
};
