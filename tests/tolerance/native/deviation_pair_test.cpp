#include "tolerance/deviation_text.h"

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

constexpr std::int32_t kUpperMalformed = 51691;
constexpr std::int32_t kLowerMalformed = 51692;
constexpr std::int32_t kInconsistent = 51693;

struct Accepted
{
    std::string_view upper, lower;
    std::string_view normalUpper, normalLower;
};

void PrintTo(const Accepted& sample, std::ostream* out)
{
    *out << '[' << sample.upper << "] [" << sample.lower << ']';
}

class AcceptedPair : public testing::TestWithParam<Accepted>
{
};

TEST_P(AcceptedPair, ComesBackInNormalForm)
{
    DeviationPair texts{std::string(GetParam().upper), std::string(GetParam().lower)};
    EXPECT_EQ(CheckDeviations(texts), 0);
    EXPECT_EQ(texts.upper, GetParam().normalUpper);
    EXPECT_EQ(texts.lower, GetParam().normalLower);
}

INSTANTIATE_TEST_SUITE_P(
    BothGiven, AcceptedPair,
    testing::Values(Accepted{"0.1", "-0.1", "0.1", "-0.1"}, Accepted{"+0.021", "+0.008", "0.021", "0.008"},
                    Accepted{"-0.02", "-0.041", "-0.02", "-0.041"}, Accepted{" 007.50 ", " -1 ", "7.5", "-1"},
                    Accepted{"0.2", "0.1", "0.2", "0.1"}, Accepted{"-0.1", "-0.2", "-0.1", "-0.2"},
                    Accepted{"1", "-", "1", "0"}, Accepted{"+", "-1", "0", "-1"}, Accepted{"-0", "-1", "-0", "-1"},
                    Accepted{"1", "-0", "1", "-0"}, Accepted{"0.5", "0,9", "0.5", "0"},
                    Accepted{"0.000000002", "0.000000001", "0.000000002", "0.000000001"},
                    Accepted{"0.000000001", "+0", "0.000000001", "0"},
                    Accepted{"+0", "-0.000000001", "0", "-0.000000001"}));

// Lower below upper by less than the nine places: accepted, though the normal forms are equal.
INSTANTIATE_TEST_SUITE_P(NearlyEqual, AcceptedPair,
                         testing::Values(Accepted{"0.1000000001", "0.1", "0.1", "0.1"},
                                         Accepted{"-0.1", "-0.1000000001", "-0.1", "-0.1"},
                                         Accepted{"0.0000000001", "", "0", "0"},
                                         Accepted{"", "-0.0000000001", "0", "-0"}));

INSTANTIATE_TEST_SUITE_P(OneEmpty, AcceptedPair,
                         testing::Values(Accepted{"0.1", "", "0.1", "0"}, Accepted{"", "-0.1", "0", "-0.1"},
                                         Accepted{"0.1", "  ", "0.1", "0"}, Accepted{"   ", "-0.1", "0", "-0.1"}));

// A text of zeros counts as empty.
INSTANTIATE_TEST_SUITE_P(OneOfZeros, AcceptedPair,
                         testing::Values(Accepted{"0.1", "0", "0.1", "0"}, Accepted{"0.1", "000", "0.1", "0"},
                                         Accepted{"0", "-0.1", "0", "-0.1"}, Accepted{" 00 ", "-0.1", "0", "-0.1"},
                                         Accepted{"0.0", "-0.1", "0", "-0.1"}, Accepted{"0.1", "0.", "0.1", "0"}));

INSTANTIATE_TEST_SUITE_P(FromTheLibrary, AcceptedPair,
                         testing::Values(Accepted{"+0.021", "", "0.021", "0"}, Accepted{"", "-0.013", "0", "-0.013"},
                                         Accepted{"+0.0125", "-0.0125", "0.0125", "-0.0125"},
                                         Accepted{"+33", "", "33", "0"},
                                         Accepted{"-0.024", "-0.059", "-0.024", "-0.059"}));

struct Refused
{
    std::string_view upper, lower;
    std::int32_t message;
};

void PrintTo(const Refused& sample, std::ostream* out)
{
    *out << '[' << sample.upper << "] [" << sample.lower << ']';
}

class RefusedPair : public testing::TestWithParam<Refused>
{
};

TEST_P(RefusedPair, SaysWhichAndStaysUntouched)
{
    DeviationPair texts{std::string(GetParam().upper), std::string(GetParam().lower)};
    EXPECT_EQ(CheckDeviations(texts), GetParam().message);
    EXPECT_EQ(texts.upper, GetParam().upper);
    EXPECT_EQ(texts.lower, GetParam().lower);
}

INSTANTIATE_TEST_SUITE_P(BothEmpty, RefusedPair,
                         testing::Values(Refused{"", "", kInconsistent}, Refused{" ", "", kInconsistent},
                                         Refused{"", "   ", kInconsistent}, Refused{"0", "", kInconsistent},
                                         Refused{"", "0", kInconsistent}, Refused{"0", "0", kInconsistent},
                                         Refused{"000", " 0 ", kInconsistent}, Refused{"   ", "000", kInconsistent}));

INSTANTIATE_TEST_SUITE_P(BothZero, RefusedPair,
                         testing::Values(Refused{"0.0", "0.0", kInconsistent}, Refused{"+0", "-0", kInconsistent},
                                         Refused{"+", "-", kInconsistent}, Refused{"0.", ".", kInconsistent},
                                         Refused{"0,5", "0,25", kInconsistent},
                                         Refused{"0.0000000009", "0.0", kInconsistent},
                                         Refused{"0.0000000009", "-0.0000000009", kInconsistent},
                                         Refused{"+0", "-0.0000000009", kInconsistent}));

INSTANTIATE_TEST_SUITE_P(LowerNotBelowUpper, RefusedPair,
                         testing::Values(Refused{"0.1", "0.1", kInconsistent}, Refused{"0.1", "0.2", kInconsistent},
                                         Refused{"-0.1", "-0.1", kInconsistent}, Refused{"-0.2", "-0.1", kInconsistent},
                                         Refused{"-0.1", "0.1", kInconsistent}, Refused{"", "0.1", kInconsistent},
                                         Refused{"0", "0.1", kInconsistent}, Refused{"-0.1", "", kInconsistent},
                                         Refused{"-0.1", "0", kInconsistent}, Refused{"+0", "", kInconsistent},
                                         Refused{"", "-0", kInconsistent}, Refused{"-", "", kInconsistent},
                                         Refused{"0.10", "+0.1", kInconsistent},
                                         Refused{"0,5", "0.25", kInconsistent}));

INSTANTIATE_TEST_SUITE_P(Malformed, RefusedPair,
                         testing::Values(Refused{"1a", "0", kUpperMalformed}, Refused{"-.5", "-1", kUpperMalformed},
                                         Refused{"1", "1a", kLowerMalformed}, Refused{"1", "-.5", kLowerMalformed},
                                         Refused{"", "1..2", kLowerMalformed}, Refused{"x", "", kUpperMalformed},
                                         Refused{"+5e-05", "", kUpperMalformed},
                                         Refused{"", "-5e-05", kLowerMalformed}));

INSTANTIATE_TEST_SUITE_P(BothMalformed, RefusedPair,
                         testing::Values(Refused{"1a", "1a", kUpperMalformed}, Refused{"-.5", "x", kUpperMalformed}));

// The texts' form comes before their order.
INSTANTIATE_TEST_SUITE_P(MalformedAndInTheWrongOrder, RefusedPair,
                         testing::Values(Refused{"-1", "1a", kLowerMalformed}, Refused{"-1a", "1", kUpperMalformed}));

// Equality of the values decides, not of the texts: normal forms that still differ are accepted again as they are.
TEST(DeviationPair, NormalFormsThatDifferAreStable)
{
    DeviationPair texts{"+0.1234567896", "-0.0000000004"};
    ASSERT_EQ(CheckDeviations(texts), 0);
    const DeviationPair once = texts;
    ASSERT_EQ(CheckDeviations(texts), 0);
    EXPECT_EQ(texts.upper, once.upper);
    EXPECT_EQ(texts.lower, once.lower);
    EXPECT_EQ(texts.upper, "0.12345679");
    EXPECT_EQ(texts.lower, "-0");
}

TEST(DeviationPair, NormalFormsThatHaveBecomeEqualAreRefusedTheSecondTime)
{
    DeviationPair texts{"0.1000000001", "0.1"};
    ASSERT_EQ(CheckDeviations(texts), 0);
    EXPECT_EQ(CheckDeviations(texts), kInconsistent);
}

}  // namespace
