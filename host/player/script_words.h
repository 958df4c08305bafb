#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A word of a script line, or a text in double quotes.
struct ScriptWord
{
    std::string text;     ///< without the quotes, with \" \\ \n resolved
    std::string name;     ///< of `name=value`: what stands before the first unquoted =, and text is the value
    bool quoted = false;  ///< the text stood in quotes
    std::string source;   ///< as written
};

/// The words of one line up to its comment.
///
/// Throws std::invalid_argument with the reason when a quote is not closed, an escape is unknown, or a closing quote is
/// followed by anything but a blank.
std::vector<ScriptWord> SplitLine(std::string_view line);
