#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include <afxwin.h>

#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "texts.h"

namespace
{

struct MenuItem
{
    UINT id;  // of a popup the one that it was given, 0 without one
    UINT type;
    UINT state;
    HMENU popup;
    std::wstring text;
};

std::vector<MenuItem> ItemsOf(HMENU menu)
{
    std::vector<MenuItem> items;
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
    {
        wchar_t text[100] = {};
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = 100;
        ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
        items.push_back({info.wID, info.fType, info.fState, info.hSubMenu, text});
    }
    return items;
}

/// Calls the visitor for each menu, from the top down.
template <class Visitor>
void ForEachMenu(HMENU menu, const Visitor& visitor)
{
    visitor(menu);
    for (const MenuItem& item : ItemsOf(menu))
        if (item.popup != nullptr)
            ForEachMenu(item.popup, visitor);
}

/// Every command of a menu with its text.
std::multimap<UINT, std::wstring> CommandsOf(HMENU menu)
{
    std::multimap<UINT, std::wstring> commands;
    ForEachMenu(menu, [&commands](HMENU one) {
        for (const MenuItem& item : ItemsOf(one))
            if (item.popup == nullptr && (item.type & MFT_SEPARATOR) == 0)
                commands.emplace(item.id, item.text);
    });
    return commands;
}

std::multiset<UINT> IdsOf(HMENU menu)
{
    std::multiset<UINT> ids;
    for (const auto& command : CommandsOf(menu))
        ids.insert(command.first);
    return ids;
}

struct LoadedMenu : CMenu
{
    explicit LoadedMenu(UINT id)
    {
        const CModuleSkin skin(kModuleCalcTol);
        LoadMenu(id);
    }
};

TEST(SkinMenus, BarHasEachCommandOfTheCalculationDialogOnce)
{
    const LoadedMenu bar(IDR_CALC_TOL_MENU);
    EXPECT_EQ(IdsOf(bar),
              (std::multiset<UINT>{ID_LINK_ADD, ID_LINK_EDIT, ID_LINK_DELETE, ID_LINK_DELETE_ALL, ID_LINK_DISTRIBUTION,
                                   ID_CHAIN_WEIGHTS, ID_CLOSING_ADD, ID_CLOSING_EDIT, ID_CLOSING_DELETE,
                                   ID_CLOSING_DISTRIBUTION, ID_METHOD_ANALYTIC, ID_METHOD_PROBABILISTIC}));
}

TEST(SkinMenus, ChainContextMenuHasItsCommandsInTheFirstSubmenu)
{
    const LoadedMenu menu(IDR_CHAIN_CONTEXT_MENU);
    ASSERT_EQ(ItemsOf(menu).size(), 1U);
    ASSERT_NE(ItemsOf(menu)[0].popup, nullptr);
    EXPECT_EQ(IdsOf(ItemsOf(menu)[0].popup),
              (std::multiset<UINT>{ID_CONTEXT_LINK_ADD, ID_CONTEXT_LINK_EDIT, ID_CONTEXT_LINK_DELETE,
                                   ID_CONTEXT_LINK_DELETE_ALL, ID_CONTEXT_LINK_DISTRIBUTION, ID_CONTEXT_LINK_WEIGHT}));
}

TEST(SkinMenus, ClosingContextMenuHasItsCommandsInTheFirstSubmenu)
{
    const LoadedMenu menu(IDR_CLOSING_CONTEXT_MENU);
    ASSERT_EQ(ItemsOf(menu).size(), 1U);
    ASSERT_NE(ItemsOf(menu)[0].popup, nullptr);
    EXPECT_EQ(IdsOf(ItemsOf(menu)[0].popup),
              (std::multiset<UINT>{ID_CONTEXT_CLOSING_ADD, ID_CONTEXT_CLOSING_EDIT, ID_CONTEXT_CLOSING_DELETE,
                                   ID_CONTEXT_CLOSING_DISTRIBUTION}));
}

// Each nothing but a state of the other: the mark is a point, not a tick.
TEST(SkinMenus, MethodsExcludeEachOther)
{
    const LoadedMenu bar(IDR_CALC_TOL_MENU);
    for (const UINT id : {ID_METHOD_ANALYTIC, ID_METHOD_PROBABILISTIC})
    {
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE;
        ASSERT_TRUE(::GetMenuItemInfoW(bar, id, FALSE, &info));
        EXPECT_NE(info.fType & MFT_RADIOCHECK, 0U);
        EXPECT_EQ(info.fState & MFS_CHECKED, 0U) << "no method is chosen at first";
    }
}

TEST(SkinMenus, SubmenuOfTheSelectedLinkIsReachedByItsNumber)
{
    LoadedMenu bar(IDR_CALC_TOL_MENU);
    const auto stateOfSubmenu = [&bar] {
        UINT state = 0;
        ForEachMenu(bar, [&state](HMENU menu) {
            for (const MenuItem& item : ItemsOf(menu))
                if (item.popup != nullptr && item.id == ID_CHAIN_RESERVED)
                    state = item.state;
        });
        return state;
    };
    ASSERT_NE(bar.EnableMenuItem(ID_CHAIN_RESERVED, MF_BYCOMMAND | MF_GRAYED), static_cast<UINT>(-1));
    EXPECT_NE(stateOfSubmenu() & MFS_GRAYED, 0U);
    bar.EnableMenuItem(ID_CHAIN_RESERVED, MF_BYCOMMAND | MF_ENABLED);
    EXPECT_EQ(stateOfSubmenu() & MFS_GRAYED, 0U);
}

TEST(SkinMenus, SubmenuOfTheSelectedLinkLeavesItsCommandsAlone)
{
    LoadedMenu bar(IDR_CALC_TOL_MENU);
    bar.EnableMenuItem(ID_CHAIN_RESERVED, MF_BYCOMMAND | MF_GRAYED);
    for (const UINT id : {ID_LINK_EDIT, ID_LINK_DELETE, ID_LINK_DISTRIBUTION})
        EXPECT_EQ(bar.GetMenuState(id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED), 0U) << id;
}

class EveryMenu : public testing::TestWithParam<UINT>
{
};

TEST_P(EveryMenu, HasAMnemonicOfItsOwnForEachItem)
{
    const LoadedMenu loaded(GetParam());
    const HMENU first = GetParam() == IDR_CALC_TOL_MENU ? loaded.m_hMenu : ::GetSubMenu(loaded, 0);
    ASSERT_NE(first, nullptr);
    ForEachMenu(first, [](HMENU menu) {
        std::set<wchar_t> used;
        for (const MenuItem& item : ItemsOf(menu))
        {
            if ((item.type & MFT_SEPARATOR) != 0)
                continue;
            SCOPED_TRACE(Narrow(item.text));
            EXPECT_NE(Mnemonic(item.text), 0);
            EXPECT_TRUE(used.insert(Mnemonic(item.text)).second);
        }
    });
}

// What opens a dialog ends in an ellipsis, what acts at once doesn't.
TEST_P(EveryMenu, MarksWhatOpensADialog)
{
    const std::set<UINT> actsAtOnce{ID_METHOD_ANALYTIC,         ID_METHOD_PROBABILISTIC,  ID_LINK_DELETE,
                                    ID_LINK_DELETE_ALL,         ID_CLOSING_DELETE,        ID_CONTEXT_LINK_DELETE,
                                    ID_CONTEXT_LINK_DELETE_ALL, ID_CONTEXT_CLOSING_DELETE};
    const LoadedMenu menu(GetParam());
    ASSERT_FALSE(CommandsOf(menu).empty());
    for (const auto& [id, text] : CommandsOf(menu))
    {
        SCOPED_TRACE(Narrow(text));
        EXPECT_EQ(text.size() > 3 && text.substr(text.size() - 3) == L"...", actsAtOnce.count(id) == 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Ids, EveryMenu,
                         testing::Values(IDR_CALC_TOL_MENU, IDR_CHAIN_CONTEXT_MENU, IDR_CLOSING_CONTEXT_MENU));

}  // namespace
