#include "host/player/measure.h"

#include <stdexcept>

#include <gtest/gtest.h>

TEST(Measure, ANumberIsItself)
{
    EXPECT_EQ(Measure::Parse("17").Of(100, 50), 17);
    EXPECT_EQ(Measure::Parse("-17").Of(100, 50), -17);
}

TEST(Measure, LettersStandForWidthAndHeight)
{
    EXPECT_EQ(Measure::Parse("w").Of(100, 50), 100);
    EXPECT_EQ(Measure::Parse("h").Of(100, 50), 50);
    EXPECT_EQ(Measure::Parse("-w").Of(100, 50), -100);
}

// 100 / 2 + 60 and 50 - 20.
TEST(Measure, TermsAreJoinedFromTheLeft)
{
    EXPECT_EQ(Measure::Parse("w/2+60").Of(100, 50), 110);
    EXPECT_EQ(Measure::Parse("h-20").Of(100, 50), 30);
    EXPECT_EQ(Measure::Parse("w-h-1").Of(100, 50), 49);
}

// 10 + (100 * 3) / 4; 60 - (100 / 4).
TEST(Measure, ProductsBindStrongerThanSums)
{
    EXPECT_EQ(Measure::Parse("10+w*3/4").Of(100, 50), 85);
    EXPECT_EQ(Measure::Parse("60-w/4").Of(100, 50), 35);
}

TEST(Measure, DivisionDropsTheRemainder)
{
    EXPECT_EQ(Measure::Parse("w/2").Of(101, 50), 50);
    EXPECT_EQ(Measure::Parse("w/h").Of(100, 0), 0);
}

TEST(Measure, AStarIsAny)
{
    EXPECT_TRUE(Measure::Parse("*").IsAny());
    EXPECT_FALSE(Measure::Parse("0").IsAny());
}

TEST(Measure, WhatIsNoPlaceIsRefused)
{
    for (const char* text : {"", "x", "w/", "/2", "w//2", "2w", "w+-1", "1.5", "1234567", "w 2", "+", "-"})
    {
        SCOPED_TRACE(text);
        EXPECT_THROW(Measure::Parse(text), std::invalid_argument);
    }
}
