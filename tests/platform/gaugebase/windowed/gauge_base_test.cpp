#include "platform/gaugebase/gauge_base.h"

#include <limits>

#include <gtest/gtest.h>

namespace
{

CString Joined(const CStringArray& list, INT_PTR from, INT_PTR to)
{
    CString text;
    for (INT_PTR i = from; i < to; ++i)
        text += (i == from ? L"" : L" ") + list.GetAt(i);
    return text;
}

TEST(GaugeBase, GivesLettersGradesAndPreferredClasses)
{
    CStringArray letters, grades, preferred;
    ASSERT_NE(GetTolList(letters, grades, preferred), 0);
    EXPECT_STREQ(Joined(letters, 0, letters.GetSize()),
                 L"A B C CD D E EF F FG G H JS J K M N P R S T U V X Y Z ZA ZB ZC "
                 L"a b c cd d e ef f fg g h js j k m n p r s t u v x y z za zb zc");
    EXPECT_STREQ(Joined(grades, 0, grades.GetSize()), L"01 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18");
    ASSERT_EQ(preferred.GetSize(), 95);
    EXPECT_STREQ(Joined(preferred, 0, 10), L"G6 H6 JS6 K6 M6 N6 P6 R6 S6 T6");
    EXPECT_STREQ(Joined(preferred, 45, 55), L"g5 h5 js5 k5 m5 n5 p5 r5 s5 t5");
    EXPECT_STREQ(Joined(preferred, 91, 95), L"a11 b11 c11 h11");
}

TEST(GaugeBase, GivesLowerThenUpperDeviation)
{
    float lower = 0, upper = 0;
    ASSERT_NE(GetDimTol(100, "P7", &lower, &upper), 0);
    EXPECT_EQ(lower, -59.0F);
    EXPECT_EQ(upper, -24.0F);
}

TEST(GaugeBase, UnknownFieldsLeaveTheOutputsAsTheyWere)
{
    for (const char* const field : {"", "H", "7", "h7 ", "H19", "Q7"})
    {
        SCOPED_TRACE(field);
        float lower = 111, upper = 222;
        EXPECT_EQ(GetDimTol(100, field, &lower, &upper), 0);
        EXPECT_EQ(lower, 111.0F);
        EXPECT_EQ(upper, 222.0F);
    }
}

TEST(GaugeBase, NoFieldAtAllIsUnknown)
{
    float lower = 111, upper = 222;
    EXPECT_EQ(GetDimTol(100, nullptr, &lower, &upper), 0);
    EXPECT_EQ(lower, 111.0F);
    EXPECT_EQ(upper, 222.0F);
}

TEST(GaugeBase, SizesOutsideTheTablesLeaveTheOutputsAsTheyWere)
{
    for (const float nominal : {0.0F, -1.0F, 3150.5F, std::numeric_limits<float>::quiet_NaN()})
    {
        SCOPED_TRACE(nominal);
        float lower = 111, upper = 222;
        EXPECT_EQ(GetDimTol(nominal, "H7", &lower, &upper), 0);
        EXPECT_EQ(lower, 111.0F);
        EXPECT_EQ(upper, 222.0F);
    }
}

}  // namespace
