#pragma once

/// Where the keys lead in a grid of shown rows.

enum class GridMove
{
    NextCell,      // over the end of a row to the next one
    PreviousCell,  // over the beginning of a row to the previous one
    PageUp,
    PageDown,
    FirstColumn,
    LastColumn,
    Left,
    Right,
    Up,
    Down
};

/// A place among the shown rows; column -1 is the whole row, row -1 no row.
struct GridPlace
{
    int row = -1;
    int column = -1;

    bool operator==(const GridPlace&) const = default;
};

struct GridExtent
{
    int rows = 0;
    int columns = 0;
    int rowsPerPage = 0;   // rows that are wholly visible
    bool rowMode = false;  // moves go by whole rows; the moves between columns lead nowhere
};

/// The place that a move leads to; `from` itself where it leads nowhere. From no row every move leads to the first one.
GridPlace PlaceAfter(GridPlace from, GridMove move, const GridExtent& extent);

/// The row to stand at the top so that the row `last` is visible, and then, even if `last` has to go again, the row
/// `first` above it; `top` when it is so already.
int TopRowToShow(int top, int rowsPerPage, int first, int last);
