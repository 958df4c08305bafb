#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/recording_window.h"

namespace
{
class CExchangeDialog : public CDialog
{
public:
    CEdit m_edit;
    CString m_text = L"12.5";
    bool m_refuse = false;
    int m_missingControl = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_FIRST, m_edit);
        if (exchange->m_bSaveAndValidate)
            GetDlgItemText(IDC_SECOND, m_text);
        else
            SetDlgItemText(IDC_SECOND, m_text);
        if (m_missingControl != 0)
            exchange->PrepareCtrl(m_missingControl);
        if (m_refuse)
            exchange->Fail();
    }
};
}  // namespace

TEST(DataExchange, InitialisationBindsControlsAndShowsTheMembers)
{
    RecordingWindow owner;
    CExchangeDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner));
    EXPECT_EQ(dialog.m_edit.m_hWnd, ::GetDlgItem(dialog, IDC_FIRST));
    EXPECT_EQ(dialog.GetDlgItem(IDC_FIRST), &dialog.m_edit);
    CString shown;
    dialog.GetDlgItemText(IDC_SECOND, shown);
    EXPECT_EQ(shown, CString(L"12.5"));
}

TEST(DataExchange, SavingReadsTheControls)
{
    RecordingWindow owner;
    CExchangeDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner));
    dialog.SetDlgItemText(IDC_SECOND, L"30");
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(dialog.m_text, CString(L"30"));
}

TEST(DataExchange, RefusedExchangeFailsAndKeepsTheDialogOpen)
{
    RecordingWindow owner;
    CExchangeDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner));
    dialog.ShowWindow(SW_SHOW);
    dialog.m_refuse = true;
    EXPECT_FALSE(dialog.UpdateData());
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST(DataExchange, MissingControlRaisesNotSupported)
{
    RecordingWindow owner;
    CExchangeDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner));
    dialog.m_missingControl = 4711;
    EXPECT_THROW(dialog.UpdateData(FALSE), CNotSupportedException*);
}

TEST(DataExchange, DialogDestroysTheWindowsOfItsMembersWithItself)
{
    RecordingWindow owner;
    CExchangeDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner));
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_edit.m_hWnd, nullptr);
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner)) << "and can be created again";
    EXPECT_EQ(dialog.m_edit.m_hWnd, ::GetDlgItem(dialog, IDC_FIRST));
}
