#include "grid/cell_geometry.h"

#include <gtest/gtest.h>

namespace
{
// The cell of these tests: 100 to 230, 17 high.
constexpr int kLeft = 100;
constexpr int kRight = 230;
constexpr int kHeight = 17;

CellLayout Layout(const CellTraits& traits)
{
    return LayoutCell(kLeft, kRight, kHeight, traits);
}
}  // namespace

TEST(CellLayout, PlainCellGivesItsWholeWidthToTheText)
{
    const CellLayout layout = Layout({});
    EXPECT_FALSE(layout.expandLeft);
    EXPECT_FALSE(layout.checkLeft);
    EXPECT_FALSE(layout.imageLeft);
    EXPECT_EQ(layout.textLeft, 100);
    EXPECT_EQ(layout.textRight, 230);
}

TEST(CellLayout, FirstTreeLevelBeginsFivePixelsIn)
{
    EXPECT_EQ(Layout({.tree = true}).textLeft, 105);
}

// 5 + 2 levels of 20.
TEST(CellLayout, EachTreeLevelIndentsByTwentyPixels)
{
    EXPECT_EQ(Layout({.tree = true, .level = 2}).textLeft, 145);
}

TEST(CellLayout, LevelCountsOnTheTreeColumnAlone)
{
    EXPECT_EQ(Layout({.level = 2}).textLeft, 100);
}

TEST(CellLayout, ExpandImageStandsBeforeTheTextOfARowWithChildren)
{
    const CellLayout layout = Layout({.tree = true, .level = 1, .hasChildren = true});
    EXPECT_EQ(layout.expandLeft, 125);
    EXPECT_EQ(layout.textLeft, 145);
}

TEST(CellLayout, ExpandImageIsOnTheTreeColumnAlone)
{
    const CellLayout layout = Layout({.hasChildren = true});
    EXPECT_FALSE(layout.expandLeft);
    EXPECT_EQ(layout.textLeft, 100);
}

// 5, expand image 20, check box 20, image 20.
TEST(CellLayout, PartsStandInTheOrderExpandImageCheckBoxImageText)
{
    const CellLayout layout = Layout({.tree = true, .hasChildren = true, .checkBox = true, .image = true});
    EXPECT_EQ(layout.expandLeft, 105);
    EXPECT_EQ(layout.checkLeft, 125);
    EXPECT_EQ(layout.imageLeft, 145);
    EXPECT_EQ(layout.textLeft, 165);
}

TEST(CellLayout, CheckBoxOutsideTheTreeStandsAtTheLeftEdge)
{
    const CellLayout layout = Layout({.checkBox = true});
    EXPECT_EQ(layout.checkLeft, 100);
    EXPECT_EQ(layout.textLeft, 120);
}

TEST(CellLayout, ImageSpaceIsKeptInCellsWithoutAnImage)
{
    const CellLayout layout = Layout({.imageSpace = true});
    EXPECT_FALSE(layout.imageLeft);
    EXPECT_EQ(layout.textLeft, 120);
}

TEST(CellLayout, ImageInAColumnWithImageSpaceTakesOneStep)
{
    const CellLayout layout = Layout({.image = true, .imageSpace = true});
    EXPECT_EQ(layout.imageLeft, 100);
    EXPECT_EQ(layout.textLeft, 120);
}

// The button is as wide as the cell is high: 17 and 2 pixels.
TEST(CellLayout, TextStopsShortOfTheButton)
{
    EXPECT_EQ(Layout({.buttonShown = true}).textRight, 211);
}

TEST(CellPartAt, ExpandImageCoversTwentyPixels)
{
    const CellLayout layout = Layout({.tree = true, .hasChildren = true});
    EXPECT_EQ(CellPartAt(layout, 104), CellPart::Rest);
    EXPECT_EQ(CellPartAt(layout, 105), CellPart::ExpandImage);
    EXPECT_EQ(CellPartAt(layout, 124), CellPart::ExpandImage);
    EXPECT_EQ(CellPartAt(layout, 125), CellPart::Rest);
}

TEST(CellPartAt, CheckBoxCoversTwentyPixels)
{
    const CellLayout layout = Layout({.checkBox = true});
    EXPECT_EQ(CellPartAt(layout, 99), CellPart::Rest);
    EXPECT_EQ(CellPartAt(layout, 100), CellPart::CheckBox);
    EXPECT_EQ(CellPartAt(layout, 119), CellPart::CheckBox);
    EXPECT_EQ(CellPartAt(layout, 120), CellPart::Rest);
}

TEST(CellPartAt, CellWithoutPartsIsTextEverywhere)
{
    EXPECT_EQ(CellPartAt(Layout({}), 100), CellPart::Rest);
}

TEST(EditorLeft, PlainCellIsCoveredWhole)
{
    EXPECT_EQ(EditorLeft(kLeft, {}), 100);
}

// 2 levels of 20, 20 for the image's room, 5.
TEST(EditorLeft, TreeColumnLeavesIndentationAnImageAndTheMarginFree)
{
    EXPECT_EQ(EditorLeft(kLeft, {.tree = true, .level = 2}), 165);
}

TEST(EditorLeft, ExpandImageOfARowWithChildrenAddsNothing)
{
    EXPECT_EQ(EditorLeft(kLeft, {.tree = true, .hasChildren = true}), 125);
}

TEST(EditorLeft, ImageOnTheTreeColumnCountsOnce)
{
    EXPECT_EQ(EditorLeft(kLeft, {.tree = true, .image = true, .imageSpace = true}), 125);
}

TEST(EditorLeft, ImageOrItsSpaceIsLeftFree)
{
    EXPECT_EQ(EditorLeft(kLeft, {.image = true}), 120);
    EXPECT_EQ(EditorLeft(kLeft, {.imageSpace = true}), 120);
}

TEST(EditorLeft, CheckBoxIsLeftFreeWithTheMargin)
{
    EXPECT_EQ(EditorLeft(kLeft, {.checkBox = true}), 125);
}

// 20 check box, 20 tree column, one margin of 5.
TEST(EditorLeft, MarginCountsOnceForCheckBoxAndTree)
{
    EXPECT_EQ(EditorLeft(kLeft, {.tree = true, .checkBox = true}), 145);
}

TEST(ScrollToShow, CellInsideDoesNotScroll)
{
    EXPECT_EQ(ScrollToShow(0, 300, 300, 1), 0);
    EXPECT_EQ(ScrollToShow(50, 110, 300, 0), 0);
}

TEST(ScrollToShow, OverhangOnTheRightScrollsTenPixelsFurther)
{
    EXPECT_EQ(ScrollToShow(280, 340, 300, 3), 50);
}

TEST(ScrollToShow, CellWhollyBeyondTheRightEdgeScrollsIn)
{
    EXPECT_EQ(ScrollToShow(400, 460, 300, 3), 170);
}

TEST(ScrollToShow, FirstColumnNeverScrollsForItsRightEdge)
{
    EXPECT_EQ(ScrollToShow(0, 340, 300, 0), 0);
}

TEST(ScrollToShow, LeftEdgeComesTenPixelsInside)
{
    EXPECT_EQ(ScrollToShow(-40, 20, 300, 2), -50);
}

TEST(ScrollToShow, FirstColumnComesExactlyToTheEdge)
{
    EXPECT_EQ(ScrollToShow(-40, 20, 300, 0), -40);
}

TEST(ScrollToShow, CellWiderThanTheClientAreaShowsItsLeftEdge)
{
    EXPECT_EQ(ScrollToShow(-40, 500, 300, 2), -50);
}

TEST(GrownWidth, TextThatFitsLeavesTheWidth)
{
    EXPECT_EQ(GrownWidth(100, 60, 55, 400), 60);
}

TEST(GrownWidth, LongerTextWidensToItsWidthAndFivePixels)
{
    EXPECT_EQ(GrownWidth(100, 60, 56, 400), 61);
}

TEST(GrownWidth, GridsRightEdgeIsTheLimit)
{
    EXPECT_EQ(GrownWidth(100, 60, 1000, 400), 300);
}

TEST(GrownWidth, EditorBeyondTheEdgeIsNotNarrowed)
{
    EXPECT_EQ(GrownWidth(380, 60, 1000, 400), 60);
}
