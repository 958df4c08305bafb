#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

#include "host/player/picture.h"
#include "host/player/script.h"

/// A list view as a person sees it, asked with the list view's own messages.
class GridView
{
public:
    /// Throws StepFailure when the window is no list view.
    explicit GridView(HWND grid);

    HWND Window() const { return m_grid; }
    int Rows() const;
    int Columns() const;
    std::string CellText(GridCell cell) const;

    /// The cell in client coordinates; throws StepFailure when there is none.
    RECT CellArea(GridCell cell) const;
    /// The part of the client area in which rows stand: without the header.
    RECT RowsArea() const;
    /// Scrolls as far as needed to have the cell in view.
    void MakeVisible(GridCell cell) const;

    /// An image of the grid's small image list, found in a picture.
    struct FoundImage
    {
        int image;
        int x;
    };
    /// The images of the small image list that the row's picture shows in the area, from the left.
    std::vector<FoundImage> ImagesIn(const RECT& area) const;
    /// Left end of the row's expand image in client coordinates; nothing when the row shows none.
    std::optional<FoundImage> ExpandImage(int row) const;

    /// The cell in the focus colour, or the highlighted row with column -1, or -1, -1: read off the picture. A cell
    /// under an open editor counts as in the focus colour.
    GridCell FocusOnScreen() const;

private:
    HIMAGELIST SmallImages() const;
    bool IsUnderEditor(const RECT& area) const;

    HWND m_grid;
};
