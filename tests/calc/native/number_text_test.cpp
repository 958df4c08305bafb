#include "calc/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <string_view>

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct NumberCase
{
    std::string text;
    double value;
};

void ExpectNumbers(std::initializer_list<NumberCase> cases)
{
    for (const NumberCase& expected : cases)
    {
        SCOPED_TRACE('"' + expected.text + '"');
        EXPECT_EQ(TextToNumber(expected.text), expected.value);
    }
}

struct CommaPoint : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// A locale with the decimal comma, for streams always and for the C functions where the system has one.
class DecimalCommaLocale
{
public:
    DecimalCommaLocale() : m_former(std::locale::global(std::locale(std::locale::classic(), new CommaPoint)))
    {
        for (const char* name : {"de_DE.UTF-8", "de_DE", "German_Germany.1252", "ru_RU.UTF-8"})
        {
            if (std::setlocale(LC_NUMERIC, name) != nullptr)
                break;
        }
    }
    ~DecimalCommaLocale()
    {
        std::locale::global(m_former);
        std::setlocale(LC_NUMERIC, "C");
    }
    DecimalCommaLocale(const DecimalCommaLocale&) = delete;
    DecimalCommaLocale& operator=(const DecimalCommaLocale&) = delete;

private:
    std::locale m_former;
};

}  // namespace

TEST(RoundToNano, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(RoundToNano(0.0000000005), 0.000000001);
    EXPECT_EQ(RoundToNano(-0.0000000005), -0.000000001);
}

TEST(RoundToNano, RoundsToTheNearestNano)
{
    EXPECT_EQ(RoundToNano(1.0000000004), 1.0);
    EXPECT_DOUBLE_EQ(RoundToNano(1.0000000006), 1.000000001);
    EXPECT_DOUBLE_EQ(RoundToNano(-12.3456789876), -12.345678988);
}

TEST(RoundToNano, KeepsTheSignOfWhatRoundsToZero)
{
    for (const double negative : {-1e-17, -0.0000000004, -0.0, -std::numeric_limits<double>::denorm_min()})
    {
        SCOPED_TRACE(negative);
        EXPECT_EQ(RoundToNano(negative), 0.0);
        EXPECT_TRUE(std::signbit(RoundToNano(negative)));
    }
    EXPECT_FALSE(std::signbit(RoundToNano(0.0)));
    EXPECT_FALSE(std::signbit(RoundToNano(1e-17)));
}

// The product by 1e-9 is part of the rule: 1 / 1e9 would give the neighbouring double for some values.
TEST(RoundToNano, MultipliesByTheRoundingStep)
{
    EXPECT_EQ(RoundToNano(0.3), 300000000.0 * 1e-9);
    EXPECT_EQ(RoundToNano(6.1), 6100000000.0 * 1e-9);
}

TEST(RoundToNano, LetsValuesWithoutANanoThrough)
{
    EXPECT_TRUE(std::isnan(RoundToNano(kNaN)));
    EXPECT_EQ(RoundToNano(kInfinity), kInfinity);
    EXPECT_EQ(RoundToNano(-kInfinity), -kInfinity);
    EXPECT_EQ(RoundToNano(-1.7e308), -kInfinity);  // the product by 1e9 overflows
}

TEST(TextToNumber, ReadsDecimalNumbers)
{
    ExpectNumbers({{"12.5", 12.5},
                   {"0", 0.0},
                   {"-3", -3.0},
                   {"+0.021", 0.021},
                   {".5", 0.5},
                   {"5.", 5.0},
                   {"-.25", -0.25},
                   {"007.50", 7.5}});
}

TEST(TextToNumber, ReadsExponents)
{
    ExpectNumbers({{"1e3", 1000.0}, {"2.5E-3", 0.0025}, {"1e+2", 100.0}, {".5e1", 5.0}});
}

TEST(TextToNumber, LeavesAnIncompleteExponentOut)
{
    ExpectNumbers({{"1e", 1.0}, {"1e+", 1.0}, {"2.5E-x", 2.5}, {"3 e5", 3.0}});
}

TEST(TextToNumber, StopsAtTheFirstCharacterThatDoesNotBelong)
{
    ExpectNumbers({{"12,5", 12.0}, {"1.2.3", 1.2}, {"10mm", 10.0}, {"1 000", 1.0}, {"5-3", 5.0}, {"1d5", 1.0}});
    EXPECT_EQ(TextToNumber(std::string("1\0"
                                       "5",
                                       3)),
              1.0);
}

TEST(TextToNumber, ReadsNoFartherThanTheTextReaches)
{
    EXPECT_EQ(TextToNumber(std::string_view("12.75").substr(0, 4)), 12.7);
    EXPECT_EQ(TextToNumber(std::string_view("1e5").substr(0, 2)), 1.0);
}

TEST(TextToNumber, GivesZeroWithoutALeadingNumber)
{
    ExpectNumbers({{"", 0.0},
                   {"abc", 0.0},
                   {".", 0.0},
                   {"-", 0.0},
                   {"+-5", 0.0},
                   {"--5", 0.0},
                   {"e5", 0.0},
                   {",5", 0.0},
                   {"- 5", 0.0},
                   {"   ", 0.0}});
}

TEST(TextToNumber, SkipsLeadingWhiteSpace)
{
    ExpectNumbers({{"  12.5", 12.5}, {"\t\n\v\f\r -1", -1.0}});
}

TEST(TextToNumber, KnowsNoHexadecimalNumbersNorNamesOfValues)
{
    ExpectNumbers({{"0x10", 0.0}, {"0x1p3", 0.0}, {"inf", 0.0}, {"-infinity", 0.0}, {"nan", 0.0}, {"NAN(1)", 0.0}});
}

TEST(TextToNumber, KeepsTheSignOfZero)
{
    EXPECT_TRUE(std::signbit(TextToNumber("-0")));
    EXPECT_TRUE(std::signbit(TextToNumber("-0.000")));
    EXPECT_FALSE(std::signbit(TextToNumber("0")));
    EXPECT_FALSE(std::signbit(TextToNumber("-")));
}

TEST(TextToNumber, IsInfiniteWhenTheNumberIsTooLarge)
{
    const std::string manyDigits(400, '9');
    ExpectNumbers({{"1e999", kInfinity},
                   {"-1e999", -kInfinity},
                   {manyDigits, kInfinity},
                   {"0.001e400", kInfinity},
                   {"1e" + manyDigits, kInfinity},
                   {manyDigits + "e10", kInfinity},
                   {manyDigits + "e-50", kInfinity}});
}

TEST(TextToNumber, IsZeroWithItsSignWhenTheNumberIsTooSmall)
{
    const std::string manyZeros(400, '0');
    ExpectNumbers({{"1e-999", 0.0},
                   {"0." + manyZeros + "1", 0.0},
                   {"0." + manyZeros + "1e50", 0.0},
                   {"12345e-999", 0.0},
                   {"0e999", 0.0}});
    EXPECT_TRUE(std::signbit(TextToNumber("-1e-999")));
}

TEST(TextToNumber, ReadsTheNearestDouble)
{
    ExpectNumbers({{"0.1", 0.1},
                   {"0.30000000000000004", 0.30000000000000004},
                   {"1e22", 1e22},
                   {"5e-324", 5e-324},
                   {"1.7976931348623157e308", 1.7976931348623157e308}});
}

TEST(NumberText9, TrimsZerosAndThePoint)
{
    EXPECT_EQ(NumberText9(12.5), "12.5");
    EXPECT_EQ(NumberText9(10.0), "10");
    EXPECT_EQ(NumberText9(0.0), "0");
    EXPECT_EQ(NumberText9(100.0), "100");
    EXPECT_EQ(NumberText9(-0.15), "-0.15");
    EXPECT_EQ(NumberText9(0.000000001), "0.000000001");
    EXPECT_EQ(NumberText9(1234567.000000001), "1234567.000000001");
}

TEST(NumberText9, KeepsTheSignOfZero)
{
    EXPECT_EQ(NumberText9(-0.0), "-0");
    EXPECT_EQ(NumberText9(-1e-17), "-0");
}

// 0.0000000005 is stored a little above the half, 2^-10 is exactly 0.0009765625.
TEST(NumberText9, RoundsTheExactBinaryValueHalvesToEven)
{
    EXPECT_EQ(NumberText9(0.0000000005), "0.000000001");
    EXPECT_EQ(NumberText9(0.0009765625), "0.000976562");
    EXPECT_EQ(NumberText9(3 * 0.0009765625), "0.002929688");
}

TEST(NumberText9, WritesHugeValuesInFull)
{
    EXPECT_EQ(NumberText9(1e22), "10000000000000000000000");
    const std::string largest = NumberText9(std::numeric_limits<double>::lowest());
    EXPECT_EQ(largest.size(), 310U);  // a sign and 309 digits
    EXPECT_EQ(largest.substr(0, 18), "-17976931348623157");
}

TEST(NumberText9, NamesWhatIsNoNumber)
{
    EXPECT_EQ(NumberText9(kNaN), "nan");
    EXPECT_EQ(NumberText9(-kNaN), "nan");
    EXPECT_EQ(NumberText9(std::copysign(kNaN, -1.0)), "nan");
    EXPECT_EQ(NumberText9(kInfinity), "inf");
    EXPECT_EQ(NumberText9(-kInfinity), "-inf");
}

TEST(NumberText4, HasFourDecimalPlaces)
{
    EXPECT_EQ(NumberText4(6.071824599), "6.0718");
    EXPECT_EQ(NumberText4(5.878175401), "5.8782");
    EXPECT_EQ(NumberText4(6.07), "6.07");
    EXPECT_EQ(NumberText4(6.00001), "6");
    EXPECT_EQ(NumberText4(-0.00001), "-0");
    EXPECT_EQ(NumberText4(0.03125), "0.0312");  // exactly half: to even
    EXPECT_EQ(NumberText4(std::copysign(kNaN, -1.0)), "nan");
}

TEST(NumberTexts, DoNotFollowTheLocale)
{
    const DecimalCommaLocale locale;
    EXPECT_EQ(NumberText9(1234567.5), "1234567.5");
    EXPECT_EQ(NumberText4(0.25), "0.25");
    EXPECT_EQ(TextToNumber("12.5"), 12.5);
    EXPECT_EQ(TextToNumber("12,5"), 12.0);
}
