// The method switch, and what it makes of the menu bar.

#include <algorithm>
#include <string>

#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/planned_actions.h"

namespace
{

// What a command is offered for, one letter for each method (0, 1, 2): '-' never, 'x' always, 'l' with links, 'c' with
// a closing link.
const std::map<UINT, std::string> kOffered = {
    {32788, "xxx"}, {32787, "xxx"}, {32772, "-xx"}, {32785, "-xx"}, {32783, "-ll"}, {32784, "-ll"}, {32789, "-ll"},
    {32781, "-ll"}, {32774, "-ll"}, {32796, "--l"}, {32793, "-cc"}, {32795, "-cc"}, {32797, "--c"}};

class Method : public CalcDialogTest
{
protected:
    /// As the user drops down one popup of the menu bar after the other.
    void DropDownAll(HMENU menu) const
    {
        for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
        {
            const HMENU popup = ::GetSubMenu(menu, position);
            if (popup == nullptr)
                continue;
            ::SendMessageW(Window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), MAKELPARAM(position, FALSE));
            DropDownAll(popup);
        }
    }

    UINT State(UINT command) const { return ::GetMenuState(::GetMenu(Window()), command, MF_BYCOMMAND); }
    bool IsEnabled(UINT command) const { return (State(command) & (MF_GRAYED | MF_DISABLED)) == 0; }
    bool IsChecked(UINT command) const { return (State(command) & MF_CHECKED) != 0; }

    void ExpectMenu(int method, bool links, bool closing) const
    {
        SCOPED_TRACE("method " + std::to_string(method) + ", links " + std::to_string(links) + ", closing link " +
                     std::to_string(closing));
        DropDownAll(::GetMenu(Window()));
        for (const auto& [command, rule] : kOffered)
        {
            ASSERT_NE(State(command), static_cast<UINT>(-1)) << command << " is not in the menu";
            const char letter = rule[static_cast<std::size_t>(method)];
            const bool offered = letter == 'x' || (letter == 'l' && links) || (letter == 'c' && closing);
            EXPECT_EQ(IsEnabled(command), offered) << command;
        }
        EXPECT_EQ(IsChecked(32788), method == 1);
        EXPECT_EQ(IsChecked(32787), method == 2);
    }

    void ExpectMenuUnderAllMethods(bool links, bool closing)
    {
        Open();
        if (links)
            AddLink(Dimension(L"A1", L"10", L"0.1", L"0"), &objects[0]);
        if (closing)
            AddClosing(Dimension(L"", L"10", L"0.1", L"0"), &closingObject);
        ExpectMenu(0, links, closing);
        for (const int method : {1, 2, 1})
        {
            ChooseMethod(method);
            ExpectMenu(method, links, closing);
        }
    }
};

TEST_F(Method, RepaintsAtOnceWithTheBackgroundErased)
{
    Open();
    EXPECT_EQ(RepaintsOf([this] { Command(32788); }), 1);
    EXPECT_EQ(RepaintsOf([this] { Command(32787); }), 1);
    EXPECT_EQ(RepaintsOf([this] { Command(32787); }), 1) << "chosen again";
}

TEST_F(Method, TellsTheHostNothing)
{
    Open();
    Command(32788);
    Command(32787);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(Method, CanBeChosenWithoutAWindow)
{
    class Exposed : public CCalcTolDlg
    {
    public:
        using CCalcTolDlg::OnAnalyticMethod;
        using CCalcTolDlg::OnProbabilisticMethod;
    };
    Exposed exposed;
    exposed.OnAnalyticMethod();
    exposed.OnProbabilisticMethod();
    EXPECT_EQ(exposed.m_hWnd, nullptr);
}

TEST_F(Method, OffersCommandsWithoutLinksAndClosingLink)
{
    ExpectMenuUnderAllMethods(false, false);
}

TEST_F(Method, OffersCommandsWithLinks)
{
    ExpectMenuUnderAllMethods(true, false);
}

TEST_F(Method, OffersCommandsWithAClosingLink)
{
    ExpectMenuUnderAllMethods(false, true);
}

TEST_F(Method, OffersCommandsWithBoth)
{
    ExpectMenuUnderAllMethods(true, true);
}

TEST_F(Method, TakesAClosingLinkWithoutAHostObjectForNone)
{
    OpenWith(kAnalytic);
    AddClosing(Dimension(L"", L"10", L"0.1", L"0"), nullptr);
    ExpectMenu(1, false, false);
}

TEST_F(Method, TakesALinkWithoutAHostObjectForALink)
{
    OpenWith(kAnalytic);
    AddLink(Dimension(L"A1", L"10", L"0.1", L"0"), nullptr);
    ExpectMenu(1, true, false);
}

TEST_F(Method, OffersLinkCommandsAlsoWhileTheChainIsCollapsed)
{
    OpenWith(kAnalytic);
    AddLink(Dimension(L"A1", L"10", L"0.1", L"0"), &objects[0]);
    PostClick(Links().Window(), Links().ExpandPoint(0));
    PumpUntilIdle();
    ASSERT_EQ(Links().Rows(), 1);
    ExpectMenu(1, true, false);
}

TEST_F(Method, LeavesForeignPopupsAlone)
{
    OpenWith(kAnalytic);
    const HMENU foreign = ::CreatePopupMenu();
    ::AppendMenuW(foreign, MF_STRING | MF_GRAYED, 32772, L"add");
    ::AppendMenuW(foreign, MF_STRING | MF_CHECKED, 32787, L"probabilistic");
    ::AppendMenuW(foreign, MF_STRING, 32783, L"edit");
    ::SendMessageW(Window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(foreign), 0);
    EXPECT_NE(::GetMenuState(foreign, 32772, MF_BYCOMMAND) & MF_GRAYED, 0U);
    EXPECT_NE(::GetMenuState(foreign, 32787, MF_BYCOMMAND) & MF_CHECKED, 0U);
    EXPECT_EQ(::GetMenuState(foreign, 32783, MF_BYCOMMAND) & MF_GRAYED, 0U);
    ::DestroyMenu(foreign);
}

TEST_F(Method, LeavesTheSystemMenuAlone)
{
    OpenWith(kAnalytic);
    const HMENU system = ::GetSystemMenu(Window(), FALSE);
    ::AppendMenuW(system, MF_STRING | MF_GRAYED, 32772, L"add");
    ::SendMessageW(Window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(system), MAKELPARAM(0, TRUE));
    EXPECT_NE(::GetMenuState(system, 32772, MF_BYCOMMAND) & MF_GRAYED, 0U);
    EXPECT_EQ(::GetMenuState(system, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED, 0U);
}

TEST_F(Method, KeepsItsMenuStatesWhenAForeignPopupComes)
{
    Open();
    DropDownAll(::GetMenu(Window()));
    ChooseMethod(kAnalytic);
    const HMENU foreign = ::CreatePopupMenu();
    ::SendMessageW(Window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(foreign), 0);
    EXPECT_FALSE(IsEnabled(32772)) << "set only when one of the bar's own popups drops down";
    ::DestroyMenu(foreign);
}

bool IsMenuOpen()
{
    return ::FindWindowW(L"#32768", nullptr) != nullptr;
}

// Alt+M drops the method menu down, its letter chooses.
TEST_F(Method, IsChosenByKeyboardInTheRealMenu)
{
    Open();
    bool wasOpen = false;
    DoWhen(IsMenuOpen, [&] {
        wasOpen = true;
        ::PostMessageW(Window(), WM_CHAR, L'p', 0);
    });
    ::PostMessageW(Window(), WM_SYSCOMMAND, SC_KEYMENU, L'm');
    ASSERT_TRUE(WaitUntil([&] { return wasOpen && !IsMenuOpen(); }));
    PumpUntilIdle();
    ExpectMenu(2, false, false);
}

}  // namespace
