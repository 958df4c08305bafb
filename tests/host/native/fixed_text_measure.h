#pragma once

#include "host/text_measure.h"

/// Fonts whose every byte is as wide as the next: labels 6 x 10 pixels, deviations 4 x 8.
class FixedTextMeasure : public TextMeasure
{
public:
    double Width(std::string_view text, TextSize size) const override
    {
        return static_cast<double>(text.size()) * (size == TextSize::kLabel ? 6.0 : 4.0);
    }
    double Height(TextSize size) const override { return size == TextSize::kLabel ? 10.0 : 8.0; }
};
