#include <gtest/gtest.h>

#include "tests/support/framework_printers.h"

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
    EXPECT_EQ(rect.CenterPoint(), CPoint(20, 40));  // (10 + 31) / 2 = 20.5, cut
}

TEST(CRect, IsMadeFromPointsAndSizes)
{
    EXPECT_EQ(CRect(CPoint(1, 2), CSize(3, 4)), CRect(1, 2, 4, 6));
    EXPECT_EQ(CRect(CPoint(1, 2), CPoint(3, 4)), CRect(1, 2, 3, 4));
    const RECT plain = {1, 2, 3, 4};
    EXPECT_EQ(CRect(plain), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(&plain), CRect(1, 2, 3, 4));
    const CRect copied(plain);
    EXPECT_TRUE(copied == plain && plain == copied);
}

TEST(CRect, IsEmptyWithoutWidthOrHeight)
{
    EXPECT_TRUE(CRect().IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_TRUE(CRect(5, 9, 6, 9).IsRectEmpty());
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

TEST(CRect, DeflatesInwards)
{
    CRect rect(10, 20, 30, 40);
    rect.DeflateRect(1, 2);
    EXPECT_EQ(rect, CRect(11, 22, 29, 38));
}

TEST(CRect, CombinesWithOthers)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 20, 20);
    CRect both;
    EXPECT_TRUE(both.IntersectRect(a, b));
    EXPECT_EQ(both, CRect(5, 5, 10, 10));
    EXPECT_TRUE(both.UnionRect(a, b));
    EXPECT_EQ(both, CRect(0, 0, 20, 20));
    CRect apart;
    EXPECT_FALSE(apart.IntersectRect(a, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(apart.IsRectEmpty());
}

TEST(CRect, CanBePassedToWindowsAsAPointer)
{
    CRect rect(10, 20, 30, 40);
    ASSERT_TRUE(::SetRect(rect, 1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
}
