#include "host/player/script_parser.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "host/player/script_words.h"
#include "host/player/step_table.h"
#include "host/player/step_values.h"

namespace
{

/// Splits a text at every `separator`; an empty text has no pieces.
std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> pieces;
    while (!text.empty())
    {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return pieces;
}

bool IsKind(std::string_view alternative)
{
    return alternative.front() >= 'A' && alternative.front() <= 'Z';
}

/// Fits the words of one line to the pattern of its step.
class PatternReader
{
public:
    PatternReader(std::span<const ScriptWord> words, Step& step) : m_words(words), m_step(step) {}

    void Read(std::string_view pattern)
    {
        while (!pattern.empty())
        {
            if (pattern.front() == ' ')
                pattern.remove_prefix(1);
            else if (pattern.front() == '[')
                pattern = ReadOptionals(pattern);
            else
                pattern = ReadPiece(pattern);
        }
        if (!m_words.empty())
            throw std::invalid_argument("unexpected " + m_words.front().source);
    }

private:
    // Neighbouring [ ] groups, each at most once, in the order in which the line has them.
    std::string_view ReadOptionals(std::string_view pattern)
    {
        std::vector<std::string_view> groups;
        while (pattern.starts_with('['))
        {
            const std::size_t end = pattern.find(']');
            groups.push_back(pattern.substr(1, end - 1));
            pattern.remove_prefix(end + 1);
            if (pattern.starts_with(" ["))
                pattern.remove_prefix(1);
        }
        for (auto group = groups.begin(); group != groups.end();)
        {
            if (m_words.empty() || !Fits(group->substr(0, group->find(' '))))
            {
                ++group;
                continue;
            }
            for (const std::string_view piece : Split(*group, ' '))
                ReadPiece(piece);
            groups.erase(group);
            group = groups.begin();
        }
        return pattern;
    }

    bool Fits(std::string_view piece) const
    {
        return std::ranges::any_of(Split(piece, '|'), [this](std::string_view alternative) {
            return IsKind(alternative) ? LooksLikeValue(alternative, m_words.front()) : IsWord(alternative);
        });
    }

    bool IsWord(std::string_view word) const { return !m_words.front().quoted && m_words.front().source == word; }

    std::string_view ReadPiece(std::string_view pattern)
    {
        const std::size_t end = std::min(pattern.find(' '), pattern.size());
        const std::string_view piece = pattern.substr(0, end);
        if (piece.ends_with("..."))
            ReadList(piece.substr(0, piece.size() - 3));
        else
            ReadOne(piece);
        return pattern.substr(end);
    }

    void ReadOne(std::string_view piece)
    {
        if (m_words.empty())
            throw std::invalid_argument(std::string(piece) + " is missing");
        const std::vector<std::string_view> alternatives = Split(piece, '|');
        for (const std::string_view alternative : alternatives)
        {
            if (!IsKind(alternative) && IsWord(alternative))
            {
                m_step.choices.emplace_back(alternative);
                Next();
                return;
            }
        }
        for (const std::string_view alternative : alternatives)
        {
            if (IsKind(alternative))
            {
                ReadValue(alternative, m_words.front(), m_step);
                Next();
                return;
            }
        }
        throw std::invalid_argument("one of " + std::string(piece) + " must stand instead of " +
                                    m_words.front().source);
    }

    void ReadList(std::string_view kind)
    {
        if (kind == "ARGUMENT")
        {
            ReadArguments(m_words, m_step);
            m_words = {};
        }
        for (; !m_words.empty(); Next())
        {
            if (kind != "CODE")
            {
                ReadValue(kind, m_words.front(), m_step);
                continue;
            }
            Step code;
            ReadValue(kind, m_words.front(), code);
            m_step.codes.push_back(static_cast<int>(*code.number));
        }
    }

    void Next() { m_words = m_words.subspan(1); }

    std::span<const ScriptWord> m_words;
    Step& m_step;
};

Step ReadStep(std::span<const ScriptWord> words)
{
    Step step;
    step.name = words.front().source;
    const StepForm* const form = FindStepForm(step.name);
    if (form == nullptr)
        throw std::invalid_argument("there is no step " + step.name);
    try
    {
        PatternReader(words.subspan(1), step).Read(form->pattern);
        if (step.name == "expect-focused" && !step.window && !step.Chose("none"))
            throw std::invalid_argument("WINDOW is missing");
    }
    catch (const std::invalid_argument& error)
    {
        const std::string pattern(form->pattern);
        throw std::invalid_argument(std::string(error.what()) + " (" + step.name + (pattern.empty() ? "" : " ") +
                                    pattern + ")");
    }
    return step;
}

std::string_view Trimmed(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

std::string SourceOf(std::span<const ScriptWord> words)
{
    std::string source;
    for (const ScriptWord& word : words)
        source += (source.empty() ? "" : " ") + word.source;
    return source;
}

std::string Utf8Name(const std::filesystem::path& file)
{
    const std::u8string name = file.u8string();
    return {name.begin(), name.end()};
}

}  // namespace

Script ParseScript(std::string_view text, const std::filesystem::path& file)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    Script script;
    script.file = file;
    int line = 0;
    for (const std::string_view source : Split(text, '\n'))
    {
        ++line;
        try
        {
            const std::vector<ScriptWord> words = SplitLine(Trimmed(source));
            if (words.empty())
                continue;
            Step step = ReadStep(words);
            step.line = line;
            step.source = SourceOf(words);
            script.steps.push_back(std::move(step));
        }
        catch (const std::invalid_argument& error)
        {
            throw ScriptError(Utf8Name(file) + ":" + std::to_string(line) + ": " + error.what());
        }
    }
    return script;
}

Script ParseScriptFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw ScriptError(Utf8Name(file) + ": the script can't be opened");
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad())
        throw ScriptError(Utf8Name(file) + ": the script can't be read");
    return ParseScript(text, file);
}
