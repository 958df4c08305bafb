#include "platform/gaugebase/limit_deviations.h"
#include "platform/gaugebase/tolerance_classes.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

std::string Joined(std::span<const std::string_view> entries)
{
    std::string text;
    for (const std::string_view entry : entries)
        text += std::string(text.empty() ? "" : " ") + std::string(entry);
    return text;
}

TEST(ToleranceClasses, LettersStandAsTheTablesPrintThemHolesFirst)
{
    EXPECT_EQ(Joined(iso286::DeviationLetters()), "A B C CD D E EF F FG G H JS J K M N P R S T U V X Y Z ZA ZB ZC "
                                                  "a b c cd d e ef f fg g h js j k m n p r s t u v x y z za zb zc");
}

TEST(ToleranceClasses, GradesStandFromTheFinestOn)
{
    EXPECT_EQ(Joined(iso286::Grades()), "01 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18");
}

TEST(ToleranceClasses, EveryLetterFollowedByEveryGradeIsACodeOfItsOwn)
{
    std::set<std::string> codes;
    int grade = 0;
    for (const std::string_view letters : iso286::DeviationLetters())
    {
        grade = iso286::kGrade01;
        for (const std::string_view gradeText : iso286::Grades())
        {
            const std::string code = std::string(letters) + std::string(gradeText);
            SCOPED_TRACE(code);
            codes.insert(code);
            const auto parsed = iso286::ParseToleranceClass(code);
            ASSERT_TRUE(parsed.has_value());
            EXPECT_EQ(parsed->letters, letters);
            EXPECT_EQ(parsed->grade, grade++);
            EXPECT_EQ(parsed->isHole, std::isupper(static_cast<unsigned char>(letters[0])) != 0);
        }
    }
    EXPECT_EQ(codes.size(), 56U * 20U);
}

TEST(ToleranceClasses, NoPreferredClassComesTwice)
{
    const auto classes = iso286::PreferredClasses();
    EXPECT_EQ(std::set<std::string_view>(classes.begin(), classes.end()).size(), classes.size());
}

TEST(ToleranceClasses, EveryPreferredClassHasLimitsAtSomeSize)
{
    for (const std::string_view code : iso286::PreferredClasses())
        EXPECT_TRUE(iso286::FindLimitDeviations(50, code).has_value()) << code;
}

}  // namespace
