#include "grid/cell_geometry.h"

#include <algorithm>

namespace
{
constexpr int kButtonGap = 2;       // between the text and the button at the right end of the cell
constexpr int kScrollReserve = 10;  // a cell that was scrolled into view keeps this distance from the edge
constexpr int kCaretRoom = 5;       // an editor is at least this much wider than its text

bool Covers(std::optional<int> partLeft, int x)
{
    return partLeft && x >= *partLeft && x < *partLeft + kCellStep;
}
}  // namespace

CellLayout LayoutCell(int left, int right, int height, const CellTraits& traits)
{
    CellLayout layout;
    int x = left;
    if (traits.tree)
    {
        x += kCellMargin + kCellStep * traits.level;
        if (traits.hasChildren)
        {
            layout.expandLeft = x;
            x += kCellStep;
        }
    }
    if (traits.checkBox)
    {
        layout.checkLeft = x;
        x += kCellStep;
    }
    if (traits.image)
        layout.imageLeft = x;
    if (traits.image || traits.imageSpace)
        x += kCellStep;
    layout.textLeft = x;
    layout.textRight = traits.buttonShown ? right - (height + kButtonGap) : right;
    return layout;
}

CellPart CellPartAt(const CellLayout& layout, int x)
{
    if (Covers(layout.expandLeft, x))
        return CellPart::ExpandImage;
    if (Covers(layout.checkLeft, x))
        return CellPart::CheckBox;
    return CellPart::Rest;
}

int EditorLeft(int left, const CellTraits& traits)
{
    int x = left;
    if (traits.tree)
        x += kCellStep * traits.level;
    if (traits.checkBox)
        x += kCellStep;
    if (traits.tree || traits.image || traits.imageSpace)
        x += kCellStep;
    if (traits.tree || traits.checkBox)
        x += kCellMargin;
    return x;
}

int ScrollToShow(int left, int right, int clientWidth, int column)
{
    if (left < 0)
        return column == 0 ? left : left - kScrollReserve;
    if (right > clientWidth && column != 0)
        return right - clientWidth + kScrollReserve;
    return 0;
}

int GrownWidth(int left, int clientWidth, int textWidth, int limit)
{
    return std::max(clientWidth, std::min(textWidth + kCaretRoom, limit - left));
}
