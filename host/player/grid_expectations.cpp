#include <string>
#include <vector>

#include "host/player/grid_view.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

namespace
{

GridView GridOf(const StepContext& context)
{
    return GridView(RequireControl(context.window, context.step.control));
}

void ExpectRows(const StepContext& context)
{
    const int found = GridOf(context).Rows();
    if (found != *context.step.number)
        throw StepFailure(std::to_string(*context.step.number), std::to_string(found));
}

void ExpectCell(const StepContext& context)
{
    const std::string expected = ResolveText(*context.step.text);
    const std::string found = GridOf(context).CellText(*context.step.cell);
    if (expected != found)
        throw StepFailure(Quoted(expected), Quoted(found));
}

std::string InWords(const GridCell& cell)
{
    return "row " + std::to_string(cell.row) + " column " + std::to_string(cell.column);
}

void ExpectFocus(const StepContext& context)
{
    const GridCell expected = *context.step.cell;
    const GridCell found = GridOf(context).FocusOnScreen();
    if (expected.row != found.row || expected.column != found.column)
        throw StepFailure(InWords(expected), InWords(found));
}

std::string AlignmentWord(int format)
{
    switch (format & LVCFMT_JUSTIFYMASK)
    {
    case LVCFMT_RIGHT:
        return "right";
    case LVCFMT_CENTER:
        return "center";
    default:
        return "left";
    }
}

void ExpectColumn(const StepContext& context)
{
    const Step& step = context.step;
    const GridView grid = GridOf(context);
    if (*step.number < 0 || *step.number >= grid.Columns())
        throw StepFailure("column " + std::to_string(*step.number), std::to_string(grid.Columns()) + " columns");
    std::vector<wchar_t> title(1024);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.pszText = title.data();
    column.cchTextMax = static_cast<int>(title.size());
    SendMessageW(grid.Window(), LVM_GETCOLUMNW, static_cast<WPARAM>(*step.number), reinterpret_cast<LPARAM>(&column));
    const std::string expected =
        Quoted(ResolveText(*step.text)) + " " + step.choices.front() + " " + std::to_string(*step.second);
    const std::string found =
        Quoted(ToUtf8(column.pszText)) + " " + AlignmentWord(column.fmt) + " " + std::to_string(column.cx);
    if (expected != found)
        throw StepFailure(expected, found);
}

constexpr StepHandler kGridExpectations[] = {
    {.name = "expect-rows", .atOnce = ExpectRows},
    {.name = "expect-cell", .atOnce = ExpectCell},
    {.name = "expect-focus", .atOnce = ExpectFocus},
    {.name = "expect-column", .atOnce = ExpectColumn},
};

}  // namespace

std::span<const StepHandler> GridExpectations()
{
    return kGridExpectations;
}
