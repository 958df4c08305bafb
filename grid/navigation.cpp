#include "grid/navigation.h"

#include <algorithm>

namespace
{
// A page down leaves two rows of the former page in sight; a very low grid still moves on.
int PageStep(const GridExtent& extent)
{
    return std::max(extent.rowsPerPage - 2, 1);
}

GridPlace RowAt(GridPlace from, int row, const GridExtent& extent)
{
    return {std::clamp(row, 0, extent.rows - 1), from.column};
}

GridPlace NextCell(GridPlace from, const GridExtent& extent)
{
    if (from.column < extent.columns - 1)
        return {from.row, from.column + 1};
    return from.row < extent.rows - 1 ? GridPlace{from.row + 1, 0} : from;
}

GridPlace PreviousCell(GridPlace from, const GridExtent& extent)
{
    if (from.column > 0)
        return {from.row, from.column - 1};
    return from.row > 0 ? GridPlace{from.row - 1, extent.columns - 1} : from;
}

bool IsToNeighbouringColumn(GridMove move)
{
    switch (move)
    {
    case GridMove::NextCell:
    case GridMove::PreviousCell:
    case GridMove::Left:
    case GridMove::Right:
        return true;
    default:
        return false;
    }
}

bool IsBetweenColumns(GridMove move)
{
    return IsToNeighbouringColumn(move) || move == GridMove::FirstColumn || move == GridMove::LastColumn;
}

GridPlace ColumnAt(GridPlace from, int column, const GridExtent& extent)
{
    return {from.row, std::clamp(column, 0, extent.columns - 1)};
}
}  // namespace

GridPlace PlaceAfter(GridPlace from, GridMove move, const GridExtent& extent)
{
    if (extent.rows == 0 || extent.columns == 0)
        return from;
    if (extent.rowMode && IsBetweenColumns(move))
        return from;
    if (from.row < 0)
        return {0, extent.rowMode ? -1 : 0};

    switch (move)
    {
    case GridMove::PageUp:
        return RowAt(from, from.row - PageStep(extent), extent);
    case GridMove::PageDown:
        return RowAt(from, from.row + PageStep(extent), extent);
    case GridMove::Up:
        return RowAt(from, from.row - 1, extent);
    case GridMove::Down:
        return RowAt(from, from.row + 1, extent);
    case GridMove::NextCell:
        return NextCell(from, extent);
    case GridMove::PreviousCell:
        return PreviousCell(from, extent);
    case GridMove::FirstColumn:
        return ColumnAt(from, 0, extent);
    case GridMove::LastColumn:
        return ColumnAt(from, extent.columns - 1, extent);
    case GridMove::Left:
        return ColumnAt(from, from.column - 1, extent);
    case GridMove::Right:
        return ColumnAt(from, from.column + 1, extent);
    default:
        return from;
    }
}

bool ShowsItsPlace(GridMove move, bool rowMode)
{
    return !(rowMode && IsToNeighbouringColumn(move));
}

int TopRowToShow(int top, int rowsPerPage, int first, int last)
{
    return std::min(std::max(top, last - rowsPerPage + 1), first);
}
