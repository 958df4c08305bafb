#include "dialog/menu_states.h"

#include "calc/chain_calculation.h"
#include "platform/moduleskin/resource.h"

std::array<CommandState, kMenuBarCommands> MenuBarStates(const ChainState& state)
{
    const bool hasMethod = state.method != 0;
    const bool links = hasMethod && state.hasLinks;
    const bool closing = hasMethod && state.hasClosingLink;
    const bool laws = state.method == kProbabilisticMethod;
    return {{
        {ID_LINK_ADD, hasMethod},
        {ID_CLOSING_ADD, hasMethod},
        {ID_LINK_EDIT, links},
        {ID_LINK_DELETE, links},
        {ID_LINK_DELETE_ALL, links},
        {ID_CHAIN_WEIGHTS, links},
        {ID_CHAIN_RESERVED, links},
        {ID_LINK_DISTRIBUTION, links && laws},
        {ID_CLOSING_EDIT, closing},
        {ID_CLOSING_DELETE, closing},
        {ID_CLOSING_DISTRIBUTION, closing && laws},
    }};
}

std::array<CommandState, 6> ChainContextMenuStates(const ChainState& state)
{
    const bool hasMethod = state.method != 0;
    return {{
        {ID_CONTEXT_LINK_ADD, hasMethod},
        {ID_CONTEXT_LINK_DELETE, state.hasLinks},
        {ID_CONTEXT_LINK_DELETE_ALL, state.hasLinks},
        {ID_CONTEXT_LINK_EDIT, state.hasLinks},
        {ID_CONTEXT_LINK_WEIGHT, state.hasLinks && hasMethod},
        {ID_CONTEXT_LINK_DISTRIBUTION, state.hasLinks && state.method == kProbabilisticMethod},
    }};
}

std::array<CommandState, 4> ClosingContextMenuStates(const ChainState& state)
{
    return {{
        {ID_CONTEXT_CLOSING_ADD, state.method != 0},
        {ID_CONTEXT_CLOSING_EDIT, state.hasClosingLink},
        {ID_CONTEXT_CLOSING_DELETE, state.hasClosingLink},
        {ID_CONTEXT_CLOSING_DISTRIBUTION, state.hasClosingLink && state.method == kProbabilisticMethod},
    }};
}
