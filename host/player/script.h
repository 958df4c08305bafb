#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/player/measure.h"
#include "host/player/record_field.h"

/// A window of the process as a script names it.
enum class WindowRole
{
    kHost,
    kCalc,
    kLink,
    kClosing,
    kDistribution,
    kWeight,
    kMessage
};

/// The word that a script uses for a role.
std::string_view RoleName(WindowRole role);

/// A control inside a window: the numeric IDs from the window down to the control; none is the window itself. A message
/// box's controls have the IDs kMessageOk and kMessageText.
struct ControlPath
{
    static constexpr int kMessageOk = -1;
    static constexpr int kMessageText = -2;

    std::vector<int> ids;
    std::string name;  ///< as the script writes it

    bool IsWindow() const { return ids.empty(); }
};

/// A text as a script gives it: UTF-8, or the number of a string in the resource library.
struct ScriptText
{
    std::string text;
    std::optional<int> resource;
};

/// A cell of a grid: the row as counted on the screen and the column, both from 0; -1 is none.
struct GridCell
{
    int row = -1;
    int column = -1;
};

/// A named value of a record, such as upper="0.2".
struct FieldValue
{
    RecordField field;
    ScriptText value;
};

/// One step of a script. Which members are set follows from the step's pattern in step_table.h.
struct Step
{
    std::string name;    ///< first word of the line
    int line = 0;        ///< line in the script, from 1
    std::string source;  ///< the line without comment and outer blanks

    std::optional<WindowRole> window;
    ControlPath control;
    std::optional<GridCell> cell;
    std::optional<ScriptText> text;
    std::optional<std::int64_t> number;   ///< N, ID, CODE or GRID
    std::optional<std::int64_t> second;   ///< DATA, WIDTH, VALUE, ROW, TOLERANCE, or the ID after GRID
    std::optional<std::uint32_t> colour;  ///< 0xRRGGBB
    std::vector<Measure> measures;        ///< X Y or X Y W H; a measure of `*` is any
    std::vector<int> codes;
    std::vector<std::string> words;    ///< names: dimension, key, operation, file
    std::vector<std::string> choices;  ///< the words taken where the pattern offers a choice
    std::optional<RecordField> field;  ///< the field of a record that is looked at
    std::vector<FieldValue> fields;    ///< the fields of a record that are given

    /// Whether the line has this word in a place where the pattern offers a choice.
    bool Chose(std::string_view word) const;
};

struct Script
{
    std::filesystem::path file;  ///< files that the steps name are relative to its folder
    std::vector<Step> steps;
};
