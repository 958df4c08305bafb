#include "host/player/step_values.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <stdexcept>
#include <string>

#include "host/player/key_name.h"
#include "host/player/step_table.h"

namespace
{

constexpr WindowRole kRoles[] = {WindowRole::kHost,    WindowRole::kCalc,         WindowRole::kLink,
                                 WindowRole::kClosing, WindowRole::kDistribution, WindowRole::kWeight,
                                 WindowRole::kMessage};

std::string Quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

// A word that stands for itself: what looked like name=value is put together again.
std::string Plain(const ScriptWord& word)
{
    return word.name.empty() ? word.text : word.name + "=" + word.text;
}

std::optional<std::int64_t> NumberOf(const ScriptWord& word)
{
    if (word.quoted || !word.name.empty())
        return std::nullopt;
    std::string_view digits = word.text;
    const bool negative = digits.starts_with('-');
    if (negative)
        digits.remove_prefix(1);
    int base = 10;
    if (digits.starts_with("0x") || digits.starts_with("0X"))
    {
        base = 16;
        digits.remove_prefix(2);
    }
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    if (error != std::errc() || end != digits.data() + digits.size() || digits.empty() || digits.starts_with('-'))
        return std::nullopt;
    return negative ? -number : number;
}

std::int64_t ReadNumber(const ScriptWord& word, std::string_view kind)
{
    const std::optional<std::int64_t> number = NumberOf(word);
    if (!number)
        throw std::invalid_argument(std::string(kind) + " must be a number, not " + word.source);
    return *number;
}

int ReadSmallNumber(const ScriptWord& word, std::string_view kind, std::int64_t least, std::int64_t most)
{
    const std::int64_t number = ReadNumber(word, kind);
    if (number < least || number > most)
        throw std::invalid_argument(std::string(kind) + " must be from " + std::to_string(least) + " to " +
                                    std::to_string(most) + ", not " + word.source);
    return static_cast<int>(number);
}

constexpr std::int64_t kMostId = 0xFFFF;
constexpr std::int64_t kMostRow = 1000000;

std::optional<WindowRole> RoleOf(const ScriptWord& word)
{
    for (const WindowRole role : kRoles)
    {
        if (!word.quoted && word.text == RoleName(role))
            return role;
    }
    return std::nullopt;
}

WindowRole ReadRole(const ScriptWord& word)
{
    const std::optional<WindowRole> role = RoleOf(word);
    if (!role)
        throw std::invalid_argument(word.source +
                                    " is no window: host, calc, link, closing, distribution, weight or message");
    return *role;
}

ControlPath ReadControl(const ScriptWord& word, const Step& step)
{
    ControlPath path;
    path.name = word.text;
    if (word.quoted)
        throw std::invalid_argument("a control is a number, not the text " + word.source);
    if (word.text == "window")
        return path;
    if (step.window == WindowRole::kMessage && (word.text == "ok" || word.text == "text"))
    {
        path.ids.push_back(word.text == "ok" ? ControlPath::kMessageOk : ControlPath::kMessageText);
        return path;
    }
    std::string_view rest = word.text;
    while (true)
    {
        const std::size_t slash = rest.find('/');
        ScriptWord id;
        id.text = rest.substr(0, slash);
        const std::optional<std::int64_t> number = NumberOf(id);
        if (!number || *number < 0 || *number > kMostId)
            throw std::invalid_argument(word.source + " is no control: write its number, or window");
        path.ids.push_back(static_cast<int>(*number));
        if (slash == std::string_view::npos)
            return path;
        rest.remove_prefix(slash + 1);
    }
}

ScriptText ReadText(const ScriptWord& word)
{
    if (word.quoted)
        return {word.text, std::nullopt};
    if (!word.text.starts_with('@'))
        throw std::invalid_argument("a text stands in double quotes or is @N, not " + word.source);
    ScriptWord number;
    number.text = word.text.substr(1);
    return {"", ReadSmallNumber(number, "the string behind @", 0, kMostId)};
}

// The value of a field may also stand without quotes.
ScriptText ReadFieldText(const ScriptWord& word)
{
    if (word.quoted || word.text.starts_with('@'))
        return ReadText(word);
    return {word.text, std::nullopt};
}

std::uint32_t ReadColour(const ScriptWord& word)
{
    std::uint32_t colour = 0;
    const char* const end = word.text.data() + word.text.size();
    const auto result = std::from_chars(word.text.data(), end, colour, 16);
    if (word.quoted || word.text.size() != 6 || result.ec != std::errc() || result.ptr != end)
        throw std::invalid_argument("a colour is six hexadecimal digits RRGGBB, not " + word.source);
    return colour;
}

RecordField ReadField(const std::string& name, bool distribution)
{
    const std::optional<RecordField> field = RecordFieldOf(name);
    if (!field)
        throw std::invalid_argument(Quoted(name) + " is no field of a record");
    if (!(distribution ? IsDistributionField(*field) : IsDimensionField(*field)))
        throw std::invalid_argument("the record of a " + std::string(distribution ? "distribution" : "dimension") +
                                    " has no field " + Quoted(name));
    return *field;
}

void ReadObject(const ScriptWord& word, Step& step)
{
    if (!word.quoted && word.text == "null" && word.name.empty())
        step.choices.push_back("null");
    else
        step.words.push_back(Plain(word));
}

bool IsNumberKind(std::string_view kind)
{
    static constexpr std::string_view kKinds[] = {"N",    "ID",    "CODE",      "GRID", "DATA",
                                                  "MASK", "VALUE", "TOLERANCE", "WIDTH"};
    return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
}

bool IsMeasureKind(std::string_view kind)
{
    return kind == "X" || kind == "Y" || kind == "W" || kind == "H";
}

void ReadMeasure(std::string_view kind, const ScriptWord& word, Step& step)
{
    const Measure measure = Measure::Parse(word.text);
    if (measure.IsAny() && step.name != "expect-rect")
        throw std::invalid_argument(std::string(kind) + " can't be any here");
    step.measures.push_back(measure);
}

void ReadNumberValue(std::string_view kind, const ScriptWord& word, Step& step)
{
    std::int64_t number = 0;
    if (kind == "ID" || kind == "CODE" || kind == "GRID")
        number = ReadSmallNumber(word, kind, 0, kMostId);
    else if (kind == "TOLERANCE")
        number = ReadSmallNumber(word, kind, 0, 255);
    else if (kind == "N" || kind == "WIDTH")
        number = ReadSmallNumber(word, kind, -1, kMostRow);
    else
        number = ReadNumber(word, kind);
    (step.number ? step.second : step.number) = number;
}

}  // namespace

void ReadValue(std::string_view kind, const ScriptWord& word, Step& step)
{
    if (kind == "WINDOW")
        step.window = ReadRole(word);
    else if (kind == "CONTROL")
        step.control = ReadControl(word, step);
    else if (kind == "TEXT")
        step.text = ReadText(word);
    else if (kind == "ROW")
        step.cell = GridCell{ReadSmallNumber(word, kind, -1, kMostRow), -1};
    else if (kind == "COLUMN")
        step.cell->column = ReadSmallNumber(word, kind, -1, kMostRow);
    else if (IsMeasureKind(kind))
        ReadMeasure(kind, word, step);
    else if (kind == "COLOUR")
        step.colour = ReadColour(word);
    else if (IsNumberKind(kind))
        ReadNumberValue(kind, word, step);
    else if (kind == "FIELD")
        step.field = ReadField(Plain(word), step.Chose("variable"));
    else if (kind == "KEY" && !FindKey(Plain(word)))
        throw std::invalid_argument(word.source + " is no key");
    else if (kind == "OPERATION" && !FindOperation(Plain(word)))
        throw std::invalid_argument(word.source + " is no operation");
    else
        step.words.push_back(Plain(word));
}

bool LooksLikeValue(std::string_view kind, const ScriptWord& word)
{
    if (kind == "WINDOW")
        return RoleOf(word).has_value();
    if (kind == "TEXT")
        return word.quoted || word.text.starts_with('@');
    return NumberOf(word).has_value();
}

void ReadArguments(std::span<const ScriptWord> words, Step& step)
{
    const Operation& operation = *FindOperation(step.words.front());
    const std::string name(operation.name);
    if (operation.form == CallForm::kText || operation.form == CallForm::kObject)
    {
        if (words.empty())
            throw std::invalid_argument(name + " needs " +
                                        (operation.form == CallForm::kText ? "a text" : "a dimension or null"));
        if (operation.form == CallForm::kText)
            step.text = ReadText(words.front());
        else
            ReadObject(words.front(), step);
        words = words.subspan(1);
    }
    else if (operation.form == CallForm::kDimension && !words.empty() && words.front().name.empty())
    {
        step.words.push_back(words.front().text);
        words = words.subspan(1);
    }
    if (operation.form == CallForm::kDimension || operation.form == CallForm::kDistribution)
    {
        for (const ScriptWord& word : words)
        {
            if (word.name.empty())
                throw std::invalid_argument("a field of a record is written name=\"value\", not " + word.source);
            step.fields.push_back(
                {ReadField(word.name, operation.form == CallForm::kDistribution), ReadFieldText(word)});
        }
        return;
    }
    if (!words.empty())
        throw std::invalid_argument(name + " doesn't take " + words.front().source);
}
