#include <gtest/gtest.h>

#include <map>
#include <set>

#include "dialog_lists.h"
#include "platform/moduleskin/resource.h"
#include "skin_dialog.h"
#include "texts.h"

namespace
{

class EveryDialog : public testing::TestWithParam<ExpectedDialog>
{
protected:
    void SetUp() override { ASSERT_NE(m_dialog.Window(), nullptr); }

    SkinDialog m_dialog{GetParam().id};
};

std::string NameOfDialog(const testing::TestParamInfo<ExpectedDialog>& info)
{
    return info.param.name;
}

constexpr int kLabel = 0xFFFF;  // IDC_STATIC, as a window keeps it

bool IsLabel(HWND control)
{
    return (::GetDlgCtrlID(control) & 0xFFFF) == kLabel;
}

TEST_P(EveryDialog, HasExactlyTheControlsOfTheModule)
{
    std::multiset<int> expected;
    for (const ExpectedControl& control : GetParam().controls)
        expected.insert(control.id);
    std::multiset<int> found;
    for (const HWND control : m_dialog.Controls())
        if (!IsLabel(control))
            found.insert(::GetDlgCtrlID(control));
    EXPECT_EQ(found, expected);
}

TEST_P(EveryDialog, HasControlsOfTheRightClassAndStyle)
{
    for (const ExpectedControl& expected : GetParam().controls)
    {
        SCOPED_TRACE(expected.id);
        const HWND control = m_dialog.Item(expected.id);
        ASSERT_NE(control, nullptr);
        EXPECT_STREQ(ClassOf(control).c_str(), expected.className);
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(control, GWL_STYLE));
        EXPECT_EQ(style & expected.mask, expected.style) << std::hex << style;
    }
}

TEST_P(EveryDialog, IsWalkedByTabInTheOrderOfItsFields)
{
    EXPECT_EQ(m_dialog.TabOrder(), GetParam().tabOrder);
}

TEST_P(EveryDialog, HasATitleAndClosesByItsBox)
{
    EXPECT_FALSE(TextOf(m_dialog.Window()).empty());
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(m_dialog.Window(), GWL_STYLE));
    EXPECT_EQ(style & (WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CHILD), WS_POPUP | WS_CAPTION | WS_SYSMENU);
}

TEST_P(EveryDialog, UsesTheShellsFont)
{
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(m_dialog.Window(), WM_GETFONT, 0, 0));
    LOGFONTW description{};
    ASSERT_NE(::GetObjectW(font, sizeof description, &description), 0);
    EXPECT_STREQ(description.lfFaceName, L"MS Shell Dlg");
    EXPECT_EQ(description.lfWeight, FW_NORMAL);
}

// The letters of a menu bar work beside those of the controls.
TEST_P(EveryDialog, HasUniqueMnemonics)
{
    std::map<wchar_t, std::wstring> used;
    const auto expectNew = [&used](const std::wstring& text) {
        const wchar_t letter = Mnemonic(text);
        if (letter == 0)
            return;
        EXPECT_EQ(used.count(letter), 0U) << Narrow(text) << " and " << Narrow(used[letter]);
        used[letter] = text;
    };
    const HMENU menu = ::GetMenu(m_dialog.Window());
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
    {
        wchar_t text[100] = {};
        ::GetMenuStringW(menu, static_cast<UINT>(position), text, 100, MF_BYPOSITION);
        expectNew(text);
    }
    for (const HWND control : m_dialog.Controls())
        expectNew(TextOf(control));
    EXPECT_FALSE(used.empty());
}

// A label's letter leads to the next control that takes the keyboard, so that must be the one it names.
TEST_P(EveryDialog, HasEachLabelDirectlyBeforeItsField)
{
    const std::vector<HWND> controls = m_dialog.Controls();
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        if (!IsLabel(controls[i]) || Mnemonic(TextOf(controls[i])) == 0)
            continue;
        SCOPED_TRACE(Narrow(TextOf(controls[i])));
        ASSERT_LT(i + 1, controls.size());
        EXPECT_NE(::GetWindowLongPtrW(controls[i + 1], GWL_STYLE) & WS_TABSTOP, 0);
    }
}

// OK and Cancel have Enter and Esc; what stands in a row beside another field needs no letter of its own.
TEST_P(EveryDialog, HasALetterForEachFieldThatTabReaches)
{
    const std::vector<HWND> controls = m_dialog.Controls();
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        const std::wstring text = TextOf(controls[i]);
        if ((::GetWindowLongPtrW(controls[i], GWL_STYLE) & WS_TABSTOP) == 0 || text == L"OK" || text == L"Cancel" ||
            text == L"Close")
            continue;
        SCOPED_TRACE(::GetDlgCtrlID(controls[i]));
        EXPECT_TRUE(Mnemonic(text) != 0 || (i > 0 && Mnemonic(TextOf(controls[i - 1])) != 0));
    }
}

INSTANTIATE_TEST_SUITE_P(Templates, EveryDialog, testing::ValuesIn(ExpectedDialogs()), NameOfDialog);

class EveryChildDialog : public EveryDialog
{
};

TEST_P(EveryChildDialog, HasOkAsDefaultButton)
{
    const auto answer = static_cast<DWORD>(::SendMessageW(m_dialog.Window(), DM_GETDEFID, 0, 0));
    EXPECT_EQ(LOWORD(answer), GetParam().okButton);
    EXPECT_EQ(HIWORD(answer), DC_HASDEFID);
    EXPECT_EQ(TextOf(m_dialog.Item(GetParam().okButton)), L"OK");
}

TEST_P(EveryChildDialog, HasTheFrameOfAModalDialog)
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(m_dialog.Window(), GWL_STYLE));
    EXPECT_NE(style & DS_MODALFRAME, 0U);
    EXPECT_EQ(style & WS_THICKFRAME, 0U);
}

INSTANTIATE_TEST_SUITE_P(Templates, EveryChildDialog,
                         testing::Values(ExpectationOf(IDD_EDIT_TOL), ExpectationOf(IDD_EDIT_CLOSE_TOL),
                                         ExpectationOf(IDD_VARIABLE), ExpectationOf(IDD_WEIGHT)),
                         NameOfDialog);

TEST(CalculationDialogTemplate, HasItsMenuBar)
{
    const SkinDialog dialog(IDD_CALC_TOL);
    EXPECT_NE(::GetMenuState(::GetMenu(dialog.Window()), ID_LINK_ADD, MF_BYCOMMAND), static_cast<UINT>(-1));
}

// A modal dialog must not flash up half filled; the calculation dialog is shown by whoever creates it.
TEST(DialogTemplates, AreNotVisibleByThemselves)
{
    const HINSTANCE library = ::GetModuleHandleW(L"ModuleSkin.dll");
    for (const ExpectedDialog& dialog : ExpectedDialogs())
    {
        constexpr std::size_t kStyle = 12;  // version, signature, help ID and extended style come before
        const HRSRC resource = ::FindResourceW(library, MAKEINTRESOURCEW(dialog.id), RT_DIALOG);
        ASSERT_NE(resource, nullptr) << dialog.name;
        const auto* const bytes = static_cast<const char*>(::LockResource(::LoadResource(library, resource)));
        EXPECT_EQ(*reinterpret_cast<const DWORD*>(bytes + kStyle) & WS_VISIBLE, 0U) << dialog.name;
    }
}

}  // namespace
