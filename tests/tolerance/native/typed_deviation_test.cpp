#include "tolerance/deviation_text.h"

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view kRefused = "refused";

struct TypedCase
{
    std::string_view typed;
    std::string_view normal;  // or kRefused
};

void PrintTo(const TypedCase& sample, std::ostream* out)
{
    *out << '[' << sample.typed << ']';
}

class TypedDeviationText : public testing::TestWithParam<TypedCase>
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
                         testing::Values(TypedCase{"1", "1"}, TypedCase{"2", "2"}, TypedCase{"3", "3"},
                                         TypedCase{"4", "4"}, TypedCase{"5", "5"}, TypedCase{"6", "6"},
                                         TypedCase{"7", "7"}, TypedCase{"8", "8"}, TypedCase{"9", "9"},
                                         TypedCase{"10", "10"}, TypedCase{"100", "100"}, TypedCase{"1000", "1000"},
                                         TypedCase{"101", "101"}, TypedCase{"120", "120"},
                                         TypedCase{"987654", "987654"}, TypedCase{"+1", "1"}, TypedCase{"+10", "10"},
                                         TypedCase{"+200", "200"}, TypedCase{"-1", "-1"}, TypedCase{"-10", "-10"},
                                         TypedCase{"-200", "-200"}, TypedCase{"-987654", "-987654"},
                                         TypedCase{"1.", "1"}, TypedCase{"10.", "10"}, TypedCase{"-1.", "-1"},
                                         TypedCase{"+1.", "1"}, TypedCase{"10.0", "10"}, TypedCase{"10.00", "10"},
                                         TypedCase{"-10.000", "-10"}, TypedCase{"20.", "20"}));

INSTANTIATE_TEST_SUITE_P(
    Fractions, TypedDeviationText,
    testing::Values(TypedCase{"0.1", "0.1"}, TypedCase{"0.2", "0.2"}, TypedCase{"0.3", "0.3"},
                    TypedCase{"0.25", "0.25"}, TypedCase{"0.021", "0.021"}, TypedCase{"0.0125", "0.0125"},
                    TypedCase{"0.0005", "0.0005"}, TypedCase{"0.000000001", "0.000000001"},
                    TypedCase{"0.123456789", "0.123456789"}, TypedCase{"1.5", "1.5"}, TypedCase{"1.50", "1.5"},
                    TypedCase{"1.500000000000", "1.5"}, TypedCase{"7.5", "7.5"}, TypedCase{"12.75", "12.75"},
                    TypedCase{"100.001", "100.001"}, TypedCase{"+0.1", "0.1"}, TypedCase{"+0.021", "0.021"},
                    TypedCase{"+1.5", "1.5"}, TypedCase{"-0.1", "-0.1"}, TypedCase{"-0.5", "-0.5"},
                    TypedCase{"-0.021", "-0.021"}, TypedCase{"-1.5", "-1.5"}, TypedCase{"-0.000000001", "-0.000000001"},
                    TypedCase{"-12.750", "-12.75"}, TypedCase{"+0.0125", "0.0125"}, TypedCase{"-0.003", "-0.003"},
                    TypedCase{"+1.23", "1.23"}, TypedCase{"999998.999999999", "999998.999999999"},
                    TypedCase{"-999998.999999999", "-999998.999999999"}));

// The tenth decimal place decides, 5 goes away from zero.
INSTANTIATE_TEST_SUITE_P(
    Rounding, TypedDeviationText,
    testing::Values(TypedCase{"0.1234567891", "0.123456789"}, TypedCase{"0.1234567894999", "0.123456789"},
                    TypedCase{"0.1234567896", "0.12345679"}, TypedCase{"0.1234567899", "0.12345679"},
                    TypedCase{"0.00000000051", "0.000000001"}, TypedCase{"0.0000000006", "0.000000001"},
                    TypedCase{"0.0000000005", "0.000000001"}, TypedCase{"0.0000000025", "0.000000003"},
                    TypedCase{"0.00000000049", "0"}, TypedCase{"0.0000000004", "0"},
                    TypedCase{"0.00000000000000000001", "0"}, TypedCase{"-0.1234567891", "-0.123456789"},
                    TypedCase{"-0.1234567896", "-0.12345679"}, TypedCase{"-0.0000000006", "-0.000000001"},
                    TypedCase{"-0.0000000005", "-0.000000001"}, TypedCase{"-0.0000000025", "-0.000000003"},
                    TypedCase{"0.9999999999", "1"}, TypedCase{"-0.9999999999", "-1"}, TypedCase{"9.9999999996", "10"},
                    TypedCase{"0.99999999949", "0.999999999"}, TypedCase{"1.0000000004", "1"},
                    TypedCase{"1.0000000006", "1.000000001"}, TypedCase{"999.9999999996", "1000"}));

// A minus stays with what is left of a negative number, also when nothing is left.
INSTANTIATE_TEST_SUITE_P(NegativeZero, TypedDeviationText,
                         testing::Values(TypedCase{"-0", "-0"}, TypedCase{"-00", "-0"}, TypedCase{"-0.0", "-0"},
                                         TypedCase{"-0.", "-0"}, TypedCase{"-0,0", "-0"},
                                         TypedCase{"-0.0000000004", "-0"}, TypedCase{"-0.00000000000000000001", "-0"},
                                         TypedCase{"+0", "0"}, TypedCase{"+0.0", "0"}, TypedCase{"+00", "0"},
                                         TypedCase{"+0.", "0"}));

INSTANTIATE_TEST_SUITE_P(SpacesAndLeadingZeros, TypedDeviationText,
                         testing::Values(TypedCase{"", "0"}, TypedCase{" ", "0"}, TypedCase{"     ", "0"},
                                         TypedCase{"0", "0"}, TypedCase{"00", "0"}, TypedCase{"000", "0"},
                                         TypedCase{" 0", "0"}, TypedCase{"0 ", "0"}, TypedCase{"  000  ", "0"},
                                         TypedCase{" 007.50 ", "7.5"}, TypedCase{"007.50", "7.5"},
                                         TypedCase{"  1", "1"}, TypedCase{"1  ", "1"}, TypedCase{" 1 ", "1"},
                                         TypedCase{"01", "1"}, TypedCase{"0001", "1"}, TypedCase{"00.5", "0.5"},
                                         TypedCase{"000.050", "0.05"}, TypedCase{" 0.5", "0.5"},
                                         TypedCase{"0.5 ", "0.5"}, TypedCase{" -0.5 ", "-0.5"},
                                         TypedCase{" +0.5 ", "0.5"}, TypedCase{"-007", "-7"}, TypedCase{"+007", "7"},
                                         TypedCase{"-000.5", "-0.5"}, TypedCase{"0.", "0"}, TypedCase{"00.", "0"},
                                         TypedCase{"0.0", "0"}, TypedCase{"0.000", "0"}, TypedCase{"0,", "0"},
                                         TypedCase{"0,0", "0"}, TypedCase{"000001000", "1000"}));

// Zeros go before the sign is looked at.
INSTANTIATE_TEST_SUITE_P(ZerosBeforeASign, TypedDeviationText,
                         testing::Values(TypedCase{"0-5", "-5"}, TypedCase{"0+5", "5"}, TypedCase{"00-0.5", "-0.5"},
                                         TypedCase{"000+1.25", "1.25"}, TypedCase{"0-", "0"}, TypedCase{"0+", "0"},
                                         TypedCase{"0-0", "-0"}, TypedCase{"0+.5", "0.5"}, TypedCase{"0-.5", kRefused},
                                         TypedCase{"0--5", kRefused}, TypedCase{"0-5-", kRefused},
                                         TypedCase{"-0-5", kRefused}, TypedCase{"1-5", kRefused}));

// Without a comma locale the comma ends the number.
INSTANTIATE_TEST_SUITE_P(Commas, TypedDeviationText,
                         testing::Values(TypedCase{"0,5", "0"}, TypedCase{",5", "0"}, TypedCase{",", "0"},
                                         TypedCase{"1,5", "1"}, TypedCase{"12,75", "12"}, TypedCase{"-1,5", "-1"},
                                         TypedCase{"-0,5", "-0"}, TypedCase{"+1,5", "1"}, TypedCase{"+,5", "0"},
                                         TypedCase{"+0,5", "0"}, TypedCase{"1,", "1"}, TypedCase{"10,", "10"},
                                         TypedCase{"007,5", "7"}, TypedCase{"-,5", kRefused}));

INSTANTIATE_TEST_SUITE_P(
    PointFirst, TypedDeviationText,
    testing::Values(TypedCase{".5", "0.5"}, TypedCase{".25", "0.25"}, TypedCase{".0", "0"}, TypedCase{".", "0"},
                    TypedCase{".000000001", "0.000000001"}, TypedCase{"0.5", "0.5"}, TypedCase{" .5 ", "0.5"},
                    TypedCase{".50", "0.5"}, TypedCase{"..5", kRefused}, TypedCase{"...", kRefused},
                    TypedCase{"..", kRefused}, TypedCase{".,", kRefused}, TypedCase{",.", kRefused},
                    TypedCase{".5.", kRefused}, TypedCase{".5,", kRefused}, TypedCase{".,5", kRefused},
                    TypedCase{",.5", kRefused}, TypedCase{".-5", kRefused}, TypedCase{".+5", kRefused},
                    TypedCase{".5-", kRefused}, TypedCase{".a", kRefused}, TypedCase{".5a", kRefused},
                    TypedCase{".5e1", kRefused}, TypedCase{". 5", kRefused}, TypedCase{".5 5", kRefused}));

// A plus before the point is dropped, and the digits behind are checked from one place further on. So a second point or
// comma may follow the first: it ends the number at once.
INSTANTIATE_TEST_SUITE_P(
    PlusBeforeThePoint, TypedDeviationText,
    testing::Values(TypedCase{"+.5", "0.5"}, TypedCase{"+.25", "0.25"}, TypedCase{"+.0", "0"}, TypedCase{"+.", "0"},
                    TypedCase{"+,", "0"}, TypedCase{"+.123456789", "0.123456789"}, TypedCase{"+..5", "0"},
                    TypedCase{"+..", "0"}, TypedCase{"+.,", "0"}, TypedCase{"+.,5", "0"}, TypedCase{"+,.5", "0"},
                    TypedCase{"+,.", "0"}, TypedCase{"+,,5", "0"}, TypedCase{"+.5.", "0.5"}, TypedCase{"+.5,", "0.5"},
                    TypedCase{"+,5.", "0"}, TypedCase{"+.55.", kRefused}, TypedCase{"+.5.5", "0.5"},
                    TypedCase{"+..55", "0"}, TypedCase{"+...5", kRefused}, TypedCase{"+...", kRefused},
                    TypedCase{"+..5.", kRefused}, TypedCase{"+.a", kRefused}, TypedCase{"+.5a", kRefused},
                    TypedCase{"+.55a", kRefused}, TypedCase{"+.-5", kRefused}, TypedCase{"+.+5", kRefused},
                    TypedCase{"+.5e1", kRefused}, TypedCase{"+. 5", kRefused}));

// A minus directly before the point is refused whatever follows, though -0.5 is accepted.
INSTANTIATE_TEST_SUITE_P(MinusBeforeThePoint, TypedDeviationText,
                         testing::Values(TypedCase{"-.5", kRefused}, TypedCase{"-,5", kRefused},
                                         TypedCase{"-.", kRefused}, TypedCase{"-,", kRefused},
                                         TypedCase{"-.0", kRefused}, TypedCase{"-.25", kRefused},
                                         TypedCase{"-.000", kRefused}, TypedCase{"-..5", kRefused},
                                         TypedCase{" -.5 ", kRefused}, TypedCase{"-.5a", kRefused},
                                         TypedCase{"-0.5", "-0.5"}, TypedCase{"-00.5", "-0.5"}));

INSTANTIATE_TEST_SUITE_P(
    Signs, TypedDeviationText,
    testing::Values(TypedCase{"-", "0"}, TypedCase{"+", "0"}, TypedCase{" - ", "0"}, TypedCase{" + ", "0"},
                    TypedCase{"+-5", kRefused}, TypedCase{"-+5", kRefused}, TypedCase{"--5", kRefused},
                    TypedCase{"++5", kRefused}, TypedCase{"--", kRefused}, TypedCase{"++", kRefused},
                    TypedCase{"+-", kRefused}, TypedCase{"-+", kRefused}, TypedCase{"5-", kRefused},
                    TypedCase{"5+", kRefused}, TypedCase{"1-2", kRefused}, TypedCase{"1+2", kRefused},
                    TypedCase{"- 5", kRefused}, TypedCase{"+ 5", kRefused}, TypedCase{"-5-", kRefused},
                    TypedCase{"+5+", kRefused}, TypedCase{"1.-5", kRefused}, TypedCase{"1.+5", kRefused},
                    TypedCase{"\xE2\x88\x92\x35", kRefused}));  // U+2212 is no minus here

INSTANTIATE_TEST_SUITE_P(
    SecondPoints, TypedDeviationText,
    testing::Values(TypedCase{"1..2", kRefused}, TypedCase{"1.2,3", kRefused}, TypedCase{"1,2.3", kRefused},
                    TypedCase{"1,2,3", kRefused}, TypedCase{"1.2.3", kRefused}, TypedCase{"1..", kRefused},
                    TypedCase{"1.,", kRefused}, TypedCase{"1,,", kRefused}, TypedCase{"-1..2", kRefused},
                    TypedCase{"-1.2.3", kRefused}, TypedCase{"+1..2", kRefused}, TypedCase{"+1.2,3", kRefused},
                    TypedCase{"0..5", kRefused}, TypedCase{"00.5.", kRefused}, TypedCase{"-0.5.", kRefused},
                    TypedCase{"+0.5,", kRefused}, TypedCase{"1.2.", kRefused}, TypedCase{"12.34.56", kRefused},
                    TypedCase{"0,1.2", kRefused}, TypedCase{"1.000,5", kRefused}, TypedCase{"1,000.5", kRefused}));

INSTANTIATE_TEST_SUITE_P(
    Letters, TypedDeviationText,
    testing::Values(TypedCase{"a", kRefused}, TypedCase{"abc", kRefused}, TypedCase{"1a", kRefused},
                    TypedCase{"a1", kRefused}, TypedCase{"1a2", kRefused}, TypedCase{"-a", kRefused},
                    TypedCase{"+a", kRefused}, TypedCase{"-1a", kRefused}, TypedCase{"+1a", kRefused},
                    TypedCase{"0a", kRefused}, TypedCase{"0x10", kRefused}, TypedCase{"0X1", kRefused},
                    TypedCase{"x", kRefused}, TypedCase{"inf", kRefused}, TypedCase{"-inf", kRefused},
                    TypedCase{"+inf", kRefused}, TypedCase{"nan", kRefused}, TypedCase{"+nan", kRefused},
                    TypedCase{"NAN", kRefused}, TypedCase{"1mm", kRefused}, TypedCase{"0.5mm", kRefused},
                    TypedCase{"0.5 mm", kRefused}, TypedCase{"H7", kRefused}, TypedCase{"1O", kRefused},
                    TypedCase{"l", kRefused}, TypedCase{"%", kRefused}, TypedCase{"+.3g", kRefused},
                    TypedCase{"%+.3g", kRefused}, TypedCase{"1_000", kRefused}, TypedCase{"1'000", kRefused},
                    TypedCase{"\xC2\xB1\x31", kRefused}, TypedCase{"\xD9\xA1", kRefused},
                    TypedCase{"\xEF\xBC\x91", kRefused}, TypedCase{"\xFF", kRefused}, TypedCase{"1\xFF", kRefused}));

INSTANTIATE_TEST_SUITE_P(ExponentForms, TypedDeviationText,
                         testing::Values(TypedCase{"+5e-05", kRefused}, TypedCase{"5e-05", kRefused},
                                         TypedCase{"-5e-05", kRefused}, TypedCase{"1e3", kRefused},
                                         TypedCase{"1E3", kRefused}, TypedCase{"1.5e1", kRefused},
                                         TypedCase{"-1e0", kRefused}, TypedCase{"+1e+03", kRefused},
                                         TypedCase{"1e", kRefused}, TypedCase{"e1", kRefused},
                                         TypedCase{"1d3", kRefused}));

using namespace std::string_view_literals;

// Only blanks are trimmed, and only at the ends.
INSTANTIATE_TEST_SUITE_P(
    OtherWhiteSpaceAndControls, TypedDeviationText,
    testing::Values(TypedCase{"\t1", kRefused}, TypedCase{"1\t", kRefused}, TypedCase{"\n", kRefused},
                    TypedCase{"1\n", kRefused}, TypedCase{"1\r\n", kRefused}, TypedCase{"1 2", kRefused},
                    TypedCase{"0 1", kRefused}, TypedCase{"0 0", kRefused}, TypedCase{"1 .5", kRefused},
                    TypedCase{"\xC2\xA0\x31", kRefused}, TypedCase{"1\xC2\xA0", kRefused}, TypedCase{"\0"sv, kRefused},
                    TypedCase{"1\0"sv, kRefused}, TypedCase{"\0001"sv, kRefused}, TypedCase{"1\0002"sv, kRefused},
                    TypedCase{"-\0"sv, kRefused}, TypedCase{".\0"sv, kRefused}, TypedCase{"+.\0"sv, kRefused}));

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
