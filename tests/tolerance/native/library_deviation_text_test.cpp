#include "tolerance/deviation_text.h"

#include <limits>
#include <ostream>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

struct LibraryCase
{
    float micrometres;
    std::string_view text;
};

void PrintTo(const LibraryCase& sample, std::ostream* out)
{
    *out << sample.micrometres;
}

class LibraryDeviation : public testing::TestWithParam<LibraryCase>
{
};

TEST_P(LibraryDeviation, ShowsAsMillimetresWithThreeDigits)
{
    EXPECT_EQ(LibraryDeviationText(GetParam().micrometres), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Usual, LibraryDeviation,
                         testing::Values(LibraryCase{21, "+0.021"}, LibraryCase{-13, "-0.013"},
                                         LibraryCase{12.5F, "+0.0125"}, LibraryCase{-12.5F, "-0.0125"},
                                         LibraryCase{-3, "-0.003"}, LibraryCase{7.5F, "+0.0075"},
                                         LibraryCase{0.5F, "+0.0005"}, LibraryCase{0.3F, "+0.0003"},
                                         LibraryCase{0.15F, "+0.00015"}, LibraryCase{100, "+0.1"},
                                         LibraryCase{250, "+0.25"}, LibraryCase{-1000, "-1"},
                                         LibraryCase{999, "+0.999"}, LibraryCase{33000, "+33"},
                                         LibraryCase{13500, "+13.5"}, LibraryCase{0.1F, "+0.0001"}));

INSTANTIATE_TEST_SUITE_P(Rounded, LibraryDeviation,
                         testing::Values(LibraryCase{1234, "+1.23"}, LibraryCase{-1236, "-1.24"},
                                         LibraryCase{12345, "+12.3"}, LibraryCase{999.6F, "+1"},
                                         LibraryCase{99.96F, "+0.1"}));

// 31.25 gives exactly 0.03125: a tie, which goes to the even digit.
INSTANTIATE_TEST_SUITE_P(Tie, LibraryDeviation,
                         testing::Values(LibraryCase{31.25F, "+0.0312"}, LibraryCase{-31.25F, "-0.0312"}));

// 104.5 * 0.001 is 0.104500003... in single precision, 0.10449999... in double; 128.5 the other way round:
// 0.128499999... against 0.1285000...
INSTANTIATE_TEST_SUITE_P(SinglePrecisionProduct, LibraryDeviation,
                         testing::Values(LibraryCase{104.5F, "+0.105"}, LibraryCase{-104.5F, "-0.105"},
                                         LibraryCase{120.5F, "+0.121"}, LibraryCase{144.5F, "+0.145"},
                                         LibraryCase{128.5F, "+0.128"}, LibraryCase{-128.5F, "-0.128"}));

INSTANTIATE_TEST_SUITE_P(ExponentForm, LibraryDeviation,
                         testing::Values(LibraryCase{0.05F, "+5e-05"}, LibraryCase{-0.05F, "-5e-05"},
                                         LibraryCase{0.0999F, "+9.99e-05"}, LibraryCase{999500, "+1e+03"},
                                         LibraryCase{1e6F, "+1e+03"}, LibraryCase{-1e7F, "-1e+04"},
                                         LibraryCase{1e38F, "+1e+35"}));

INSTANTIATE_TEST_SUITE_P(Nothing, LibraryDeviation, testing::Values(LibraryCase{0.0F, ""}, LibraryCase{-0.0F, ""}));

// Only a deviation of exactly 0 is empty; one whose product vanishes is not.
INSTANTIATE_TEST_SUITE_P(VanishingProduct, LibraryDeviation,
                         testing::Values(LibraryCase{std::numeric_limits<float>::denorm_min(), "+0"},
                                         LibraryCase{-std::numeric_limits<float>::denorm_min(), "-0"}));

INSTANTIATE_TEST_SUITE_P(NoNumber, LibraryDeviation,
                         testing::Values(LibraryCase{std::numeric_limits<float>::infinity(), "+inf"},
                                         LibraryCase{-std::numeric_limits<float>::infinity(), "-inf"},
                                         LibraryCase{std::numeric_limits<float>::quiet_NaN(), "+nan"},
                                         LibraryCase{-std::numeric_limits<float>::quiet_NaN(), "+nan"}));

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
