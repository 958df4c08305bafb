#pragma once

#include "calc/chain_calculation.h"
#include "drawing/display_list.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

/// What the chain diagram shows. Texts are UTF-8.
struct ChainDiagramInput
{
    int width = 0;  // of the area, pixels; its top left corner is the origin
    int height = 0;
    std::int32_t method = 0;  // as given to Calculate
    ClosingLink closing;
    std::string nominalText;            // the closing link's nominal as the list shows it
    std::optional<ChainResult> result;  // nothing: the area stays white
    std::string caption;
    std::string upperWord;                     // label of the required upper limit
    std::string lowerWord;                     // label of the required lower limit
    std::array<std::string, 3> mismatchLines;  // message when the computed nominal is not the required one
};

/// The comparison of the computed closing link with the required one.
///
/// Along a base line with the nominal in its middle stand the required limits and the computed field, a bar by the
/// analytic and the law's shape by the probabilistic method: green where the required limits hold it, red beyond them.
/// When the nominals differ, a message takes the comparison's place.
///
/// An area too small, a field without width and values that are not finite leave out what can't be drawn; the texts
/// stay. Limits in reversed order, required or computed, leave out a law's shape, not the bar. Empty when there is no
/// result. The white ground is the painter's.
DisplayList LayoutChainDiagram(const ChainDiagramInput& input);
