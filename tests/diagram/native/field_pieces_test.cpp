#include "diagram/field_pieces.h"

#include <gtest/gtest.h>

#include <limits>

// Width 400: centre line 200, ten pixels a unit as long as the largest deviation is 14.

namespace
{

std::vector<FieldPiece> Cut(const DiagramDeviations& deviations)
{
    return CutField(deviations, PlaceMarkers(deviations, 400));
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

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
