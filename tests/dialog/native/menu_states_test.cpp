#include "dialog/menu_states.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/moduleskin/resource.h"

namespace
{

// What a command is offered for, one letter for each method (0 none, 1 analytic, 2 probabilistic): '-' never, 'x'
// always, 'l' when there are links, 'c' when there is a closing link.
using Rule = std::string;

bool IsOffered(const Rule& rule, const ChainState& state)
{
    switch (rule[static_cast<std::size_t>(state.method)])
    {
    case 'x':
        return true;
    case 'l':
        return state.hasLinks;
    case 'c':
        return state.hasClosingLink;
    default:
        return false;
    }
}

const std::map<std::uint32_t, Rule> kMenuBar = {
    {32772, "-xx"},  // add link
    {32785, "-xx"},  // add closing link
    {32783, "-ll"},  // edit link
    {32784, "-ll"},  // delete link
    {32789, "-ll"},  // delete all links
    {32781, "-ll"},  // weights of the chain
    {32774, "-ll"},  // the item without a handler
    {32796, "--l"},  // link distribution
    {32793, "-cc"},  // edit closing link
    {32795, "-cc"},  // delete closing link
    {32797, "--c"},  // closing distribution
};

// Links can be edited and deleted without a method here, on purpose: the menu is loaded with all items enabled, and the
// rule for links comes after the one for the method.
const std::map<std::uint32_t, Rule> kChainContextMenu = {
    {32780, "-xx"},  // add link
    {32777, "lll"},  // delete link
    {32782, "lll"},  // delete all links
    {32778, "lll"},  // edit link
    {32779, "-ll"},  // weight of the link
    {32798, "--l"},  // link distribution
};

const std::map<std::uint32_t, Rule> kClosingContextMenu = {
    {32790, "-xx"},  // add closing link
    {32792, "ccc"},  // edit closing link
    {32791, "ccc"},  // delete closing link
    {32799, "--c"},  // closing distribution
};

std::vector<ChainState> AllStates()
{
    std::vector<ChainState> states;
    for (const int method : {0, 1, 2})
        for (const bool links : {false, true})
            for (const bool closing : {false, true})
                states.push_back({.method = method, .hasLinks = links, .hasClosingLink = closing});
    return states;
}

template <typename States>
std::map<std::uint32_t, bool> ByCommand(const States& states)
{
    std::map<std::uint32_t, bool> enabled;
    for (const CommandState& state : states)
        enabled.emplace(state.command, state.enabled);
    return enabled;
}

std::map<std::uint32_t, bool> Expected(const std::map<std::uint32_t, Rule>& rules, const ChainState& state)
{
    std::map<std::uint32_t, bool> enabled;
    for (const auto& [command, rule] : rules)
        enabled.emplace(command, IsOffered(rule, state));
    return enabled;
}

std::string Describe(const ChainState& state)
{
    return "method " + std::to_string(state.method) + (state.hasLinks ? ", links" : ", no links") +
           (state.hasClosingLink ? ", closing link" : ", no closing link");
}

TEST(MenuStates, OfTheMenuBarFollowTheTable)
{
    for (const ChainState& state : AllStates())
        EXPECT_EQ(ByCommand(MenuBarStates(state)), Expected(kMenuBar, state)) << Describe(state);
}

TEST(MenuStates, OfTheChainContextMenuFollowTheTable)
{
    for (const ChainState& state : AllStates())
        EXPECT_EQ(ByCommand(ChainContextMenuStates(state)), Expected(kChainContextMenu, state)) << Describe(state);
}

TEST(MenuStates, OfTheClosingContextMenuFollowTheTable)
{
    for (const ChainState& state : AllStates())
        EXPECT_EQ(ByCommand(ClosingContextMenuStates(state)), Expected(kClosingContextMenu, state)) << Describe(state);
}

TEST(MenuStates, NameEachCommandOnce)
{
    EXPECT_EQ(MenuBarStates({}).size(), kMenuBar.size());
    EXPECT_EQ(ChainContextMenuStates({}).size(), kChainContextMenu.size());
    EXPECT_EQ(ClosingContextMenuStates({}).size(), kClosingContextMenu.size());
}

TEST(MenuStates, NeverContainTheMethods)
{
    const auto bar = ByCommand(MenuBarStates({}));
    EXPECT_FALSE(bar.contains(ID_METHOD_ANALYTIC));
    EXPECT_FALSE(bar.contains(ID_METHOD_PROBABILISTIC));
}

}  // namespace
