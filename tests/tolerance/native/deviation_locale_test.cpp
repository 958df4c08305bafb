#include "tests/tolerance/native/comma_locale.h"
#include "tolerance/deviation_text.h"

#include <clocale>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace
{

class DeviationUnderCommaLocale : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!m_locale.IsActive())
            GTEST_SKIP() << "this system has no locale with a decimal comma";
    }

    ScopedCommaLocale m_locale;
};

// -999999 is below everything that is typed here.
std::string Normal(const char* typed)
{
    DeviationPair texts{typed, "-999999"};
    const std::int32_t result = CheckDeviations(texts);
    return result == 0 ? texts.upper : std::to_string(result);
}

TEST(DeviationUnderDefaultLocale, CommaEndsTheNumber)
{
    ASSERT_STREQ(std::localeconv()->decimal_point, ".");
    EXPECT_EQ(Normal("1,5"), "1");
    EXPECT_EQ(Normal("0,5"), "0");
}

TEST_F(DeviationUnderCommaLocale, CommaIsThePoint)
{
    EXPECT_EQ(Normal("0,5"), "0.5");
    EXPECT_EQ(Normal(",5"), "0.5");
    EXPECT_EQ(Normal("+,5"), "0.5");
    EXPECT_EQ(Normal("1,25"), "1.25");
    EXPECT_EQ(Normal("-0,5"), "-0.5");
    EXPECT_EQ(Normal("007,50"), "7.5");
}

TEST_F(DeviationUnderCommaLocale, PointStaysAPoint)
{
    EXPECT_EQ(Normal("0.5"), "0.5");
    EXPECT_EQ(Normal(".5"), "0.5");
    EXPECT_EQ(Normal("+.5"), "0.5");
    EXPECT_EQ(Normal("-0.5"), "-0.5");
}

TEST_F(DeviationUnderCommaLocale, ChecksAreTheSame)
{
    EXPECT_EQ(Normal("-,5"), "51691");
    EXPECT_EQ(Normal("-.5"), "51691");
    EXPECT_EQ(Normal("1,2,3"), "51691");
    EXPECT_EQ(Normal("1.2,3"), "51691");
    EXPECT_EQ(Normal("+..5"), "0");
    EXPECT_EQ(Normal("+,.5"), "0");
    EXPECT_EQ(Normal("+,5."), "0.5");
}

TEST_F(DeviationUnderCommaLocale, PairIsComparedByTheseValues)
{
    DeviationPair accepted{"0,5", "0,25"};
    EXPECT_EQ(CheckDeviations(accepted), 0);
    EXPECT_EQ(accepted.upper, "0.5");
    EXPECT_EQ(accepted.lower, "0.25");
    DeviationPair refused{"0,25", "0,5"};
    EXPECT_EQ(CheckDeviations(refused), 51693);
}

TEST_F(DeviationUnderCommaLocale, NormalFormIsAcceptedAgain)
{
    DeviationPair texts{"1,5", "-1,5"};
    ASSERT_EQ(CheckDeviations(texts), 0);
    ASSERT_EQ(CheckDeviations(texts), 0);
    EXPECT_EQ(texts.upper, "1.5");
    EXPECT_EQ(texts.lower, "-1.5");
}

TEST_F(DeviationUnderCommaLocale, LibraryTextKeepsThePoint)
{
    EXPECT_EQ(LibraryDeviationText(12.5F), "+0.0125");
    EXPECT_EQ(LibraryDeviationText(-3), "-0.003");
    EXPECT_EQ(LibraryDeviationText(0.05F), "+5e-05");
}

}  // namespace
