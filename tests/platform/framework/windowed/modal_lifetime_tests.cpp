#include <functional>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/shown_dialog.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/planned_actions.h"
#include "tests/support/recording_window.h"
#include "tests/support/released_pages.h"

namespace
{
class CShortDialog : public CDialog
{
public:
    explicit CShortDialog(CWnd* parent) : CDialog(IDD_PLAIN, parent) {}

    std::function<void()> m_onOk;
    std::function<void()> m_onDestroy;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_APP)
            AfxThrowInvalidArgException();
        return CDialog::PreTranslateMessage(message);
    }

protected:
    afx_msg void OnDestroy()
    {
        if (m_onDestroy)
            m_onDestroy();
        CDialog::OnDestroy();
    }
    void OnOK() override
    {
        if (m_onOk)
            m_onOk();
        else
            CDialog::OnOK();
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CShortDialog, CDialog)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

/// Does something the next time that it is disabled.
class OwnerThatActs : public RecordingWindow
{
public:
    using RecordingWindow::RecordingWindow;

    std::function<void()> m_onDisabled;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = RecordingWindow::WindowProc(message, wParam, lParam);
        if (const auto action =
                message == WM_ENABLE && wParam == FALSE ? std::exchange(m_onDisabled, nullptr) : nullptr)
            action();
        return result;
    }
};
}  // namespace

TEST(ModalDialogLifetime, WindowDestroyedFromOutsideGivesMinusOne)
{
    RecordingWindow owner;
    CShortDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { ::DestroyWindow(dialog); });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

// Windows gives the activation to another program when no window of this one is enabled.
TEST(ModalDialogLifetime, OwnerIsEnabledBeforeTheWindowDestroyedFromOutsideGoes)
{
    RecordingWindow owner;
    CShortDialog dialog(&owner);
    bool enabled = false;
    dialog.m_onDestroy = [&] { enabled = owner.IsWindowEnabled() != FALSE; };
    DoWhen(IsShown(dialog), [&dialog] { dialog.DestroyWindow(); });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(enabled);
}

TEST(ModalDialogLifetime, DialogOpenedInPlaceOfADestroyedOneHasTheOwnerToItself)
{
    RecordingWindow owner;
    CShortDialog first(&owner);
    CShortDialog second(&owner);
    bool enabledMeanwhile = true;
    bool enabledAtTheEnd = false;
    second.m_onDestroy = [&] { enabledAtTheEnd = owner.IsWindowEnabled() != FALSE; };
    DoWhen(IsShown(second), [&] {
        enabledMeanwhile = owner.IsWindowEnabled() != FALSE;
        second.EndDialog(IDOK);
    });
    INT_PTR secondResult = 0;
    DoWhen(IsShown(first), [&] {
        first.DestroyWindow();
        secondResult = second.DoModal();
    });
    EXPECT_EQ(first.DoModal(), -1);
    EXPECT_EQ(secondResult, IDOK);
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(enabledAtTheEnd);
}

TEST(ModalDialogLifetime, ExceptionThatLeavesTheLoopEndsTheDialog)
{
    RecordingWindow owner;
    CShortDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { dialog.PostMessage(WM_APP); });
    EXPECT_THROW(dialog.DoModal(), CInvalidArgException*);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(owner.IsWindowEnabled());
    DoWhen(IsShown(dialog), [&dialog] { dialog.EndDialog(IDOK); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialogLifetime, WindowDestroyedAfterEndDialogGivesMinusOneToo)
{
    RecordingWindow owner;
    CShortDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] {
        dialog.EndDialog(IDOK);
        ::DestroyWindow(dialog);
    });
    EXPECT_EQ(dialog.DoModal(), -1);
}

TEST(ModalDialogLifetime, OwnerDestroyedWithTheDialogGivesMinusOne)
{
    RecordingWindow main;
    auto owner = std::make_unique<RecordingWindow>(300, 200, &main);
    CShortDialog dialog(owner.get());
    DoWhen(IsShown(dialog), [&owner] { owner.reset(); });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(main.IsWindowEnabled());
}

namespace
{
LRESULT CALLBACK NoteOwnerAtTheEnd(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR owner,
                                   DWORD_PTR noted)
{
    if (message == WM_DESTROY)
        *reinterpret_cast<BOOL*>(noted) = ::IsWindowEnabled(reinterpret_cast<HWND>(owner));
    return ::DefSubclassProc(window, message, wParam, lParam);
}
}  // namespace

// Windows activates another program's window when none of this one is enabled at that moment.
TEST(ModalDialogLifetime, OwnersAreEnabledBeforeTheDialogGoesWithItsOwner)
{
    RecordingWindow main;
    auto owner = std::make_unique<RecordingWindow>(300, 200, &main);
    CShortDialog dialog(owner.get());
    BOOL wasEnabled = FALSE;
    DoWhen(IsShown(dialog), [&] {
        ::SetWindowSubclass(dialog, &NoteOwnerAtTheEnd, reinterpret_cast<UINT_PTR>(main.m_hWnd),
                            reinterpret_cast<DWORD_PTR>(&wasEnabled));
        owner.reset();
    });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(wasEnabled);
    EXPECT_EQ(::GetActiveWindow(), main.m_hWnd);
}

// The second dialog waits for the first one's window as well.
TEST(ModalDialogLifetime, OwnersOfAllDialogsBelowAreEnabledBeforeTheyGo)
{
    RecordingWindow main;
    auto owner = std::make_unique<RecordingWindow>(300, 200, &main);
    CShortDialog outer(owner.get());
    DoWhen(IsShown(outer), [&] {
        CShortDialog inner(&outer);
        DoWhen(IsShown(inner), [&owner] { owner.reset(); });
        EXPECT_EQ(inner.DoModal(), -1);
        EXPECT_TRUE(main.IsWindowEnabled());
    });
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), main.m_hWnd);
}

TEST(ModalDialogLifetime, ObjectMayBeDeletedWhileTheLoopRuns)
{
    RecordingWindow owner;
    auto* dialog = new CShortDialog(&owner);
    DoWhen(IsShown(*dialog), [dialog] { delete dialog; });
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialogLifetime, ObjectMayBeDeletedByItsOwnHandler)
{
    RecordingWindow owner;
    auto* dialog = new CShortDialog(&owner);
    dialog->m_onOk = [dialog] {
        CShortDialog* gone = dialog;  // the function object goes with the dialog
        delete gone;
    };
    DoWhen(IsShown(*dialog), [dialog] { dialog->PostMessage(WM_COMMAND, IDOK); });
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialogLifetime, ObjectMayBeDeletedWhileItsOwnerIsDisabled)
{
    RecordingWindow main;
    OwnerThatActs owner(300, 200, &main);
    auto* dialog = new OnReleasedPages<CShortDialog>(&owner);
    bool ownerEnabled = false;
    owner.m_onDisabled = [&] {
        delete dialog;
        ownerEnabled = owner.IsWindowEnabled() != FALSE;
    };
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_TRUE(ownerEnabled) << "for a dialog that takes its place";
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_TRUE(main.IsWindowEnabled());
}

TEST(ModalDialogLifetime, DialogEndedWhileItsOwnerIsDisabledNeverOpens)
{
    OwnerThatActs owner;
    CShortDialog dialog(&owner);
    bool opened = false;
    dialog.m_onDestroy = [&] { opened = true; };
    owner.m_onDisabled = [&] {
        EXPECT_TRUE(dialog.ContinueModal());
        dialog.EndDialog(8);
    };
    EXPECT_EQ(dialog.DoModal(), 8);
    EXPECT_FALSE(opened);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialogLifetime, DialogRunsOnlyOnceAlthoughItIsRunAgainWhileItsOwnerIsDisabled)
{
    OwnerThatActs owner;
    CShortDialog dialog(&owner);
    INT_PTR second = 0;
    owner.m_onDisabled = [&] {
        DoWhen(IsShown(dialog), [&dialog] { dialog.EndDialog(IDOK); });
        second = dialog.DoModal();
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(second, -1);
}

// It has no window yet, so that there is nothing to destroy and the owner stays disabled.
TEST(ModalDialogLifetime, DestroyingTheWindowBeforeItIsThereChangesNothing)
{
    OwnerThatActs owner;
    CShortDialog dialog(&owner);
    bool ownerEnabled = true;
    owner.m_onDisabled = [&] {
        dialog.DestroyWindow();
        DoWhen(IsShown(dialog), [&] {
            ownerEnabled = owner.IsWindowEnabled() != FALSE;
            dialog.EndDialog(IDOK);
        });
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialogLifetime, QuitEndsAllLoopsAndReachesTheOutermostOne)
{
    RecordingWindow owner;
    CShortDialog outer(&owner);
    CShortDialog inner(&outer);
    INT_PTR innerResult = 0;
    outer.m_onOk = [&] { innerResult = inner.DoModal(); };
    DoWhen(IsShown(outer), [&outer] { outer.PostMessage(WM_COMMAND, IDOK); });
    DoWhen(IsShown(inner), [] { AfxPostQuitMessage(6); });
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(innerResult, -1);
    MSG message = {};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT)
        ::DispatchMessageW(&message);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 6u);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialogLifetime, TemporaryObjectsFromBeforeTheLoopLiveThroughIt)
{
    RecordingWindow owner;
    const HWND foreign =
        ::CreateWindowExW(0, L"Edit", L"kept", WS_CHILD, 0, 0, 10, 10, owner, nullptr, nullptr, nullptr);
    CWnd* temporary = CWnd::FromHandle(foreign);
    CShortDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { DoLater([&dialog] { dialog.EndDialog(1); }); });
    dialog.DoModal();
    CString text;
    temporary->GetWindowText(text);
    EXPECT_EQ(text, CString(L"kept"));
    EXPECT_EQ(CWnd::FromHandle(foreign), temporary);
}
