#include <gtest/gtest.h>

#include "tests/support/framework_printers.h"

TEST(CSize, AddsAndSubtracts)
{
    CSize size(3, 4);
    EXPECT_EQ(size + CSize(1, 2), CSize(4, 6));
    EXPECT_EQ(size - CSize(1, 2), CSize(2, 2));
    EXPECT_EQ(-size, CSize(-3, -4));
    size += CSize(1, 1);
    EXPECT_EQ(size, CSize(4, 5));
    size -= CSize(2, 2);
    EXPECT_EQ(size, CSize(2, 3));
    EXPECT_NE(size, CSize(2, 4));
    size.SetSize(9, 8);
    EXPECT_EQ(size, CSize(9, 8));
}

TEST(CPoint, MovesBySizesAndPoints)
{
    CPoint point(10, 20);
    EXPECT_EQ(point + CSize(1, 2), CPoint(11, 22));
    EXPECT_EQ(point - CSize(1, 2), CPoint(9, 18));
    EXPECT_EQ(point + CPoint(1, 2), CPoint(11, 22));
    EXPECT_EQ(-point, CPoint(-10, -20));
    point.Offset(1, -1);
    EXPECT_EQ(point, CPoint(11, 19));
    point.Offset(CSize(1, 1));
    point.Offset(CPoint(1, 1));
    EXPECT_EQ(point, CPoint(13, 21));
    point -= CPoint(3, 1);
    EXPECT_EQ(point, CPoint(10, 20));
    point -= CSize(5, 5);
    EXPECT_EQ(point, CPoint(5, 15));
}

TEST(CPoint, TheDifferenceOfTwoPointsIsASize)
{
    const CSize way = CPoint(10, 20) - CPoint(4, 30);
    EXPECT_EQ(way, CSize(6, -10));
}

TEST(CPoint, UnpacksSignedMouseCoordinates)
{
    EXPECT_EQ(CPoint(MAKELPARAM(static_cast<WORD>(-3), 200)), CPoint(-3, 200));
}

TEST(CRect, KnowsItsSizeAndCorners)
{
    const CRect rect(10, 20, 31, 60);
    EXPECT_EQ(rect.Width(), 21);
    EXPECT_EQ(rect.Height(), 40);
    EXPECT_EQ(rect.Size(), CSize(21, 40));
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    EXPECT_EQ(rect.BottomRight(), CPoint(31, 60));
    EXPECT_EQ(rect.CenterPoint(), CPoint(20, 40));  // (10 + 31) / 2 = 20.5, cut
}

TEST(CRect, IsMadeFromPointsAndSizes)
{
    EXPECT_EQ(CRect(CPoint(1, 2), CSize(3, 4)), CRect(1, 2, 4, 6));
    EXPECT_EQ(CRect(CPoint(1, 2), CPoint(3, 4)), CRect(1, 2, 3, 4));
    const RECT plain = {1, 2, 3, 4};
    EXPECT_EQ(CRect(plain), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(&plain), CRect(1, 2, 3, 4));
    CRect copied;
    copied.CopyRect(&plain);
    EXPECT_TRUE(copied == plain && plain == copied);
}

TEST(CRect, EmptyAndNullDiffer)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect().IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    EXPECT_FALSE(CRect(5, 5, 6, 9).IsRectEmpty());
}

TEST(CRect, HoldsItsLeftAndTopButNotItsRightAndBottom)
{
    const CRect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_TRUE(rect.PtInRect(CPoint(29, 39)));
    EXPECT_FALSE(rect.PtInRect(CPoint(30, 25)));
    EXPECT_FALSE(rect.PtInRect(CPoint(15, 40)));
}

TEST(CRect, InflatesOutwardsAndDeflatesInwards)
{
    CRect rect(10, 20, 30, 40);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 18, 31, 42));
    rect.DeflateRect(1, 2);
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(9, 18, 33, 44));
    rect.DeflateRect(CRect(1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    rect.InflateRect(CSize(1, 1));
    rect.DeflateRect(CSize(2, 2));
    EXPECT_EQ(rect, CRect(11, 21, 29, 39));
}

TEST(CRect, MovesWithUnchangedSize)
{
    CRect rect(10, 20, 30, 40);
    rect.OffsetRect(5, -5);
    EXPECT_EQ(rect, CRect(15, 15, 35, 35));
    rect.MoveToX(0);
    EXPECT_EQ(rect, CRect(0, 15, 20, 35));
    rect.MoveToY(1);
    EXPECT_EQ(rect, CRect(0, 1, 20, 21));
    rect.MoveToXY(3, 4);
    EXPECT_EQ(rect, CRect(3, 4, 23, 24));
    rect.MoveToXY(CPoint(7, 8));
    EXPECT_EQ(rect, CRect(7, 8, 27, 28));
    rect.OffsetRect(CPoint(1, 1));
    rect.OffsetRect(CSize(1, 1));
    EXPECT_EQ(rect, CRect(9, 10, 29, 30));
}

TEST(CRect, NormalizingExchangesSides)
{
    CRect rect(30, 40, 10, 20);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
}

TEST(CRect, CombinesWithOthers)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 20, 20);
    EXPECT_EQ(a & b, CRect(5, 5, 10, 10));
    EXPECT_EQ(a | b, CRect(0, 0, 20, 20));
    CRect apart;
    EXPECT_FALSE(apart.IntersectRect(a, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(apart.IsRectEmpty());
    CRect rest;
    EXPECT_TRUE(rest.SubtractRect(a, CRect(5, 0, 20, 10)));
    EXPECT_EQ(rest, CRect(0, 0, 5, 10));
}

TEST(CRect, OperatorsMoveByPointsAndSizesAndInflateByRects)
{
    CRect rect(10, 20, 30, 40);
    EXPECT_EQ(rect + CPoint(1, 2), CRect(11, 22, 31, 42));
    EXPECT_EQ(rect - CPoint(1, 2), CRect(9, 18, 29, 38));
    EXPECT_EQ(rect + CSize(1, 2), CRect(11, 22, 31, 42));
    EXPECT_EQ(rect - CSize(1, 2), CRect(9, 18, 29, 38));
    rect += CRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(9, 18, 33, 44));
    rect -= CRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
}

TEST(CRect, CanBePassedToWindowsAsAPointer)
{
    CRect rect(10, 20, 30, 40);
    ASSERT_TRUE(::SetRect(rect, 1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
    rect.SetRect(CPoint(5, 6), CPoint(7, 8));
    EXPECT_EQ(rect, CRect(5, 6, 7, 8));
    rect.SetRect(4, 3, 2, 1);
    EXPECT_EQ(rect, CRect(4, 3, 2, 1));
}
