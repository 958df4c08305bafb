#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/resource_module.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"

namespace
{
class CModelessDialog : public CDialog
{
public:
    int m_created = 0;
    int m_ok = 0;
    int m_cancel = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT creation)
    {
        ++m_created;
        return CDialog::OnCreate(creation);
    }
    void OnOK() override { ++m_ok; }
    void OnCancel() override { ++m_cancel; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CModelessDialog, CDialog)
    ON_WM_CREATE()
END_MESSAGE_MAP()

class ModelessDialog : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_PLAIN, &m_owner));
        m_dialog.ShowWindow(SW_SHOW);
        PumpUntilIdle();
    }

    HWND Item(int id) { return ::GetDlgItem(m_dialog, id); }

    RecordingWindow m_owner;
    CModelessDialog m_dialog;
};
}  // namespace

TEST_F(ModelessDialog, CreateReturnsWithTheOwnerEnabled)
{
    EXPECT_TRUE(m_dialog.IsWindowVisible());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(m_dialog.GetParent(), &m_owner);
}

TEST_F(ModelessDialog, SeesItsCreation)
{
    EXPECT_EQ(m_dialog.m_created, 1);
}

TEST_F(ModelessDialog, TabMovesTheFocusForwardsAndBackwards)
{
    ASSERT_EQ(::GetFocus(), Item(IDC_FIRST));
    PostKey(Item(IDC_FIRST), VK_TAB);
    PumpUntilIdle();
    EXPECT_EQ(::GetFocus(), Item(IDC_SECOND));
    const HeldKey shift(VK_SHIFT);
    PostKey(Item(IDC_SECOND), VK_TAB);
    PumpUntilIdle();
    EXPECT_EQ(::GetFocus(), Item(IDC_FIRST));
}

TEST_F(ModelessDialog, EnterAndEscapeReachOkAndCancel)
{
    PostKey(Item(IDC_FIRST), VK_RETURN);
    PumpUntilIdle();
    EXPECT_EQ(m_dialog.m_ok, 1);
    PostKey(Item(IDC_FIRST), VK_ESCAPE);
    PumpUntilIdle();
    EXPECT_EQ(m_dialog.m_cancel, 1);
}

TEST_F(ModelessDialog, TypedTextGoesIntoTheField)
{
    PostText(Item(IDC_FIRST), L"25H7");
    PumpUntilIdle();
    CString text;
    EXPECT_EQ(m_dialog.GetDlgItemText(IDC_FIRST, text), 4);
    EXPECT_EQ(text, CString(L"25H7"));
}

TEST_F(ModelessDialog, EndDialogOnlyHidesIt)
{
    m_dialog.EndDialog(1);
    EXPECT_FALSE(m_dialog.IsWindowVisible());
    EXPECT_TRUE(::IsWindow(m_dialog));
}

TEST_F(ModelessDialog, GoingToAFieldSelectsItsText)
{
    m_dialog.SetDlgItemText(IDC_SECOND, L"12.5");
    m_dialog.GotoDlgCtrl(m_dialog.GetDlgItem(IDC_SECOND));
    auto* edit = static_cast<CEdit*>(m_dialog.GetDlgItem(IDC_SECOND));
    int start = -1;
    int end = -1;
    edit->GetSel(start, end);
    EXPECT_EQ(::GetFocus(), edit->m_hWnd);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 4);
}

TEST_F(ModelessDialog, CheckBoxIsSetAndRead)
{
    m_dialog.CheckDlgButton(IDC_CHECK, BST_CHECKED);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_CHECKED));
    PostButtonClick(m_dialog, IDC_CHECK);
    PumpUntilIdle();
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_UNCHECKED));
}

TEST(ModelessDialogCreation, MissingTemplateFails)
{
    CDialog dialog;
    EXPECT_FALSE(dialog.Create(999));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialogCreation, TemplateWithVisibleStyleIsShownAtOnce)
{
    RecordingWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_VISIBLE, &owner));
    EXPECT_TRUE(dialog.IsWindowVisible());
}

// The program has another menu with that number.
TEST(ModelessDialogCreation, TakesTheMenuFromTheModuleOfTheTemplate)
{
    const ResourceModule module;
    ASSERT_TRUE(module.IsLoaded());
    RecordingWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_WITH_MENU, &owner));
    wchar_t text[40] = {};
    ::GetMenuStringW(::GetMenu(dialog), 0, text, 40, MF_BYPOSITION);
    EXPECT_EQ(CString(text), CString(L"&Module"));
}

TEST(ModelessDialogCreation, ProgramSuppliesWhatTheResourceModuleLacks)
{
    const ResourceModule module;
    ASSERT_TRUE(module.IsLoaded());
    RecordingWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_VISIBLE, &owner));
    CString title;
    dialog.GetWindowText(title);
    EXPECT_EQ(title, CString(L"Visible"));
}
