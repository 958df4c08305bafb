#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/resource_module.h"
#include "tests/platform/framework/windowed/shown_dialog.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"
#include "tests/support/planned_actions.h"
#include "tests/support/recording_window.h"

namespace
{
class CPlainDialog : public CDialog
{
public:
    explicit CPlainDialog(CWnd* parent = nullptr, UINT templateId = IDD_PLAIN) : CDialog(templateId, parent) {}

    std::function<void()> m_onInit;
    std::function<void()> m_onDraw;

    BOOL OnInitDialog() override
    {
        const BOOL focus = CDialog::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return focus;
    }

protected:
    afx_msg void OnDraw()
    {
        if (m_onDraw)
            m_onDraw();
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPlainDialog, CDialog)
    ON_COMMAND(ID_DRAW, &CPlainDialog::OnDraw)
END_MESSAGE_MAP()
}  // namespace

TEST(ModalDialog, OkButtonEndsItWithIdok)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { PostButtonClick(dialog, IDOK); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, EscapeEndsItWithIdcancel)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { PostKey(dialog.GetDlgItem(IDC_FIRST)->m_hWnd, VK_ESCAPE); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, EnterInAFieldPressesTheDefaultButton)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { PostKey(dialog.GetDlgItem(IDC_FIRST)->m_hWnd, VK_RETURN); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, CloseBoxCancels)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { dialog.PostMessage(WM_CLOSE); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, EndDialogFromOutsideGivesItsResult)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] { dialog.EndDialog(5); });
    EXPECT_EQ(dialog.DoModal(), 5);
}

TEST(ModalDialog, LastEndDialogBeforeTheEndDecides)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] {
        dialog.EndDialog(5);
        dialog.EndDialog(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, ContinuesUntilItIsEnded)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    EXPECT_FALSE(dialog.ContinueModal());
    DoWhen(IsShown(dialog), [&dialog] {
        EXPECT_TRUE(dialog.ContinueModal());
        dialog.EndDialog(7);
        EXPECT_FALSE(dialog.ContinueModal());
    });
    dialog.DoModal();
    EXPECT_FALSE(dialog.ContinueModal());
}

TEST(ModalDialog, EndedDuringInitialisationItIsNeverShown)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    bool shown = false;
    dialog.m_onInit = [&dialog, &shown] {
        dialog.EndDialog(17);
        shown = dialog.IsWindowVisible();
    };
    EXPECT_EQ(dialog.DoModal(), 17);
    EXPECT_FALSE(shown);
}

TEST(ModalDialog, EndDialogBeforeItRunsDoesNothing)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    dialog.EndDialog(17);
    DoWhen(IsShown(dialog), [&dialog] { dialog.EndDialog(3); });
    EXPECT_EQ(dialog.DoModal(), 3);
}

TEST(ModalDialog, RunsAgainAfterItHasEnded)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    for (const int result : {5, 2, 1})
    {
        DoWhen(IsShown(dialog), [&dialog, result] { dialog.EndDialog(result); });
        EXPECT_EQ(dialog.DoModal(), result);
    }
}

TEST(ModalDialog, MissingTemplateGivesMinusOneAndLeavesTheOwnerEnabled)
{
    RecordingWindow owner;
    CPlainDialog dialog(&owner, 999);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, TemplateComesFromTheCurrentResourceModule)
{
    const ResourceModule module;
    ASSERT_TRUE(module.IsLoaded());
    RecordingWindow owner;
    CPlainDialog dialog(&owner);
    CString title;
    DoWhen(IsShown(dialog), [&dialog, &title] {
        dialog.GetWindowText(title);
        dialog.EndDialog(1);
    });
    dialog.DoModal();
    EXPECT_EQ(title, CString(L"Plain of the module"));
}

TEST(ModalDialog, OwnerIsDisabledWhileItRunsAndActiveAfterwards)
{
    RecordingWindow owner;
    owner.SetActiveWindow();
    CPlainDialog dialog(&owner);
    bool enabledMeanwhile = true;
    DoWhen(IsShown(dialog), [&] {
        enabledMeanwhile = owner.IsWindowEnabled();
        dialog.EndDialog(1);
    });
    dialog.DoModal();
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(ModalDialog, FocusReturnsToTheControlOfTheOwnerDialog)
{
    RecordingWindow main;
    CPlainDialog outer(&main);
    ASSERT_TRUE(outer.Create(IDD_PLAIN, &main));
    outer.ShowWindow(SW_SHOW);
    outer.GotoDlgCtrl(outer.GetDlgItem(IDC_SECOND));
    CPlainDialog dialog(&outer);
    DoWhen(IsShown(dialog), [&dialog] { dialog.EndDialog(1); });
    dialog.DoModal();
    EXPECT_EQ(::GetFocus(), outer.GetDlgItem(IDC_SECOND)->m_hWnd);
}

TEST(ModalDialog, OwnersOfTheOwnerAreDisabledAndEnabledAgain)
{
    RecordingWindow main;
    RecordingWindow middle(300, 200, &main);
    CPlainDialog dialog(&middle);
    bool mainMeanwhile = true;
    bool middleMeanwhile = true;
    DoWhen(IsShown(dialog), [&] {
        mainMeanwhile = main.IsWindowEnabled();
        middleMeanwhile = middle.IsWindowEnabled();
        dialog.EndDialog(1);
    });
    dialog.DoModal();
    EXPECT_FALSE(mainMeanwhile);
    EXPECT_FALSE(middleMeanwhile);
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_TRUE(middle.IsWindowEnabled());
}

TEST(ModalDialog, OwnerThatWasDisabledBeforeStaysDisabled)
{
    RecordingWindow main;
    RecordingWindow middle(300, 200, &main);
    main.EnableWindow(FALSE);
    CPlainDialog dialog(&middle);
    DoWhen(IsShown(dialog), [&dialog] { dialog.EndDialog(1); });
    dialog.DoModal();
    EXPECT_FALSE(main.IsWindowEnabled());
    EXPECT_TRUE(middle.IsWindowEnabled());
}

TEST(ModalDialog, MainWindowStandsForAMissingOwner)
{
    RecordingWindow main;
    AfxGetThread()->m_pMainWnd = &main;
    CPlainDialog dialog;
    HWND owner = nullptr;
    DoWhen(IsShown(dialog), [&] {
        owner = ::GetWindow(dialog, GW_OWNER);
        dialog.EndDialog(1);
    });
    dialog.DoModal();
    EXPECT_EQ(owner, main.m_hWnd);
}

// The user goes on working in the main window while the dialog is open.
TEST(ModalDialog, MainWindowEnabledAgainGetsItsMessagesFromTheDialogsLoop)
{
    RecordingWindow main;
    RecordingWindow middle(300, 200, &main);
    CPlainDialog dialog(&middle);
    dialog.m_onInit = [&main] { main.EnableWindow(); };
    DoWhen(IsShown(dialog), [&main] {
        PostText(main, L"k");
        PostKey(main, VK_RETURN);
    });
    DoWhen([&main] { return main.Received(WM_CHAR).size() >= 2; }, [&dialog] { dialog.EndDialog(5); });
    EXPECT_EQ(dialog.DoModal(), 5) << "Enter in the main window must not press the dialog's default button";
    ASSERT_EQ(main.Received(WM_CHAR).size(), 2u);
    EXPECT_EQ(main.Received(WM_CHAR)[0].wParam, static_cast<WPARAM>(L'k'));
    EXPECT_TRUE(main.IsWindowEnabled());
}

TEST(ModalDialog, DialogsNestAndEachGivesItsOwnResult)
{
    RecordingWindow main;
    CPlainDialog outer(&main);
    CPlainDialog inner(&outer);
    INT_PTR innerResult = 0;
    bool outerMeanwhile = true;
    outer.m_onDraw = [&] {
        DoWhen(IsShown(inner), [&] {
            outerMeanwhile = outer.IsWindowEnabled();
            inner.EndDialog(8);
        });
        innerResult = inner.DoModal();
        outer.EndDialog(9);
    };
    DoWhen(IsShown(outer), [&outer] { outer.PostMessage(WM_COMMAND, ID_DRAW); });
    EXPECT_EQ(outer.DoModal(), 9);
    EXPECT_EQ(innerResult, 8);
    EXPECT_FALSE(outerMeanwhile);
    EXPECT_TRUE(main.IsWindowEnabled());
}

TEST(ModalDialog, OuterDialogEndedFromOutsideEndsAfterTheInnerOne)
{
    RecordingWindow main;
    CPlainDialog outer(&main);
    CPlainDialog inner(&outer);
    INT_PTR innerResult = 0;
    outer.m_onDraw = [&] { innerResult = inner.DoModal(); };
    DoWhen(IsShown(outer), [&outer] { outer.PostMessage(WM_COMMAND, ID_DRAW); });
    DoWhen(IsShown(inner), [&] {
        outer.EndDialog(5);
        DoLater([&inner] { inner.EndDialog(2); });
    });
    EXPECT_EQ(outer.DoModal(), 5);
    EXPECT_EQ(innerResult, 2);
}

TEST(ModalDialog, SecondRunOfARunningDialogIsRefused)
{
    RecordingWindow main;
    CPlainDialog dialog(&main);
    INT_PTR second = 0;
    DoWhen(IsShown(dialog), [&] {
        second = dialog.DoModal();
        dialog.EndDialog(1);
    });
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_EQ(second, -1);
}

TEST(ModalDialog, UnhandledCommandOfAMenuGoesToTheOwnerAndAControlsCommandDoesNot)
{
    class COwner : public CPlainDialog
    {
    public:
        using CPlainDialog::CPlainDialog;
        std::vector<UINT> m_commands;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
        {
            if (code == CN_COMMAND)
                m_commands.push_back(id);
            return CPlainDialog::OnCmdMsg(id, code, extra, info);
        }
    };
    RecordingWindow main;
    COwner owner(&main);
    ASSERT_TRUE(owner.Create(IDD_PLAIN, &main));
    CPlainDialog dialog(&owner);
    DoWhen(IsShown(dialog), [&dialog] {
        dialog.SendMessage(WM_COMMAND, ID_ERASE);
        dialog.SendMessage(WM_COMMAND, IDC_CHECK);
        dialog.EndDialog(1);
    });
    dialog.DoModal();
    EXPECT_EQ(owner.m_commands, std::vector<UINT>{ID_ERASE});
}
