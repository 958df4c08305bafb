#pragma once

#include <optional>

/// Where the parts of a grid cell lie, in pixels, horizontally. Columns are given by their left and right edge as the
/// header shows them, right excluded.

/// Indentation of a tree level, and the width kept for each of expand image, check box and image.
constexpr int kCellStep = 20;
/// Distance of the outermost tree level from the cell's left edge.
constexpr int kCellMargin = 5;
/// Side of a check box that is drawn without an image.
constexpr int kCheckBoxSide = 16;

/// What decides the layout of a cell.
struct CellTraits
{
    bool tree = false;  // the column carries the tree
    int level = 0;      // depth of the row, 0 at the top; counts on the tree column alone
    bool hasChildren = false;
    bool checkBox = false;
    bool image = false;
    bool imageSpace = false;  // the column keeps room for an image in every cell
    bool buttonShown = false;
};

/// Left edges of the parts; nothing for one that the cell doesn't have.
struct CellLayout
{
    std::optional<int> expandLeft;
    std::optional<int> checkLeft;
    std::optional<int> imageLeft;
    int textLeft = 0;
    int textRight = 0;
};

CellLayout LayoutCell(int left, int right, int height, const CellTraits& traits);

enum class CellPart
{
    ExpandImage,
    CheckBox,
    Rest
};

/// The part of a cell that lies at column `x`.
CellPart CellPartAt(const CellLayout& layout, int x);

/// Left edge of an editor on the cell. Differs from the left edge of the text on purpose: it leaves room for one image
/// on the tree column whatever is drawn there, and keeps the margin beside a check box.
int EditorLeft(int left, const CellTraits& traits);

/// How far the list must be scrolled sideways (positive: its contents move left) to show the cell: 10 pixels further
/// than needed, but exactly for column 0, which never makes the list scroll right. A cell that lies wholly beyond the
/// right edge is scrolled in like one that only hangs over it.
int ScrollToShow(int left, int right, int clientWidth, int column);

/// New width of an editor whose text is `textWidth` wide: wide enough for the text and 5 pixels, never less than
/// before, never beyond the right edge `limit` of the grid unless the editor was there already.
int GrownWidth(int left, int clientWidth, int textWidth, int limit);
