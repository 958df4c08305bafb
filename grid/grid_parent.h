#pragma once

#include <afxwin.h>

/// What a grid asks of its parent window beyond the notifications. The grid finds these by the type of its parent
/// window; a parent that implements one of them is asked, any other is left alone.

/// A parent with a context menu for the rows of its grids.
class GridEditMenuParent
{
public:
    virtual ~GridEditMenuParent() = default;

    /// The user pressed the right button on a row; the row is the grid's focus row already. The parent may do anything,
    /// also destroy the grid.
    virtual void TrackEditMenu(CPoint screenPoint, int gridId) = 0;
};

/// A parent that follows the focus row of its grids.
class GridSelectionParent
{
public:
    virtual ~GridSelectionParent() = default;

    /// The user clicked a cell: `rowKey` is the focus row now, changed or not.
    virtual void OnSelectionChanged(int gridId, void* rowKey) = 0;
};
