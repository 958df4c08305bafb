// The context menus of the two lists.

#include <string>

#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/planned_actions.h"

namespace
{

HWND OpenMenuWindow()
{
    return ::FindWindowW(L"#32768", nullptr);
}

bool IsMenuOpen()
{
    return OpenMenuWindow() != nullptr;
}

HMENU OpenMenu()
{
    constexpr UINT kGetMenuOfPopup = 0x01E1;  // MN_GETHMENU
    return reinterpret_cast<HMENU>(::SendMessageW(OpenMenuWindow(), kGetMenuOfPopup, 0, 0));
}

// One letter for each method (0, 1, 2): '-' never, 'x' always, 'l' with links, 'c' with a closing link. Without a
// method links and closing link can be edited and deleted: the rule for the links comes after the one for the method.
using Offered = std::map<UINT, std::string>;
const Offered kChainMenu = {{32780, "-xx"}, {32777, "lll"}, {32782, "lll"},
                            {32778, "lll"}, {32779, "-ll"}, {32798, "--l"}};
const Offered kClosingMenu = {{32790, "-xx"}, {32792, "ccc"}, {32791, "ccc"}, {32799, "--c"}};

class ContextMenu : public CalcDialogTest
{
protected:
    const CPoint m_place{300, 300};

    /// Does something while the menu of a list is open, then closes it.
    void WhileOpen(int gridId, const std::function<void()>& action) const
    {
        bool wasOpen = false;
        DoWhen(IsMenuOpen, [&] {
            wasOpen = true;
            action();
            ::EndMenu();
        });
        dialog->TrackEditMenu(m_place, gridId);
        EXPECT_TRUE(wasOpen);
        PumpUntilIdle();
    }

    void ExpectMenu(int gridId, const Offered& offered, int method, bool links, bool closing) const
    {
        SCOPED_TRACE("list " + std::to_string(gridId) + ", method " + std::to_string(method) + ", links " +
                     std::to_string(links) + ", closing link " + std::to_string(closing));
        WhileOpen(gridId, [&] {
            for (const auto& [command, rule] : offered)
            {
                const UINT state = ::GetMenuState(OpenMenu(), command, MF_BYCOMMAND);
                ASSERT_NE(state, static_cast<UINT>(-1)) << command << " is not in the menu";
                const char letter = rule[static_cast<std::size_t>(method)];
                const bool expected = letter == 'x' || (letter == 'l' && links) || (letter == 'c' && closing);
                EXPECT_EQ((state & (MF_GRAYED | MF_DISABLED)) == 0, expected) << command;
            }
        });
    }

    void ExpectMenusUnderAllMethods(bool links, bool closing)
    {
        Open();
        if (links)
            AddLink(Dimension(L"A1", L"10", L"0.1", L"0"), &objects[0]);
        if (closing)
            AddClosing(Dimension(L"", L"10", L"0.1", L"0"), &closingObject);
        for (const int method : {0, 1, 2})
        {
            if (method != 0)
                ChooseMethod(method);
            ExpectMenu(IDC_CHAIN_LIST, kChainMenu, method, links, closing);
            ExpectMenu(IDC_CLOSING_LIST, kClosingMenu, method, links, closing);
        }
    }

    /// Picks an item of the menu that is open, by its command, with that button.
    void PickByMouse(UINT command, UINT down, UINT up) const
    {
        const HMENU menu = OpenMenu();
        for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
        {
            if (::GetMenuItemID(menu, position) != command)
                continue;
            RECT item{};
            ::GetMenuItemRect(nullptr, menu, static_cast<UINT>(position), &item);
            const LPARAM point = MAKELPARAM((item.left + item.right) / 2, (item.top + item.bottom) / 2);
            ::PostMessageW(Window(), down, 0, point);
            ::PostMessageW(Window(), up, 0, point);
        }
    }
};

TEST_F(ContextMenu, OffersCommandsWithoutLinksAndClosingLink)
{
    ExpectMenusUnderAllMethods(false, false);
}

TEST_F(ContextMenu, OffersCommandsWithLinks)
{
    ExpectMenusUnderAllMethods(true, false);
}

TEST_F(ContextMenu, OffersCommandsWithAClosingLink)
{
    ExpectMenusUnderAllMethods(false, true);
}

TEST_F(ContextMenu, OffersCommandsWithBoth)
{
    ExpectMenusUnderAllMethods(true, true);
}

TEST_F(ContextMenu, StandsAtThePoint)
{
    OpenWith(kAnalytic);
    RECT place{};
    WhileOpen(IDC_CHAIN_LIST, [&] { ::GetWindowRect(OpenMenuWindow(), &place); });
    EXPECT_EQ(place.left, 300);
    EXPECT_EQ(place.top, 300);
}

TEST_F(ContextMenu, IsGoneAfterwards)
{
    OpenWith(kAnalytic);
    HMENU menu = nullptr;
    WhileOpen(IDC_CHAIN_LIST, [&] { menu = OpenMenu(); });
    EXPECT_NE(menu, nullptr);
    EXPECT_FALSE(::IsMenu(menu));
    EXPECT_TRUE(Codes().empty());
}

TEST_F(ContextMenu, ComesForNoOtherControl)
{
    OpenWith(kAnalytic);
    for (const int control : {0, -1, IDC_CHAIN_DIAGRAM, IDC_WEIGHT_LIST})
        dialog->TrackEditMenu(m_place, control);
    EXPECT_FALSE(IsMenuOpen());
    EXPECT_TRUE(Codes().empty());
}

TEST_F(ContextMenu, SendsItsCommandsToTheDialog)
{
    OpenWith(kAnalytic);
    AddLinks({{Dimension(L"A", L"1", L"", L""), &objects[0]}, {Dimension(L"B", L"2", L"", L""), &objects[1]}});
    DoWhen(IsMenuOpen, [this] { PickByMouse(ID_CONTEXT_LINK_DELETE_ALL, WM_LBUTTONDOWN, WM_LBUTTONUP); });
    dialog->TrackEditMenu(m_place, IDC_CHAIN_LIST);
    PumpUntilIdle();
    EXPECT_TRUE(Objects().empty());
}

TEST_F(ContextMenu, TakesTheRightButtonToo)
{
    OpenWith(kAnalytic);
    AddLinks({{Dimension(L"A", L"1", L"", L""), &objects[0]}, {Dimension(L"B", L"2", L"", L""), &objects[1]}});
    DoWhen(IsMenuOpen, [this] { PickByMouse(ID_CONTEXT_LINK_DELETE_ALL, WM_RBUTTONDOWN, WM_RBUTTONUP); });
    dialog->TrackEditMenu(m_place, IDC_CHAIN_LIST);
    PumpUntilIdle();
    EXPECT_TRUE(Objects().empty());
}

TEST_F(ContextMenu, ComesByARightClickOnALinkAndWorksOnThatLink)
{
    OpenWith(kAnalytic);
    AddLinks({{Dimension(L"A", L"1", L"", L""), &objects[0]}, {Dimension(L"B", L"2", L"", L""), &objects[1]}});
    FocusOnLink(1);  // activates the dialog, see below
    bool done = false;
    DoWhen(IsMenuOpen, [&] {
        PickByMouse(ID_CONTEXT_LINK_DELETE, WM_LBUTTONDOWN, WM_LBUTTONUP);
        done = true;
    });
    PostRightClick(Links().Window(), Links().NamePoint(1));
    ASSERT_TRUE(WaitUntil([&] { return done && !IsMenuOpen(); }));
    PumpUntilIdle();
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[1]}));
}

TEST_F(ContextMenu, ComesByARightClickOnTheClosingRow)
{
    OpenWith(kAnalytic);
    AddClosing(Dimension(L"", L"10", L"0.1", L"0"), &closingObject);
    ClickCell(Closing(), 0, 1);  // where the display reports a change of activation late, that would cancel the menu
    bool done = false;
    DoWhen(IsMenuOpen, [&] {
        PickByMouse(ID_CONTEXT_CLOSING_DELETE, WM_LBUTTONDOWN, WM_LBUTTONUP);
        done = true;
    });
    PostRightClick(Closing().Window(), Closing().CellCentre(0, 1));
    ASSERT_TRUE(WaitUntil([&] { return done && !IsMenuOpen(); }));
    PumpUntilIdle();
    EXPECT_EQ(dialog->GetCloseObject(), nullptr);
    EXPECT_EQ(Closing().Record(0), nullptr);
}

// The dialog's own drop-down handling leaves the states alone that the context menu was given.
TEST_F(ContextMenu, KeepsItsStatesWhenTheBarHasOthers)
{
    Open();
    AddLink(Dimension(L"A1", L"10", L"0.1", L"0"), &objects[0]);
    UINT state = MF_GRAYED;
    WhileOpen(IDC_CHAIN_LIST, [&] { state = ::GetMenuState(OpenMenu(), ID_CONTEXT_LINK_DELETE, MF_BYCOMMAND); });
    EXPECT_EQ(state & MF_GRAYED, 0U);
    EXPECT_EQ(::GetMenuState(::GetMenu(Window()), ID_LINK_DELETE, MF_BYCOMMAND) & MF_GRAYED, 0U)
        << "the bar has not dropped down yet";
}

TEST_F(ContextMenu, SurvivesThatTheDialogIsDestroyedWhileItIsOpen)
{
    OpenWith(kAnalytic);
    DoWhen(IsMenuOpen, [this] { dialog->DestroyWindow(); });
    dialog->TrackEditMenu(m_place, IDC_CHAIN_LIST);
    EXPECT_EQ(Window(), nullptr);
    PumpUntilIdle();
}

TEST_F(ContextMenu, SurvivesThatTheDialogIsDeletedWhileItIsOpen)
{
    OpenWith(kAnalytic);
    DoWhen(IsMenuOpen, [this] { dialog.reset(); });
    dialog->TrackEditMenu(m_place, IDC_CHAIN_LIST);
    EXPECT_EQ(dialog, nullptr);
    PumpUntilIdle();
}

// The grid that was clicked is inside its own message, in the menu's loop.
TEST_F(ContextMenu, OfALinkThatIsClickedMayDeleteTheDialog)
{
    OpenWith(kAnalytic);
    FillChain();
    FocusOnLink(1);
    DoWhen(IsMenuOpen, [this] { dialog.reset(); });
    PostRightClick(Links().Window(), Links().NamePoint(1));
    ASSERT_TRUE(WaitUntil([this] { return dialog == nullptr && !IsMenuOpen(); }));
    PumpUntilIdle();
    EXPECT_TRUE(Codes().empty());
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(ContextMenu, OfTheClosingRowThatIsClickedMayDeleteTheDialog)
{
    OpenWith(kAnalytic);
    FillChain();
    ClickCell(Closing(), 0, 1);
    DoWhen(IsMenuOpen, [this] { dialog.reset(); });
    PostRightClick(Closing().Window(), Closing().CellCentre(0, 1));
    ASSERT_TRUE(WaitUntil([this] { return dialog == nullptr && !IsMenuOpen(); }));
    PumpUntilIdle();
    EXPECT_TRUE(Codes().empty());
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

// The command comes when the menu is through: the host deletes the dialog inside its notification.
TEST_F(ContextMenu, MayLeadToANotificationThatDeletesTheDialog)
{
    for (const bool closing : {false, true})
    {
        dialog = std::make_unique<WatchedDialog>();
        OpenWith(kAnalytic);
        FillChain();
        FocusOnLink(1);
        const ListView list = closing ? Closing() : Links();
        host.On(kEditBegins, [this] { dialog.reset(); });
        DoWhen(IsMenuOpen, [this, closing] {
            PickByMouse(closing ? ID_CONTEXT_CLOSING_EDIT : ID_CONTEXT_LINK_EDIT, WM_LBUTTONDOWN, WM_LBUTTONUP);
        });
        PostRightClick(list.Window(), closing ? list.CellCentre(0, 1) : list.NamePoint(1));
        EXPECT_TRUE(WaitUntil([this] { return dialog == nullptr && !IsMenuOpen(); }));
        PumpUntilIdle();
        EXPECT_EQ(Codes(), (std::vector<WPARAM>{kEditBegins}));
        host.AnswerNothing();
        host.Forget();
    }
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

}  // namespace
