#include "distribution/sigma_text.h"

#include <gtest/gtest.h>

// A field of 0.2: 0.2 / 6, 0.2 / 3.4641016151 and 0.2 / 4.8989794856.
TEST(SigmaText, FollowsTheLaw)
{
    EXPECT_EQ(SigmaText(1, "0.1", "-0.1"), "0.033333333");
    EXPECT_EQ(SigmaText(2, "0.1", "-0.1"), "0.057735027");
    EXPECT_EQ(SigmaText(3, "0.1", "-0.1"), "0.040824829");
}

TEST(SigmaText, TrimsItsZeros)
{
    EXPECT_EQ(SigmaText(1, "+0.6", "0"), "0.1");
    EXPECT_EQ(SigmaText(1, "6", "-6"), "2");
}

// 3e-9 / 6 and 21e-9 / 6 lie a bit below the half that rounds up to a nanometre's share of a millimetre.
TEST(SigmaText, IsRoundedBeforeItIsWritten)
{
    EXPECT_EQ(SigmaText(1, "0.000000003", "0"), "0.000000001");
    EXPECT_EQ(SigmaText(1, "0.000000021", "0"), "0.000000004");
}

TEST(SigmaText, IsEmptyForAnyOtherLaw)
{
    for (const std::int32_t law : {0, 4, -1})
        EXPECT_EQ(SigmaText(law, "0.1", "-0.1"), "") << law;
}

TEST(SigmaText, CountsTextsThatAreNoNumbersAsZero)
{
    EXPECT_EQ(SigmaText(1, "", ""), "0");
    EXPECT_EQ(SigmaText(1, "0,6", "-0.6"), "0.1");
}

TEST(SigmaText, IsNegativeForReversedLimits)
{
    EXPECT_EQ(SigmaText(1, "-0.6", "0"), "-0.1");
}
