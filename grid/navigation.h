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

/// The place that a move leads to; `from` itself where it leads nowhere. From no row a move leads to the first one, but
/// by rows the moves between columns lead nowhere then, too.
GridPlace PlaceAfter(GridPlace from, GridMove move, const GridExtent& extent);

/// Whether the place that a move leads to is scrolled into sight, also where it leads nowhere. By rows a move to a
/// neighbouring column does nothing at all, while one to the first or last column still shows the row.
bool ShowsItsPlace(GridMove move, bool rowMode);

/// The row to stand at the top so that the row `last` is visible, and then, even if `last` has to go again, the row
/// `first` above it; `top` when it is so already.
int TopRowToShow(int top, int rowsPerPage, int first, int last);
