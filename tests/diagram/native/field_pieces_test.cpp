#include "diagram/field_pieces.h"

#include <gtest/gtest.h>

#include "tests/diagram/native/diagram_cases.h"

// Width 400: centre line 200, ten pixels a unit as long as the largest deviation is 14.

namespace
{

std::vector<FieldPiece> Cut(const DiagramDeviations& deviations)
{
    return CutField(deviations, PlaceMarkers(deviations, 400));
}

}  // namespace

TEST(FieldPieces, EndAtTheRequiredLimitsThatCutThem)
{
    const auto pieces = Cut({7, -7, 14, -14});
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].leftEdge, PieceEdge::FieldEnd);
    EXPECT_EQ(pieces[0].rightEdge, PieceEdge::RequiredLower);
    EXPECT_EQ(pieces[1].leftEdge, PieceEdge::RequiredLower);
    EXPECT_EQ(pieces[1].rightEdge, PieceEdge::RequiredUpper);
    EXPECT_EQ(pieces[2].leftEdge, PieceEdge::RequiredUpper);
    EXPECT_EQ(pieces[2].rightEdge, PieceEdge::FieldEnd);
    EXPECT_FALSE(pieces[0].isInside);
    EXPECT_TRUE(pieces[1].isInside);
    EXPECT_FALSE(pieces[2].isInside);
}

TEST(FieldPieces, MeetTheirNeighboursInOneColumn)
{
    const auto pieces = Cut({7, -7, 14, -14});
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].right, pieces[1].left);
    EXPECT_EQ(pieces[1].right, pieces[2].left);
}

TEST(FieldPieces, ComputedLimitsInReversedOrderMakeTheSameField)
{
    const auto pieces = Cut({7, -14, -14, 14});
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].left, 60);
    EXPECT_TRUE(pieces[0].isInside);
    EXPECT_EQ(pieces[1].left, 270);
    EXPECT_EQ(pieces[1].right, 340);
    EXPECT_FALSE(pieces[1].isInside);
}

TEST(FieldPieces, RequiredLimitsInReversedOrderLeaveNothingInside)
{
    const auto pieces = Cut({-14, 14, 7, -7});
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_FALSE(pieces[0].isInside);
}

TEST(FieldPieces, AnInfiniteRequiredLimitHoldsEverythingOnItsSide)
{
    const auto open = Cut({kInfinity, -kInfinity, 14, -14});
    ASSERT_EQ(open.size(), 1U);
    EXPECT_TRUE(open[0].isInside);
    const auto halfOpen = Cut({kInfinity, 0, 14, -14});
    ASSERT_EQ(halfOpen.size(), 2U);
    EXPECT_FALSE(halfOpen[0].isInside);
    EXPECT_EQ(halfOpen[0].right, 200);
}

TEST(FieldPieces, AreNoneWhereADeviationIsNoNumber)
{
    EXPECT_TRUE(Cut({kNaN, -7, 14, -14}).empty());
    EXPECT_TRUE(Cut({7, kNaN, 14, -14}).empty());
    EXPECT_TRUE(Cut({7, -7, kNaN, -14}).empty());
    EXPECT_TRUE(Cut({7, -7, 14, -kInfinity}).empty());
}

TEST(FieldPieces, AreNoneForAFieldWithoutAPixel)
{
    EXPECT_TRUE(Cut({14, -14, 3, 3}).empty());
    EXPECT_TRUE(Cut({14, -14, 0.01, 0}).empty());  // a tenth of a pixel
}

// 70.1 and 70.3 pixels: required and computed limit stand in one column.
TEST(FieldPieces, AnExcessBelowOnePixelIsOnePixelWide)
{
    const auto above = Cut({7.01, -14, 7.03, -14});
    ASSERT_EQ(above.size(), 2U);
    EXPECT_TRUE(above[0].isInside);
    EXPECT_FALSE(above[1].isInside);
    EXPECT_EQ(above[1].left, 269);
    EXPECT_EQ(above[1].right, 270);
    const auto below = Cut({14, -7.01, 14, -7.03});
    ASSERT_EQ(below.size(), 2U);
    EXPECT_FALSE(below[0].isInside);
    EXPECT_EQ(below[0].left, 130);
    EXPECT_EQ(below[0].right, 131);
    EXPECT_TRUE(below[1].isInside);
    EXPECT_EQ(below[1].left, 131);
}

// The field has the one pixel from 200 to 201, and one limit within it.
TEST(FieldPieces, RedWinsOverGreenWhenThereIsNoRoomForBoth)
{
    for (const DiagramDeviations& deviations :
         {DiagramDeviations{0.05, -14, 0.1, 0}, DiagramDeviations{14, 0.05, 0.1, 0}})
    {
        const auto pieces = Cut(deviations);
        ASSERT_EQ(pieces.size(), 1U);
        EXPECT_FALSE(pieces[0].isInside);
        EXPECT_EQ(pieces[0].left, 200);
        EXPECT_EQ(pieces[0].right, 201);
    }
}

// Width 122 has one pixel for the largest deviation, from 61 to 62.
TEST(FieldPieces, OnePixelWithBothRequiredLimitsIsOnePiece)
{
    const DiagramDeviations deviations{0.08, 0.02, 0.1, 0};
    const auto pieces = CutField(deviations, PlaceMarkers(deviations, 122));
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_FALSE(pieces[0].isInside);
    EXPECT_EQ(pieces[0].left, 61);
    EXPECT_EQ(pieces[0].right, 62);
}

// The field's columns are 130 to 340, then 60 to 270; both required limits stand at the end of it.
TEST(FieldPieces, OutsidePiecesMeetWhenBothLimitsStandAtAnEndOfTheField)
{
    const auto first = Cut({-7.01, -7.02, 14, -7.03});
    ASSERT_EQ(first.size(), 2U);
    EXPECT_EQ(first[0].right, 131);
    EXPECT_EQ(first[1].left, 131);
    const auto last = Cut({7.02, 7.01, 7.03, -14});
    ASSERT_EQ(last.size(), 2U);
    EXPECT_EQ(last[0].right, 269);
    EXPECT_EQ(last[1].left, 269);
    EXPECT_FALSE(first[0].isInside || first[1].isInside || last[0].isInside || last[1].isInside);
}

TEST(FieldPieces, LimitsCloserThanANanoAreEqual)
{
    const auto equal = Cut({14 - 0.9e-9, -14, 14, -14});
    ASSERT_EQ(equal.size(), 1U);
    EXPECT_TRUE(equal[0].isInside);
}

TEST(FieldPieces, LimitsTwoNanosApartDiffer)
{
    const auto pieces = Cut({12e-9, -12e-9, 14e-9, -14e-9});
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_FALSE(pieces[0].isInside);
    EXPECT_TRUE(pieces[1].isInside);
    EXPECT_FALSE(pieces[2].isInside);
}

// Both fields are a single nano wide, as narrow as two limits that count as equal.
TEST(FieldPieces, TheNarrowestFieldEqualToTheRequiredOneIsInside)
{
    const auto pieces = Cut({1e-9, 0, 1e-9, 0});
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_TRUE(pieces[0].isInside);
}
