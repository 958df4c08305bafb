#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A place or a size written from the width w and the height h of an area, such as 12, w/2+60 or h-20; `*` is any.
///
/// Whole numbers, + and - between terms, * and / inside a term, evaluated from the left; a division drops its
/// remainder.
class Measure
{
public:
    /// Throws std::invalid_argument with the reason when the text is not a measure.
    static Measure Parse(std::string_view text);

    bool IsAny() const { return m_parts.empty(); }
    /// Of an area of that size. Of a measure that is any: 0. A division by 0 gives 0.
    int Of(int width, int height) const;
    /// As written.
    const std::string& Text() const { return m_text; }

private:
    struct Part
    {
        char operation;  // how the value joins those before it: + - * /
        char unit;       // 'w', 'h', or 0 for a plain number
        int number;
    };

    std::string m_text;
    std::vector<Part> m_parts;
};
