#include "tolerance/deviation_text.h"

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view kRefused = "refused";

struct Case
{
    std::string_view typed;
    std::string_view normal;  // or kRefused
};

void PrintTo(const Case& sample, std::ostream* out)
{
    *out << '[' << sample.typed << ']';
}

class TypedDeviationText : public testing::TestWithParam<Case>
{
};

TEST_P(TypedDeviationText, AsUpperDeviation)
{
    DeviationPair texts{std::string(GetParam().typed), "-999999"};
    const std::int32_t result = CheckDeviations(texts);
    if (GetParam().normal == kRefused)
    {
        EXPECT_EQ(result, 51691);
        EXPECT_EQ(texts.upper, GetParam().typed);
        EXPECT_EQ(texts.lower, "-999999");
    }
    else
    {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(texts.upper, GetParam().normal);
        EXPECT_EQ(texts.lower, "-999999");
    }
}

TEST_P(TypedDeviationText, AsLowerDeviation)
{
    DeviationPair texts{"999999", std::string(GetParam().typed)};
    const std::int32_t result = CheckDeviations(texts);
    if (GetParam().normal == kRefused)
    {
        EXPECT_EQ(result, 51692);
        EXPECT_EQ(texts.upper, "999999");
        EXPECT_EQ(texts.lower, GetParam().typed);
    }
    else
    {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(texts.upper, "999999");
        EXPECT_EQ(texts.lower, GetParam().normal);
    }
}

INSTANTIATE_TEST_SUITE_P(WholeNumbers, TypedDeviationText,
                         testing::Values(Case{"1", "1"}, Case{"2", "2"}, Case{"3", "3"}, Case{"4", "4"}, Case{"5", "5"},
                                         Case{"6", "6"}, Case{"7", "7"}, Case{"8", "8"}, Case{"9", "9"},
                                         Case{"10", "10"}, Case{"100", "100"}, Case{"1000", "1000"}, Case{"101", "101"},
                                         Case{"120", "120"}, Case{"987654", "987654"}, Case{"+1", "1"},
                                         Case{"+10", "10"}, Case{"+200", "200"}, Case{"-1", "-1"}, Case{"-10", "-10"},
                                         Case{"-200", "-200"}, Case{"-987654", "-987654"}, Case{"1.", "1"},
                                         Case{"10.", "10"}, Case{"-1.", "-1"}, Case{"+1.", "1"}, Case{"10.0", "10"},
                                         Case{"10.00", "10"}, Case{"-10.000", "-10"}, Case{"20.", "20"}));

INSTANTIATE_TEST_SUITE_P(
    Fractions, TypedDeviationText,
    testing::Values(Case{"0.1", "0.1"}, Case{"0.2", "0.2"}, Case{"0.3", "0.3"}, Case{"0.25", "0.25"},
                    Case{"0.021", "0.021"}, Case{"0.0125", "0.0125"}, Case{"0.0005", "0.0005"},
                    Case{"0.000000001", "0.000000001"}, Case{"0.123456789", "0.123456789"}, Case{"1.5", "1.5"},
                    Case{"1.50", "1.5"}, Case{"1.500000000000", "1.5"}, Case{"7.5", "7.5"}, Case{"12.75", "12.75"},
                    Case{"100.001", "100.001"}, Case{"+0.1", "0.1"}, Case{"+0.021", "0.021"}, Case{"+1.5", "1.5"},
                    Case{"-0.1", "-0.1"}, Case{"-0.5", "-0.5"}, Case{"-0.021", "-0.021"}, Case{"-1.5", "-1.5"},
                    Case{"-0.000000001", "-0.000000001"}, Case{"-12.750", "-12.75"}, Case{"+0.0125", "0.0125"},
                    Case{"-0.003", "-0.003"}, Case{"+1.23", "1.23"}, Case{"999998.999999999", "999998.999999999"},
                    Case{"-999998.999999999", "-999998.999999999"}));

// The tenth decimal place decides, 5 goes away from zero.
INSTANTIATE_TEST_SUITE_P(Rounding, TypedDeviationText,
                         testing::Values(Case{"0.1234567891", "0.123456789"}, Case{"0.1234567894999", "0.123456789"},
                                         Case{"0.1234567896", "0.12345679"}, Case{"0.1234567899", "0.12345679"},
                                         Case{"0.00000000051", "0.000000001"}, Case{"0.0000000006", "0.000000001"},
                                         Case{"0.0000000005", "0.000000001"}, Case{"0.0000000025", "0.000000003"},
                                         Case{"0.00000000049", "0"}, Case{"0.0000000004", "0"},
                                         Case{"0.00000000000000000001", "0"}, Case{"-0.1234567891", "-0.123456789"},
                                         Case{"-0.1234567896", "-0.12345679"}, Case{"-0.0000000006", "-0.000000001"},
                                         Case{"-0.0000000005", "-0.000000001"}, Case{"-0.0000000025", "-0.000000003"},
                                         Case{"0.9999999999", "1"}, Case{"-0.9999999999", "-1"},
                                         Case{"9.9999999996", "10"}, Case{"0.99999999949", "0.999999999"},
                                         Case{"1.0000000004", "1"}, Case{"1.0000000006", "1.000000001"},
                                         Case{"999.9999999996", "1000"}));

// A minus stays with what is left of a negative number, also when nothing is left.
INSTANTIATE_TEST_SUITE_P(NegativeZero, TypedDeviationText,
                         testing::Values(Case{"-0", "-0"}, Case{"-00", "-0"}, Case{"-0.0", "-0"}, Case{"-0.", "-0"},
                                         Case{"-0,0", "-0"}, Case{"-0.0000000004", "-0"},
                                         Case{"-0.00000000000000000001", "-0"}, Case{"+0", "0"}, Case{"+0.0", "0"},
                                         Case{"+00", "0"}, Case{"+0.", "0"}));

INSTANTIATE_TEST_SUITE_P(
    SpacesAndLeadingZeros, TypedDeviationText,
    testing::Values(Case{"", "0"}, Case{" ", "0"}, Case{"     ", "0"}, Case{"0", "0"}, Case{"00", "0"},
                    Case{"000", "0"}, Case{" 0", "0"}, Case{"0 ", "0"}, Case{"  000  ", "0"}, Case{" 007.50 ", "7.5"},
                    Case{"007.50", "7.5"}, Case{"  1", "1"}, Case{"1  ", "1"}, Case{" 1 ", "1"}, Case{"01", "1"},
                    Case{"0001", "1"}, Case{"00.5", "0.5"}, Case{"000.050", "0.05"}, Case{" 0.5", "0.5"},
                    Case{"0.5 ", "0.5"}, Case{" -0.5 ", "-0.5"}, Case{" +0.5 ", "0.5"}, Case{"-007", "-7"},
                    Case{"+007", "7"}, Case{"-000.5", "-0.5"}, Case{"0.", "0"}, Case{"00.", "0"}, Case{"0.0", "0"},
                    Case{"0.000", "0"}, Case{"0,", "0"}, Case{"0,0", "0"}, Case{"000001000", "1000"}));

// Zeros go before the sign is looked at.
INSTANTIATE_TEST_SUITE_P(ZerosBeforeASign, TypedDeviationText,
                         testing::Values(Case{"0-5", "-5"}, Case{"0+5", "5"}, Case{"00-0.5", "-0.5"},
                                         Case{"000+1.25", "1.25"}, Case{"0-", "0"}, Case{"0+", "0"}, Case{"0-0", "-0"},
                                         Case{"0+.5", "0.5"}, Case{"0-.5", kRefused}, Case{"0--5", kRefused},
                                         Case{"0-5-", kRefused}, Case{"-0-5", kRefused}, Case{"1-5", kRefused}));

// Without a comma locale the comma ends the number.
INSTANTIATE_TEST_SUITE_P(Commas, TypedDeviationText,
                         testing::Values(Case{"0,5", "0"}, Case{",5", "0"}, Case{",", "0"}, Case{"1,5", "1"},
                                         Case{"12,75", "12"}, Case{"-1,5", "-1"}, Case{"-0,5", "-0"}, Case{"+1,5", "1"},
                                         Case{"+,5", "0"}, Case{"+0,5", "0"}, Case{"1,", "1"}, Case{"10,", "10"},
                                         Case{"007,5", "7"}, Case{"-,5", kRefused}));

INSTANTIATE_TEST_SUITE_P(PointFirst, TypedDeviationText,
                         testing::Values(Case{".5", "0.5"}, Case{".25", "0.25"}, Case{".0", "0"}, Case{".", "0"},
                                         Case{".000000001", "0.000000001"}, Case{"0.5", "0.5"}, Case{" .5 ", "0.5"},
                                         Case{".50", "0.5"}, Case{"..5", kRefused}, Case{"...", kRefused},
                                         Case{"..", kRefused}, Case{".,", kRefused}, Case{",.", kRefused},
                                         Case{".5.", kRefused}, Case{".5,", kRefused}, Case{".,5", kRefused},
                                         Case{",.5", kRefused}, Case{".-5", kRefused}, Case{".+5", kRefused},
                                         Case{".5-", kRefused}, Case{".a", kRefused}, Case{".5a", kRefused},
                                         Case{".5e1", kRefused}, Case{". 5", kRefused}, Case{".5 5", kRefused}));

// A plus before the point is dropped, and the digits behind are checked from one place further on. So a second point or
// comma may follow the first: it ends the number at once.
INSTANTIATE_TEST_SUITE_P(PlusBeforeThePoint, TypedDeviationText,
                         testing::Values(Case{"+.5", "0.5"}, Case{"+.25", "0.25"}, Case{"+.0", "0"}, Case{"+.", "0"},
                                         Case{"+,", "0"}, Case{"+.123456789", "0.123456789"}, Case{"+..5", "0"},
                                         Case{"+..", "0"}, Case{"+.,", "0"}, Case{"+.,5", "0"}, Case{"+,.5", "0"},
                                         Case{"+,.", "0"}, Case{"+,,5", "0"}, Case{"+.5.", "0.5"}, Case{"+.5,", "0.5"},
                                         Case{"+,5.", "0"}, Case{"+.55.", kRefused}, Case{"+.5.5", "0.5"},
                                         Case{"+..55", "0"}, Case{"+...5", kRefused}, Case{"+...", kRefused},
                                         Case{"+..5.", kRefused}, Case{"+.a", kRefused}, Case{"+.5a", kRefused},
                                         Case{"+.55a", kRefused}, Case{"+.-5", kRefused}, Case{"+.+5", kRefused},
                                         Case{"+.5e1", kRefused}, Case{"+. 5", kRefused}));

// A minus directly before the point is refused whatever follows, though -0.5 is accepted.
INSTANTIATE_TEST_SUITE_P(MinusBeforeThePoint, TypedDeviationText,
                         testing::Values(Case{"-.5", kRefused}, Case{"-,5", kRefused}, Case{"-.", kRefused},
                                         Case{"-,", kRefused}, Case{"-.0", kRefused}, Case{"-.25", kRefused},
                                         Case{"-.000", kRefused}, Case{"-..5", kRefused}, Case{" -.5 ", kRefused},
                                         Case{"-.5a", kRefused}, Case{"-0.5", "-0.5"}, Case{"-00.5", "-0.5"}));

INSTANTIATE_TEST_SUITE_P(Signs, TypedDeviationText,
                         testing::Values(Case{"-", "0"}, Case{"+", "0"}, Case{" - ", "0"}, Case{" + ", "0"},
                                         Case{"+-5", kRefused}, Case{"-+5", kRefused}, Case{"--5", kRefused},
                                         Case{"++5", kRefused}, Case{"--", kRefused}, Case{"++", kRefused},
                                         Case{"+-", kRefused}, Case{"-+", kRefused}, Case{"5-", kRefused},
                                         Case{"5+", kRefused}, Case{"1-2", kRefused}, Case{"1+2", kRefused},
                                         Case{"- 5", kRefused}, Case{"+ 5", kRefused}, Case{"-5-", kRefused},
                                         Case{"+5+", kRefused}, Case{"1.-5", kRefused}, Case{"1.+5", kRefused},
                                         Case{"\xE2\x88\x92\x35", kRefused}));  // U+2212 is no minus here

INSTANTIATE_TEST_SUITE_P(SecondPoints, TypedDeviationText,
                         testing::Values(Case{"1..2", kRefused}, Case{"1.2,3", kRefused}, Case{"1,2.3", kRefused},
                                         Case{"1,2,3", kRefused}, Case{"1.2.3", kRefused}, Case{"1..", kRefused},
                                         Case{"1.,", kRefused}, Case{"1,,", kRefused}, Case{"-1..2", kRefused},
                                         Case{"-1.2.3", kRefused}, Case{"+1..2", kRefused}, Case{"+1.2,3", kRefused},
                                         Case{"0..5", kRefused}, Case{"00.5.", kRefused}, Case{"-0.5.", kRefused},
                                         Case{"+0.5,", kRefused}, Case{"1.2.", kRefused}, Case{"12.34.56", kRefused},
                                         Case{"0,1.2", kRefused}, Case{"1.000,5", kRefused},
                                         Case{"1,000.5", kRefused}));

INSTANTIATE_TEST_SUITE_P(
    Letters, TypedDeviationText,
    testing::Values(Case{"a", kRefused}, Case{"abc", kRefused}, Case{"1a", kRefused}, Case{"a1", kRefused},
                    Case{"1a2", kRefused}, Case{"-a", kRefused}, Case{"+a", kRefused}, Case{"-1a", kRefused},
                    Case{"+1a", kRefused}, Case{"0a", kRefused}, Case{"0x10", kRefused}, Case{"0X1", kRefused},
                    Case{"x", kRefused}, Case{"inf", kRefused}, Case{"-inf", kRefused}, Case{"+inf", kRefused},
                    Case{"nan", kRefused}, Case{"+nan", kRefused}, Case{"NAN", kRefused}, Case{"1mm", kRefused},
                    Case{"0.5mm", kRefused}, Case{"0.5 mm", kRefused}, Case{"H7", kRefused}, Case{"1O", kRefused},
                    Case{"l", kRefused}, Case{"%", kRefused}, Case{"+.3g", kRefused}, Case{"%+.3g", kRefused},
                    Case{"1_000", kRefused}, Case{"1'000", kRefused}, Case{"\xC2\xB1\x31", kRefused},
                    Case{"\xD9\xA1", kRefused}, Case{"\xEF\xBC\x91", kRefused}, Case{"\xFF", kRefused},
                    Case{"1\xFF", kRefused}));

INSTANTIATE_TEST_SUITE_P(ExponentForms, TypedDeviationText,
                         testing::Values(Case{"+5e-05", kRefused}, Case{"5e-05", kRefused}, Case{"-5e-05", kRefused},
                                         Case{"1e3", kRefused}, Case{"1E3", kRefused}, Case{"1.5e1", kRefused},
                                         Case{"-1e0", kRefused}, Case{"+1e+03", kRefused}, Case{"1e", kRefused},
                                         Case{"e1", kRefused}, Case{"1d3", kRefused}));

using namespace std::string_view_literals;

// Only blanks are trimmed, and only at the ends.
INSTANTIATE_TEST_SUITE_P(OtherWhiteSpaceAndControls, TypedDeviationText,
                         testing::Values(Case{"\t1", kRefused}, Case{"1\t", kRefused}, Case{"\n", kRefused},
                                         Case{"1\n", kRefused}, Case{"1\r\n", kRefused}, Case{"1 2", kRefused},
                                         Case{"0 1", kRefused}, Case{"0 0", kRefused}, Case{"1 .5", kRefused},
                                         Case{"\xC2\xA0\x31", kRefused}, Case{"1\xC2\xA0", kRefused},
                                         Case{"\0"sv, kRefused}, Case{"1\0"sv, kRefused}, Case{"\0001"sv, kRefused},
                                         Case{"1\0002"sv, kRefused}, Case{"-\0"sv, kRefused}, Case{".\0"sv, kRefused},
                                         Case{"+.\0"sv, kRefused}));

TEST(TypedDeviation, NoOtherSingleByteIsADeviation)
{
    int accepted = 0;
    for (int byte = 0; byte < 256; ++byte)
    {
        const std::string text(1, static_cast<char>(byte));
        DeviationPair texts{text, "-999999"};
        const bool allowed = std::string_view(" .,+-0123456789").find(text) != std::string_view::npos;
        EXPECT_EQ(CheckDeviations(texts), allowed ? 0 : 51691) << "byte " << byte;
        accepted += allowed ? 1 : 0;
    }
    EXPECT_EQ(accepted, 15);
}

TEST(TypedDeviation, NoOtherByteMayFollowADigit)
{
    for (const char* const before : {"1", "-1", "+1", "1.5", "0.5", "-0.5"})
    {
        for (int byte = 0; byte < 256; ++byte)
        {
            const std::string text = before + std::string(1, static_cast<char>(byte)) + "2";
            const bool isDigit = byte >= '0' && byte <= '9';
            const bool isFirstPoint =
                (byte == '.' || byte == ',') && std::string_view(before).find('.') == std::string_view::npos;
            DeviationPair texts{text, "-999999"};
            EXPECT_EQ(CheckDeviations(texts), isDigit || isFirstPoint ? 0 : 51691) << before << ", byte " << byte;
        }
    }
}

TEST(TypedDeviation, LongTextsKeepTheirNineDecimalPlaces)
{
    DeviationPair texts{std::string(5000, '0') + "0.25" + std::string(5000, '0'), "-1" + std::string(300, '0')};
    EXPECT_EQ(CheckDeviations(texts), 0);
    EXPECT_EQ(texts.upper, "0.25");
    EXPECT_EQ(texts.lower.size(), 302U);
}

// 2^53 + 1 has no double; whole numbers below come back digit for digit, however large.
TEST(TypedDeviation, LargeWholeNumbersKeepTheirDigits)
{
    for (const char* const number : {"4194303", "4194304", "5000001", "123456789", "123456789012", "9007199254740992"})
    {
        DeviationPair texts{number, "0"};
        EXPECT_EQ(CheckDeviations(texts), 0) << number;
        EXPECT_EQ(texts.upper, number);
    }
}

TEST(TypedDeviation, NumberThatNoDoubleHoldsIsMalformed)
{
    const std::string tooLarge(400, '9');
    DeviationPair upper{tooLarge, "1"};
    EXPECT_EQ(CheckDeviations(upper), 51691);
    EXPECT_EQ(upper.upper, tooLarge);
    DeviationPair lower{"1", "-" + tooLarge};
    EXPECT_EQ(CheckDeviations(lower), 51692);
    EXPECT_EQ(lower.lower, "-" + tooLarge);
}

}  // namespace
