#include "tolerance/deviation_text.h"

#include <limits>
#include <ostream>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

struct Case
{
    float micrometres;
    std::string_view text;
};

void PrintTo(const Case& sample, std::ostream* out)
{
    *out << sample.micrometres;
}

class LibraryDeviation : public testing::TestWithParam<Case>
{
};

TEST_P(LibraryDeviation, ShowsAsMillimetresWithThreeDigits)
{
    EXPECT_EQ(LibraryDeviationText(GetParam().micrometres), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Usual, LibraryDeviation,
                         testing::Values(Case{21, "+0.021"}, Case{-13, "-0.013"}, Case{12.5F, "+0.0125"},
                                         Case{-12.5F, "-0.0125"}, Case{-3, "-0.003"}, Case{7.5F, "+0.0075"},
                                         Case{0.5F, "+0.0005"}, Case{0.3F, "+0.0003"}, Case{0.15F, "+0.00015"},
                                         Case{100, "+0.1"}, Case{250, "+0.25"}, Case{-1000, "-1"}, Case{999, "+0.999"},
                                         Case{33000, "+33"}, Case{13500, "+13.5"}, Case{0.1F, "+0.0001"}));

INSTANTIATE_TEST_SUITE_P(Rounded, LibraryDeviation,
                         testing::Values(Case{1234, "+1.23"}, Case{-1236, "-1.24"}, Case{12345, "+12.3"},
                                         Case{999.6F, "+1"}, Case{99.96F, "+0.1"}));

// 31.25 gives exactly 0.03125: a tie, which goes to the even digit.
INSTANTIATE_TEST_SUITE_P(Tie, LibraryDeviation, testing::Values(Case{31.25F, "+0.0312"}, Case{-31.25F, "-0.0312"}));

// 104.5 * 0.001 is 0.104500003... in single precision, 0.10449999... in double; 128.5 the other way round:
// 0.128499999... against 0.1285000...
INSTANTIATE_TEST_SUITE_P(SinglePrecisionProduct, LibraryDeviation,
                         testing::Values(Case{104.5F, "+0.105"}, Case{-104.5F, "-0.105"}, Case{120.5F, "+0.121"},
                                         Case{144.5F, "+0.145"}, Case{128.5F, "+0.128"}, Case{-128.5F, "-0.128"}));

INSTANTIATE_TEST_SUITE_P(ExponentForm, LibraryDeviation,
                         testing::Values(Case{0.05F, "+5e-05"}, Case{-0.05F, "-5e-05"}, Case{0.0999F, "+9.99e-05"},
                                         Case{999500, "+1e+03"}, Case{1e6F, "+1e+03"}, Case{-1e7F, "-1e+04"},
                                         Case{1e38F, "+1e+35"}));

INSTANTIATE_TEST_SUITE_P(Nothing, LibraryDeviation, testing::Values(Case{0.0F, ""}, Case{-0.0F, ""}));

// Only a deviation of exactly 0 is empty; one whose product vanishes is not.
INSTANTIATE_TEST_SUITE_P(VanishingProduct, LibraryDeviation,
                         testing::Values(Case{std::numeric_limits<float>::denorm_min(), "+0"},
                                         Case{-std::numeric_limits<float>::denorm_min(), "-0"}));

INSTANTIATE_TEST_SUITE_P(NoNumber, LibraryDeviation,
                         testing::Values(Case{std::numeric_limits<float>::infinity(), "+inf"},
                                         Case{-std::numeric_limits<float>::infinity(), "-inf"},
                                         Case{std::numeric_limits<float>::quiet_NaN(), "+nan"},
                                         Case{-std::numeric_limits<float>::quiet_NaN(), "+nan"}));

TEST(LibraryDeviationText, IsAcceptedAndKeptWhenThePairIsConfirmed)
{
    DeviationPair texts{LibraryDeviationText(12.5F), LibraryDeviationText(-3)};
    EXPECT_EQ(CheckDeviations(texts), 0);
    EXPECT_EQ(texts.upper, "0.0125");
    EXPECT_EQ(texts.lower, "-0.003");
}

TEST(LibraryDeviationText, InExponentFormIsRefusedWhenThePairIsConfirmed)
{
    DeviationPair upper{LibraryDeviationText(0.05F), LibraryDeviationText(-3)};
    EXPECT_EQ(CheckDeviations(upper), 51691);
    DeviationPair lower{LibraryDeviationText(12.5F), LibraryDeviationText(-0.05F)};
    EXPECT_EQ(CheckDeviations(lower), 51692);
}

}  // namespace
