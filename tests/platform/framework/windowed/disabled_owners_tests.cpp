// Modal dialogs inside one another that have owners in common: an owner is disabled until the last of them lets it go.

#include <functional>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/shown_dialog.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/planned_actions.h"
#include "tests/support/recording_window.h"

namespace
{
/// Does something the next time that it is enabled.
class OwnerThatIsEnabled : public RecordingWindow
{
public:
    using RecordingWindow::RecordingWindow;

    std::function<void()> m_onEnabled;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = RecordingWindow::WindowProc(message, wParam, lParam);
        if (const auto action = message == WM_ENABLE && wParam != FALSE ? std::exchange(m_onEnabled, nullptr) : nullptr)
            action();
        return result;
    }
};

class DisabledOwnersTest : public testing::Test
{
protected:
    /// Runs a dialog whose owner is the middle window, and does that while it is open; then the dialog ends.
    void Run(const std::function<void(CDialog&)>& whileOpen) const
    {
        CDialog dialog(IDD_PLAIN, m_middle.get());
        DoWhen(IsShown(dialog), [&] {
            whileOpen(dialog);
            dialog.EndDialog(IDOK);
        });
        dialog.DoModal();
    }

    bool MainEnabled() const { return m_main.IsWindowEnabled() != FALSE; }
    bool MiddleEnabled() const { return m_middle->IsWindowEnabled() != FALSE; }
    bool BothEnabled() const { return MainEnabled() && MiddleEnabled(); }
    bool BothDisabled() const { return !MainEnabled() && !MiddleEnabled(); }

    OwnerThatIsEnabled m_main;
    std::unique_ptr<OwnerThatIsEnabled> m_middle = std::make_unique<OwnerThatIsEnabled>(300, 200, &m_main);
};
}  // namespace

TEST_F(DisabledOwnersTest, StayDisabledWhenTheInnerDialogEndsFirst)
{
    Run([this](CDialog&) {
        Run([this](CDialog&) { EXPECT_TRUE(BothDisabled()); });
        EXPECT_TRUE(BothDisabled());
    });
    EXPECT_TRUE(BothEnabled());
}

TEST_F(DisabledOwnersTest, StayDisabledWhenTheOuterDialogGoesFirst)
{
    Run([this](CDialog& outer) {
        Run([this, &outer](CDialog&) {
            outer.DestroyWindow();
            EXPECT_TRUE(BothDisabled());
        });
        EXPECT_TRUE(BothEnabled());
    });
    EXPECT_TRUE(BothEnabled());
}

TEST_F(DisabledOwnersTest, StayDisabledWhenADialogInPlaceOfTheOuterOneEnds)
{
    Run([this](CDialog& outer) {
        Run([this, &outer](CDialog&) {
            outer.DestroyWindow();
            Run([this](CDialog&) { EXPECT_TRUE(BothDisabled()); });
            EXPECT_TRUE(BothDisabled());
        });
        EXPECT_TRUE(BothEnabled());
    });
}

TEST_F(DisabledOwnersTest, StayDisabledByTheirOwnWhenTheyWereSoBefore)
{
    m_main.EnableWindow(FALSE);
    Run([this](CDialog& outer) { Run([&outer](CDialog&) { outer.DestroyWindow(); }); });
    EXPECT_FALSE(MainEnabled());
    EXPECT_TRUE(MiddleEnabled());
}

// As a dialog does that lets the user work in the main window meanwhile.
TEST_F(DisabledOwnersTest, EnabledByHandAreEnabledAgainAfterTheInnerDialog)
{
    Run([this](CDialog&) {
        m_main.EnableWindow(TRUE);
        Run([this](CDialog&) { EXPECT_TRUE(BothDisabled()); });
        EXPECT_TRUE(MainEnabled());
        EXPECT_FALSE(MiddleEnabled());
    });
    EXPECT_TRUE(BothEnabled());
}

TEST_F(DisabledOwnersTest, EnabledByHandAreEnabledAgainAfterAMessageBox)
{
    Run([this](CDialog& dialog) {
        m_main.EnableWindow(TRUE);
        dialog.SetActiveWindow();
        bool mainMeanwhile = true;
        ExpectMessageBox box;
        box.WhileShown([&] { mainMeanwhile = MainEnabled(); });
        AfxMessageBox(L"text");
        EXPECT_FALSE(mainMeanwhile);
        EXPECT_TRUE(MainEnabled());
        EXPECT_FALSE(MiddleEnabled());
    });
}

TEST_F(DisabledOwnersTest, EnabledByHandBelongToTheInnerDialogWhenTheOuterOneGoesFirst)
{
    Run([this](CDialog& outer) {
        m_main.EnableWindow(TRUE);
        Run([this, &outer](CDialog&) {
            outer.DestroyWindow();
            EXPECT_TRUE(BothDisabled());
        });
        EXPECT_TRUE(BothEnabled());
    });
}

TEST_F(DisabledOwnersTest, MayOpenADialogWhileTheyAreEnabled)
{
    for (OwnerThatIsEnabled* const owner : {&m_main, m_middle.get()})
    {
        bool opened = false;
        const auto open = [&](CDialog&) {
            opened = true;
            EXPECT_TRUE(BothDisabled());
        };
        Run([&](CDialog&) { owner->m_onEnabled = [&] { Run(open); }; });
        EXPECT_TRUE(opened);
        EXPECT_TRUE(BothEnabled());
    }
}

TEST_F(DisabledOwnersTest, MayGoWithTheDialogsThatDisabledThem)
{
    Run([this](CDialog&) { Run([this](CDialog&) { m_middle.reset(); }); });
    EXPECT_TRUE(MainEnabled());
}

namespace
{
LRESULT CALLBACK NoteMainAtTheEnd(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR mainWindow,
                                  DWORD_PTR noted)
{
    if (message == WM_DESTROY)
        *reinterpret_cast<BOOL*>(noted) = ::IsWindowEnabled(reinterpret_cast<HWND>(mainWindow));
    return ::DefSubclassProc(window, message, wParam, lParam);
}
}  // namespace

// The box disables the dialog, and holds what owns it; all of it goes at once.
TEST_F(DisabledOwnersTest, AreEnabledBeforeADialogGoesUnderItsMessageBox)
{
    BOOL wasEnabled = FALSE;
    Run([&](CDialog& dialog) {
        m_main.EnableWindow(TRUE);
        ExpectMessageBox box;
        box.WhileShown([&] {
            EXPECT_TRUE(BothDisabled());
            ::SetWindowSubclass(dialog, &NoteMainAtTheEnd, reinterpret_cast<UINT_PTR>(m_main.m_hWnd),
                                reinterpret_cast<DWORD_PTR>(&wasEnabled));
            dialog.DestroyWindow();
        });
        AfxMessageBox(L"message", MB_OK);
    });
    EXPECT_TRUE(wasEnabled);
    EXPECT_TRUE(BothEnabled());
}
