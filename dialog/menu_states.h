#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// Which commands of the calculation dialog can be chosen. Window-free.

/// What the states depend on.
struct ChainState
{
    std::int32_t method = 0;      // 0 none, kAnalyticMethod, kProbabilisticMethod
    bool hasLinks = false;        // at least one component link
    bool hasClosingLink = false;  // with a host object
};

struct CommandState
{
    std::uint32_t command = 0;
    bool enabled = false;
};

inline constexpr std::size_t kMenuBarCommands = 11;

/// All commands of the menu bar but the two methods, which can always be chosen. Without a method nothing else can;
/// distributions are offered under the probabilistic method only, since the analytic one ignores laws and means.
std::array<CommandState, kMenuBarCommands> MenuBarStates(const ChainState& state);

/// The commands of the chain list's context menu. Unlike in the menu bar, links can be edited and deleted without a
/// method, too.
std::array<CommandState, 6> ChainContextMenuStates(const ChainState& state);

/// The commands of the closing list's context menu, with the same difference.
std::array<CommandState, 4> ClosingContextMenuStates(const ChainState& state);
