#include "platform/gaugebase/hole_delta.h"
#include "platform/gaugebase/hole_deviations.h"
#include "platform/gaugebase/shaft_deviations.h"
#include "platform/gaugebase/standard_tolerances.h"
#include "platform/gaugebase/tolerance_classes.h"

#include <array>
#include <cctype>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// Rules by which the standard builds its tables: a misprint in one table breaks one of them.
namespace
{

// Upper ends of all size steps, and the sizes up to which the footnotes and columns change.
constexpr std::array kSizes = {1.0F,    3.0F,    6.0F,    10.0F,   14.0F,   18.0F,  24.0F,  30.0F,  40.0F,
                               50.0F,   65.0F,   80.0F,   100.0F,  120.0F,  140.0F, 160.0F, 180.0F, 200.0F,
                               225.0F,  250.0F,  280.0F,  315.0F,  355.0F,  400.0F, 450.0F, 500.0F, 560.0F,
                               630.0F,  710.0F,  800.0F,  900.0F,  1e3F,    1120.F, 1250.F, 1400.F, 1600.0F,
                               1800.0F, 2000.0F, 2240.0F, 2500.0F, 2800.0F, 3150.0F};

std::string Small(std::string_view letters)
{
    std::string small(letters);
    for (char& letter : small)
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return small;
}

TEST(TablesStructure, HolesAToHMirrorTheirShafts)
{
    for (const std::string_view letters : {"A", "B", "C", "CD", "D", "E", "EF", "F", "FG", "G", "H"})
    {
        for (const float size : kSizes)
        {
            SCOPED_TRACE(std::string(letters) + " at " + std::to_string(size));
            const auto hole = iso286::HoleFundamentalDeviation(letters, 9, size);
            const auto shaft = iso286::ShaftFundamentalDeviation(Small(letters), 9, size);
            ASSERT_EQ(hole.has_value(), shaft.has_value());
            if (!hole)
                continue;
            EXPECT_EQ(hole->value, -shaft->value);
            EXPECT_EQ(hole->limit, iso286::FundamentalDeviation::Limit::lower);
            EXPECT_EQ(shaft->limit, iso286::FundamentalDeviation::Limit::upper);
        }
    }
}

TEST(TablesStructure, CoarseHolesPToZcMirrorTheirShafts)
{
    for (const std::string_view letters : {"P", "R", "S", "T", "U", "V", "X", "Y", "Z", "ZA", "ZB", "ZC"})
    {
        for (const float size : kSizes)
        {
            SCOPED_TRACE(std::string(letters) + " at " + std::to_string(size));
            const auto hole = iso286::HoleFundamentalDeviation(letters, 8, size);
            const auto shaft = iso286::ShaftFundamentalDeviation(Small(letters), 8, size);
            ASSERT_EQ(hole.has_value(), shaft.has_value());
            if (!hole)
                continue;
            EXPECT_EQ(hole->value, -shaft->value);
            EXPECT_EQ(hole->limit, iso286::FundamentalDeviation::Limit::upper);
            EXPECT_EQ(shaft->limit, iso286::FundamentalDeviation::Limit::lower);
        }
    }
}

// A fit H7/p6 and the fit P7/h6 have the same clearances: ES(P7) = -ei(p6) + IT7 - IT6, and likewise for K, M and N.
TEST(TablesStructure, FineHolesGiveTheFitsOfTheirShaftsWithTheNextFinerGrade)
{
    for (const std::string_view letters :
         {"K", "M", "N", "P", "R", "S", "T", "U", "V", "X", "Y", "Z", "ZA", "ZB", "ZC"})
    {
        for (const float size : kSizes)
        {
            if (size <= 3 || size > 500)
                continue;
            SCOPED_TRACE(std::string(letters) + " at " + std::to_string(size));
            const auto hole = iso286::HoleFundamentalDeviation(letters, 7, size);
            const auto shaft = iso286::ShaftFundamentalDeviation(Small(letters), 6, size);
            ASSERT_EQ(hole.has_value(), shaft.has_value());
            if (hole)
            {
                EXPECT_EQ(hole->value,
                          -shaft->value + *iso286::StandardTolerance(7, size) - *iso286::StandardTolerance(6, size));
            }
        }
    }
}

TEST(TablesStructure, DeltaIsTheStepFromTheNextFinerGrade)
{
    for (const float size : kSizes)
    {
        for (int grade = 3; grade <= 8; ++grade)
        {
            SCOPED_TRACE("IT" + std::to_string(grade) + " at " + std::to_string(size));
            const auto delta = iso286::HoleDelta(grade, size);
            ASSERT_EQ(delta.has_value(), size <= 500);
            if (!delta)
                continue;
            const double step = *iso286::StandardTolerance(grade, size) - *iso286::StandardTolerance(grade - 1, size);
            EXPECT_EQ(*delta, size <= 3 ? 0 : step);
        }
    }
}

TEST(TablesStructure, DeltaIsGivenForGrades3To8Alone)
{
    EXPECT_FALSE(iso286::HoleDelta(2, 50).has_value());
    EXPECT_FALSE(iso286::HoleDelta(9, 50).has_value());
}

TEST(TablesStructure, TolerancesGrowWithTheGrade)
{
    for (const float size : kSizes)
        for (int grade = iso286::kGrade01; grade < iso286::kCoarsestGrade; ++grade)
            if (const auto fine = iso286::StandardTolerance(grade, size),
                coarse = iso286::StandardTolerance(grade + 1, size);
                fine && coarse)
            {
                EXPECT_LT(*fine, *coarse) << "IT" << grade << " at " << size;
            }
}

TEST(TablesStructure, TolerancesNeverShrinkWithTheSize)
{
    for (int grade = iso286::kGrade01; grade <= iso286::kCoarsestGrade; ++grade)
        for (std::size_t step = 1; step < kSizes.size(); ++step)
            if (const auto small = iso286::StandardTolerance(grade, kSizes[step - 1]),
                large = iso286::StandardTolerance(grade, kSizes[step]);
                small && large)
            {
                EXPECT_LE(*small, *large) << "IT" << grade << " at " << kSizes[step];
            }
}

// From IT6 on; the standard rounds one cell: IT11 over 3 to 6 mm is 75 and not 80.
TEST(TablesStructure, EveryFifthGradeIsTenTimesAsCoarse)
{
    int compared = 0;
    for (const float size : kSizes)
    {
        for (int grade = 6; grade <= 13; ++grade)
        {
            const auto fine = iso286::StandardTolerance(grade, size);
            const auto coarse = iso286::StandardTolerance(grade + 5, size);
            if (!fine || !coarse)
                continue;
            const bool rounded = size == 6 && grade == 6;
            EXPECT_EQ(*coarse, rounded ? 75 : 10 * *fine) << "IT" << grade << " at " << size;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 41 * 8 + 3);  // at 1 mm only IT6 to IT8 have a fifth grade after them
}

// Deviations lie ever further out along the alphabet.
TEST(TablesStructure, ShaftDeviationsGrowAlongTheAlphabet)
{
    for (const float size : kSizes)
    {
        double former = -1e9;
        for (const std::string_view letters : {"a", "b", "c", "cd", "d", "e", "ef", "f", "fg", "g",  "h",  "m", "n",
                                               "p", "r", "s", "t",  "u", "v", "x",  "y", "z",  "za", "zb", "zc"})
        {
            const auto deviation = iso286::ShaftFundamentalDeviation(letters, 6, size);
            if (!deviation)
                continue;
            EXPECT_LT(former, deviation->value) << letters << " at " << size;
            former = deviation->value;
        }
        EXPECT_GT(former, 0) << size;
    }
}

TEST(TablesStructure, ShaftDeviationsNeverComeNearerWithTheSize)
{
    for (const std::string_view letters : {"a", "b", "c", "cd", "d", "e", "ef", "f", "fg", "g",  "m",  "n",
                                           "p", "r", "s", "t",  "u", "v", "x",  "y", "z",  "za", "zb", "zc"})
    {
        for (std::size_t step = 1; step < kSizes.size(); ++step)
        {
            const auto small = iso286::ShaftFundamentalDeviation(letters, 6, kSizes[step - 1]);
            const auto large = iso286::ShaftFundamentalDeviation(letters, 6, kSizes[step]);
            if (small && large)
            {
                EXPECT_LE(std::abs(small->value), std::abs(large->value)) << letters << " at " << kSizes[step];
            }
        }
    }
}

TEST(TablesStructure, LettersOfTheOtherKindHaveNoDeviation)
{
    EXPECT_FALSE(iso286::HoleFundamentalDeviation("h", 7, 50).has_value());
    EXPECT_FALSE(iso286::ShaftFundamentalDeviation("H", 7, 50).has_value());
    EXPECT_FALSE(iso286::HoleFundamentalDeviation("JS", 7, 50).has_value());
    EXPECT_FALSE(iso286::ShaftFundamentalDeviation("js", 7, 50).has_value());
}

}  // namespace
