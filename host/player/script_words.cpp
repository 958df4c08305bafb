#include "host/player/script_words.h"

#include <cctype>
#include <stdexcept>

namespace
{

bool IsBlank(char character)
{
    return std::isspace(static_cast<unsigned char>(character)) != 0;
}

// Reads a quoted text; `at` stands on the opening quote and afterwards behind the closing one.
std::string ReadQuoted(std::string_view line, std::size_t& at)
{
    std::string text;
    for (++at; at < line.size(); ++at)
    {
        if (line[at] == '"')
        {
            ++at;
            return text;
        }
        if (line[at] != '\\')
        {
            text += line[at];
            continue;
        }
        ++at;
        const char escape = at < line.size() ? line[at] : '\0';
        if (escape == 'n')
            text += '\n';
        else if (escape == '"' || escape == '\\')
            text += escape;
        else
            throw std::invalid_argument("a backslash in a text stands before \", \\ or n only");
    }
    throw std::invalid_argument("the text's closing quote is missing");
}

ScriptWord ReadWord(std::string_view line, std::size_t& at)
{
    ScriptWord word;
    const std::size_t start = at;
    while (at < line.size() && !IsBlank(line[at]) && line[at] != '#')
    {
        if (line[at] == '"')
        {
            if (!word.text.empty())
                throw std::invalid_argument("a blank is missing before the text's opening quote");
            word.text = ReadQuoted(line, at);
            word.quoted = true;
            if (at < line.size() && !IsBlank(line[at]) && line[at] != '#')
                throw std::invalid_argument("a blank is missing behind the text's closing quote");
            break;
        }
        if (line[at] == '=' && word.name.empty() && !word.text.empty())
            word.name.swap(word.text);
        else
            word.text += line[at];
        ++at;
    }
    word.source = line.substr(start, at - start);
    return word;
}

}  // namespace

std::vector<ScriptWord> SplitLine(std::string_view line)
{
    std::vector<ScriptWord> words;
    std::size_t at = 0;
    while (true)
    {
        while (at < line.size() && IsBlank(line[at]))
            ++at;
        if (at == line.size() || line[at] == '#')
            return words;
        words.push_back(ReadWord(line, at));
    }
}
