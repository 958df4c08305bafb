#pragma once

#include <string_view>

/// Sizes of the texts of a drawing.
enum class TextSize
{
    kLabel,     ///< name and nominal size
    kDeviation  ///< limit deviations, one above the other
};

/// Knows how large texts are in the fonts in use, pixels.
class TextMeasure
{
public:
    virtual ~TextMeasure() = default;

    virtual double Width(std::string_view text, TextSize size) const = 0;
    virtual double Height(TextSize size) const = 0;
};
