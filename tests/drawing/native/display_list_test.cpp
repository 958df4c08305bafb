#include "drawing/display_list.h"

#include <gtest/gtest.h>

#include <locale>
#include <string>

namespace
{

struct GroupedThousands : std::numpunct<char>
{
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

}  // namespace

TEST(DisplayListText, IsEmptyForAnEmptyList)
{
    EXPECT_EQ(ToText(DisplayList{}), "");
}

TEST(DisplayListText, WritesOneLineForEachPrimitiveInDrawingOrder)
{
    DisplayList list;
    list.Rect({97, 220, 5}, 60, 140, 293, 180);
    list.Line(200, 20, 200, 280);
    list.Text(200, 7, TextAlign::Center, "Closing link");
    list.Fill({255, 0, 0}, {{1, 2}, {3, 4}, {-5, 6}});
    list.Outline({{1, 2}, {3, 4}, {-5, 6}, {1, 2}});
    EXPECT_EQ(ToText(list), "rect 61DC05 60 140 293 180\n"
                            "line 200 20 200 280\n"
                            "text 200 7 center 000000 \"Closing link\"\n"
                            "fill FF0000 1 2 3 4 -5 6\n"
                            "outline 1 2 3 4 -5 6 1 2\n");
}

TEST(DisplayListText, TellsOfHalosAndLiftedTexts)
{
    DisplayList list;
    list.primitives.emplace_back(HaloPrimitive{{1, 2}, 8, 3, "A"});
    list.Text(1, 2, TextAlign::Left, "A");
    std::get<TextPrimitive>(list.primitives[1]).isLifted = true;
    EXPECT_EQ(ToText(list), "halo 1 2 8 3 \"A\"\n"
                            "text 1 2 left 000000 \"A\" lifted\n");
}

TEST(DisplayListText, NamesTheAlignmentOfATextAndItsColor)
{
    DisplayList list;
    list.Text(1, 2, TextAlign::Left, "a");
    list.Text(1, 2, TextAlign::Center, "b", {0, 196, 196});
    list.Text(1, 2, TextAlign::Right, "c", {255, 0, 0});
    EXPECT_EQ(ToText(list), "text 1 2 left 000000 \"a\"\n"
                            "text 1 2 center 00C4C4 \"b\"\n"
                            "text 1 2 right FF0000 \"c\"\n");
}

TEST(DisplayListText, WritesColorsWithSixDigits)
{
    DisplayList list;
    list.Rect({0, 0, 10}, 10, 11, 12, 13);
    EXPECT_EQ(ToText(list), "rect 00000A 10 11 12 13\n");  // the coordinates behind it are decimal again
}

TEST(DisplayListText, EscapesQuotesBackslashesAndLineEnds)
{
    DisplayList list;
    list.Text(0, 0, TextAlign::Left, R"(say "5\6")");
    list.Text(0, 0, TextAlign::Left, "two\nlines");
    EXPECT_EQ(ToText(list), "text 0 0 left 000000 \"say \\\"5\\\\6\\\"\"\n"
                            "text 0 0 left 000000 \"two\\nlines\"\n");
}

TEST(DisplayListText, KeepsUtf8AndEmptyTexts)
{
    DisplayList list;
    list.Text(0, 0, TextAlign::Left, "\xC3\x98 25");
    list.Text(0, 0, TextAlign::Left, "");
    EXPECT_EQ(ToText(list), "text 0 0 left 000000 \"\xC3\x98 25\"\n"
                            "text 0 0 left 000000 \"\"\n");
}

TEST(DisplayListText, DoesNotFollowTheLocale)
{
    const std::locale former = std::locale::global(std::locale(std::locale::classic(), new GroupedThousands));
    DisplayList list;
    list.Line(1234567, 0, -1000, 0);
    const std::string text = ToText(list);
    std::locale::global(former);
    EXPECT_EQ(text, "line 1234567 0 -1000 0\n");
}

TEST(DisplayList, ComparesAllItsPrimitives)
{
    DisplayList first;
    first.Line(1, 2, 3, 4);
    DisplayList second = first;
    EXPECT_EQ(first, second);
    second.Line(1, 2, 3, 4);
    EXPECT_FALSE(first == second);
}
