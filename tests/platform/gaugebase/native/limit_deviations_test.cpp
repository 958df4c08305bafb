#include "platform/gaugebase/limit_deviations.h"

#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

struct Case
{
    float nominal;
    std::string_view code;
    float upper, lower;
};

void PrintTo(const Case& sample, std::ostream* out)
{
    *out << sample.nominal << ' ' << sample.code;
}

class PublishedLimit : public testing::TestWithParam<Case>
{
};

// Limits as the tables of ISO 286-2 print them, micrometres.
TEST_P(PublishedLimit, IsFound)
{
    const auto& [nominal, code, upper, lower] = GetParam();
    const auto limits = iso286::FindLimitDeviations(nominal, code);
    ASSERT_TRUE(limits.has_value());
    EXPECT_EQ(limits->upper, upper);
    EXPECT_EQ(limits->lower, lower);
}

INSTANTIATE_TEST_SUITE_P(Holes, PublishedLimit,
                         testing::Values(Case{5, "A11", 345, 270}, Case{10, "B11", 240, 150}, Case{60, "C11", 330, 140},
                                         Case{8, "CD9", 92, 56}, Case{40, "D10", 180, 80}, Case{80, "E9", 134, 60},
                                         Case{8, "EF8", 40, 18}, Case{18, "F7", 34, 16}, Case{30, "F8", 53, 20},
                                         Case{8, "FG6", 17, 8}, Case{6, "G6", 12, 4}, Case{12, "G7", 24, 6},
                                         Case{20, "H7", 21, 0}, Case{25, "H8", 33, 0}, Case{50, "H9", 62, 0},
                                         Case{100, "H11", 220, 0}, Case{500, "H6", 40, 0}, Case{2500, "H7", 175, 0},
                                         Case{3150, "H18", 33000, 0}, Case{40, "JS6", 8, -8},
                                         Case{50, "JS7", 12.5F, -12.5F}, Case{10, "J6", 5, -4}, Case{30, "J6", 8, -5},
                                         Case{3, "J7", 4, -6}, Case{30, "J7", 12, -9}, Case{50, "J7", 14, -11},
                                         Case{30, "J8", 20, -13}));

// With the addend of fine grades: 100 P7 is -37 + 13 = -24; M6 over 250 to 315 mm is -9 and not -20 + 9 = -11.
INSTANTIATE_TEST_SUITE_P(HolesWithDelta, PublishedLimit,
                         testing::Values(Case{3, "K7", 0, -10}, Case{10, "K7", 5, -10}, Case{30, "K6", 2, -11},
                                         Case{30, "K7", 6, -15}, Case{30, "K8", 10, -23}, Case{50, "K7", 7, -18},
                                         Case{120, "K7", 10, -25}, Case{3, "M7", -2, -12}, Case{30, "M6", -4, -17},
                                         Case{30, "M7", 0, -21}, Case{30, "M8", 4, -29}, Case{50, "M7", 0, -25},
                                         Case{50, "M8", 5, -34}, Case{120, "M6", -6, -28}, Case{250, "M6", -8, -37},
                                         Case{251, "M6", -9, -41}, Case{300, "M6", -9, -41}, Case{315, "M6", -9, -41},
                                         Case{316, "M6", -10, -46}, Case{300, "M5", -13, -36}, Case{300, "M7", 0, -52},
                                         Case{30, "M9", -8, -60}, Case{3, "N7", -4, -14}, Case{10, "N7", -4, -19},
                                         Case{30, "N7", -7, -28}, Case{50, "N6", -12, -28}, Case{50, "N7", -8, -33},
                                         Case{120, "N8", -4, -58}, Case{30, "N9", 0, -52}, Case{3, "N9", -4, -29},
                                         Case{3, "P7", -6, -16}, Case{30, "P7", -14, -35}, Case{50, "P6", -21, -37},
                                         Case{50, "P7", -17, -42}, Case{100, "P7", -24, -59}, Case{30, "P8", -22, -55},
                                         Case{30, "P9", -22, -74}, Case{30, "R7", -20, -41}, Case{50, "R7", -25, -50},
                                         Case{65, "R7", -30, -60}, Case{80, "R7", -32, -62}, Case{30, "S7", -27, -48},
                                         Case{50, "S7", -34, -59}, Case{65, "S7", -42, -72}, Case{30, "T7", -33, -54},
                                         Case{24, "U7", -33, -54}, Case{30, "U7", -40, -61}, Case{50, "U7", -61, -86},
                                         Case{30, "X7", -56, -77}, Case{10, "Z7", -36, -51}, Case{10, "ZC8", -97, -119},
                                         Case{600, "K7", 0, -70}, Case{600, "M7", -26, -96}, Case{600, "N7", -44, -114},
                                         Case{600, "P7", -78, -148}));

INSTANTIATE_TEST_SUITE_P(
    Shafts, PublishedLimit,
    testing::Values(Case{5, "a11", -270, -345}, Case{10, "b11", -150, -240}, Case{60, "c11", -140, -330},
                    Case{8, "cd9", -56, -92}, Case{60, "d9", -100, -174}, Case{40, "e8", -50, -89},
                    Case{8, "ef8", -18, -40}, Case{25, "f7", -20, -41}, Case{8, "fg6", -8, -17},
                    Case{20, "g6", -7, -20}, Case{20, "h6", 0, -13}, Case{2500, "h7", 0, -175},
                    Case{1, "h01", 0, -0.3F}, Case{8, "js7", 7.5F, -7.5F}, Case{400, "js8", 44.5F, -44.5F},
                    Case{1, "js01", 0.15F, -0.15F}, Case{20, "j5", 5, -4}, Case{20, "j6", 9, -4},
                    Case{20, "j7", 13, -8}, Case{2, "j8", 8, -6}, Case{30, "k3", 4, 0}, Case{30, "k4", 8, 2},
                    Case{20, "k5", 11, 2}, Case{50, "k6", 18, 2}, Case{30, "k7", 23, 2}, Case{30, "k8", 33, 0},
                    Case{600, "k6", 44, 0}, Case{30, "m6", 21, 8}, Case{30, "n6", 28, 15}, Case{50, "p6", 42, 26},
                    Case{50, "r6", 50, 34}, Case{65, "s6", 72, 53}, Case{2000, "s7", 1070, 920}, Case{80, "t6", 94, 75},
                    Case{30, "u6", 61, 48}, Case{18, "v6", 50, 39}, Case{30, "x6", 77, 64}, Case{24, "y6", 76, 63},
                    Case{30, "z6", 101, 88}, Case{8, "za7", 67, 52}, Case{8, "zb8", 89, 67}, Case{3, "zc9", 85, 60}));

// A step ends with its upper size: the border 3 belongs to "up to 3", the next float to "over 3 to 6".
INSTANTIATE_TEST_SUITE_P(SizeBorders, PublishedLimit,
                         testing::Values(Case{3, "H7", 10, 0}, Case{std::nextafter(3.0F, 4.0F), "H7", 12, 0},
                                         Case{18, "H7", 18, 0}, Case{std::nextafter(18.0F, 19.0F), "H7", 21, 0},
                                         Case{1, "H13", 140, 0}, Case{std::nextafter(1.0F, 2.0F), "H14", 250, 0},
                                         Case{500, "H7", 63, 0}, Case{std::nextafter(500.0F, 501.0F), "H7", 70, 0},
                                         Case{3150, "H7", 210, 0},
                                         Case{std::numeric_limits<float>::denorm_min(), "H7", 10, 0}));

struct UnknownCase
{
    float nominal;
    std::string_view code;
};

void PrintTo(const UnknownCase& sample, std::ostream* out)
{
    *out << sample.nominal << " [" << sample.code << ']';
}

class UnknownLimit : public testing::TestWithParam<UnknownCase>
{
};

TEST_P(UnknownLimit, IsNotFound)
{
    EXPECT_FALSE(iso286::FindLimitDeviations(GetParam().nominal, GetParam().code).has_value());
}

INSTANTIATE_TEST_SUITE_P(
    NotInTheStandard, UnknownLimit,
    testing::Values(UnknownCase{1, "A11"}, UnknownCase{1, "B11"}, UnknownCase{0.5F, "a9"}, UnknownCase{1, "b9"},
                    UnknownCase{1, "N9"}, UnknownCase{1, "H14"}, UnknownCase{1, "js18"}, UnknownCase{50.5F, "cd9"},
                    UnknownCase{51, "EF8"}, UnknownCase{51, "FG6"}, UnknownCase{501, "C11"}, UnknownCase{501, "c11"},
                    UnknownCase{501, "H01"}, UnknownCase{501, "h0"}, UnknownCase{501, "js0"}, UnknownCase{501, "j6"},
                    UnknownCase{501, "J7"}, UnknownCase{501, "v6"}, UnknownCase{501, "ZC8"}, UnknownCase{10, "j4"},
                    UnknownCase{10, "j8"}, UnknownCase{10, "j9"}, UnknownCase{10, "J5"}, UnknownCase{10, "J9"},
                    UnknownCase{10, "K9"}, UnknownCase{600, "K9"}, UnknownCase{10, "K2"}, UnknownCase{10, "M2"},
                    UnknownCase{10, "N01"}, UnknownCase{10, "P2"}, UnknownCase{24, "t6"}, UnknownCase{24, "T7"},
                    UnknownCase{14, "v6"}, UnknownCase{18, "y6"}, UnknownCase{18, "Y7"}));

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

INSTANTIATE_TEST_SUITE_P(SizesOutsideTheTables, UnknownLimit,
                         testing::Values(UnknownCase{0, "H7"}, UnknownCase{-0.0F, "H7"}, UnknownCase{-20, "H7"},
                                         UnknownCase{std::nextafter(3150.0F, 4000.0F), "H7"}, UnknownCase{1e30F, "H7"},
                                         UnknownCase{kInfinity, "H7"}, UnknownCase{-kInfinity, "H7"},
                                         UnknownCase{kNan, "H7"}, UnknownCase{kNan, "js7"}));

using namespace std::string_view_literals;

INSTANTIATE_TEST_SUITE_P(
    MalformedCodes, UnknownLimit,
    testing::Values(UnknownCase{20, ""}, UnknownCase{20, "H"}, UnknownCase{20, "7"}, UnknownCase{20, "H07"},
                    UnknownCase{20, "H00"}, UnknownCase{20, "H001"}, UnknownCase{20, "H19"}, UnknownCase{20, "H70"},
                    UnknownCase{20, "H-1"}, UnknownCase{20, "H+7"}, UnknownCase{20, "H7.0"}, UnknownCase{20, "H1e1"},
                    UnknownCase{20, " H7"}, UnknownCase{20, "H7 "}, UnknownCase{20, "H 7"}, UnknownCase{20, "H7\n"},
                    UnknownCase{20, "H\t7"}, UnknownCase{20, "HH7"}, UnknownCase{20, "Hh7"}, UnknownCase{20, "7H"},
                    UnknownCase{20, "Js7"}, UnknownCase{20, "jS7"}, UnknownCase{20, "Cd9"}, UnknownCase{20, "H7/p6"},
                    UnknownCase{20, "H7p6"}, UnknownCase{20, "H7H7"}, UnknownCase{20, "I7"}, UnknownCase{20, "i7"},
                    UnknownCase{20, "L7"}, UnknownCase{20, "O7"}, UnknownCase{20, "Q7"}, UnknownCase{20, "W7"},
                    UnknownCase{20, "ZD7"}, UnknownCase{20, "zcc7"}, UnknownCase{20, "\xD0\x9D\x37"},
                    UnknownCase{20, "H7\0"sv}, UnknownCase{20, "\0H7"sv}, UnknownCase{20, "H\xFF"}));

TEST(LimitDeviations, OverLongCodeIsUnknown)
{
    EXPECT_FALSE(iso286::FindLimitDeviations(20, "H" + std::string(100000, '7')).has_value());
    EXPECT_FALSE(iso286::FindLimitDeviations(20, std::string(100000, 'H') + "7").has_value());
}

}  // namespace
