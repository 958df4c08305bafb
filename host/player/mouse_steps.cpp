#include <algorithm>
#include <optional>

#include "host/player/grid_view.h"
#include "host/player/mouse_input.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

namespace
{

// The drawn layout of a grid's cell: what stands before the text.
constexpr int kLevelIndent = 20;
constexpr int kFirstIndent = 5;
constexpr int kImagePlace = 20;  // expand image, check box and own image take this much each

POINT MiddleOf(const RECT& area)
{
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

MouseClick ClickOf(const Step& step)
{
    if (step.Chose("double"))
        return MouseClick::kDouble;
    return step.Chose("right") ? MouseClick::kRight : MouseClick::kLeft;
}

StepTask Press(StepContext context)
{
    const HWND button = RequireUsableControl(context.window, context.step.control);
    if ((SendMessageW(button, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0 && WindowClass(button) != L"Button")
        throw StepFailure("the control is no button but a " + ToUtf8(WindowClass(button)));
    RECT client = {};
    GetClientRect(button, &client);
    return ClickTask(context.window, button, MiddleOf(client), MouseClick::kLeft);
}

RECT VisibleCell(const GridView& grid, GridCell cell)
{
    grid.MakeVisible(cell);
    UpdateWindow(grid.Window());
    RECT area = grid.CellArea(cell);
    const RECT view = grid.RowsArea();
    area.left = std::max(area.left, view.left);
    area.right = std::min(area.right, view.right);
    return area;
}

POINT ExpandPoint(const GridView& grid, GridCell cell)
{
    const RECT area = VisibleCell(grid, cell);
    const std::optional<GridView::FoundImage> image = grid.ExpandImage(cell.row);
    if (!image)
        throw StepFailure("row " + std::to_string(cell.row) + " shows no expand image");
    return {image->x + kImagePlace / 2 - 2, MiddleOf(area).y};
}

// Left end of what a row draws in the tree column, when the row shows no expand image of its own: one level below the
// nearest row above that is expanded.
std::optional<int> IndentBelowParent(const GridView& grid, int row)
{
    while (--row >= 0)
    {
        const std::optional<GridView::FoundImage> image = grid.ExpandImage(row);
        if (image)
            return image->x + kLevelIndent;
    }
    return std::nullopt;
}

POINT CheckPoint(const GridView& grid, GridCell cell)
{
    const RECT area = VisibleCell(grid, cell);
    const int middle = MiddleOf(area).y;
    const std::optional<GridView::FoundImage> expand = grid.ExpandImage(cell.row);
    if (expand && expand->x >= area.left && expand->x < area.right)
        return {expand->x + kImagePlace + kImagePlace / 2, middle};
    const std::optional<int> indent = cell.column == 0 ? IndentBelowParent(grid, cell.row) : std::nullopt;
    return {indent.value_or(area.left) + kImagePlace / 2, middle};
}

// The middle of the cell, but behind the images where these reach that far.
POINT CellPoint(const GridView& grid, GridCell cell)
{
    const RECT area = VisibleCell(grid, cell);
    POINT point = MiddleOf(area);
    const std::vector<GridView::FoundImage> images = grid.ImagesIn(area);
    if (!images.empty())
        point.x =
            std::clamp<LONG>(images.back().x + kImagePlace + kFirstIndent, point.x, std::max(point.x, area.right - 3));
    return point;
}

StepTask Click(StepContext context)
{
    const Step& step = context.step;
    const GridView grid(RequireUsableControl(context.window, step.control));
    POINT point = {};
    if (step.Chose("expand"))
        point = ExpandPoint(grid, *step.cell);
    else if (step.Chose("check"))
        point = CheckPoint(grid, *step.cell);
    else
        point = CellPoint(grid, *step.cell);
    if (step.Chose("right"))
        context.play.contextMenuGrid = GetDlgCtrlID(grid.Window());
    return ClickTask(context.window, grid.Window(), point, ClickOf(step));
}

StepTask ClickAt(StepContext context)
{
    const Step& step = context.step;
    const HWND control = RequireUsableControl(context.window, step.control);
    RECT area = {};
    GetClientRect(control, &area);
    const RECT client = area;
    if (step.cell)
        area = GridView(control).CellArea(*step.cell);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const POINT point{area.left + step.measures[0].Of(width, height), area.top + step.measures[1].Of(width, height)};
    if (!PtInRect(&client, point))
        throw StepFailure("a point of the control", std::to_string(point.x) + ", " + std::to_string(point.y) +
                                                        " outside " + std::to_string(client.right) + " x " +
                                                        std::to_string(client.bottom));
    if (step.Chose("right"))
        context.play.contextMenuGrid = GetDlgCtrlID(control);
    return ClickTask(context.window, control, point, ClickOf(step));
}

constexpr StepHandler kMouseSteps[] = {
    {.name = "press", .asTask = Press},
    {.name = "click", .asTask = Click},
    {.name = "click-at", .asTask = ClickAt},
};

}  // namespace

std::span<const StepHandler> MouseSteps()
{
    return kMouseSteps;
}
