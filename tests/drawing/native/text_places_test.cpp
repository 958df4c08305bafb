#include "drawing/text_places.h"

#include <gtest/gtest.h>

#include <utility>

// A letter is 10 pixels wide and 20 high, the picture 200 by 100.

namespace
{

constexpr int kLetter = 10;
constexpr int kLine = 20;
constexpr int kHalo = 5;

DisplayList Readable(const DisplayList& list, int width = 200, int height = 100)
{
    const auto measure = [](const std::string& text) {
        return TextExtent{.width = kLetter * static_cast<int>(text.size()), .height = kLine};
    };
    return WithReadableTexts(list, measure, width, height);
}

/// Where a text of ten letters is in the end.
PixelPoint PlaceOf(int x, int y, TextAlign align, int width = 200)
{
    DisplayList list;
    list.Text(x, y, align, "0123456789");
    const DisplayList readable = Readable(list, width);
    return std::get<TextPrimitive>(readable.primitives.back()).anchor;
}

std::string ReadableText(const DisplayList& list, int height = 100)
{
    return ToText(Readable(list, 200, height));
}

}  // namespace

TEST(TextPlaces, AreThoseOfTheLayoutWhereNothingIsInTheWay)
{
    DisplayList list;
    list.Text(100, 0, TextAlign::Left, "0123456789");
    list.Text(100, 0, TextAlign::Right, "0123456789");
    list.Text(100, 20, TextAlign::Center, "012", {255, 0, 0});
    list.Text(100, 80, TextAlign::Left, "A");
    EXPECT_EQ(ReadableText(list), "text 100 0 left 000000 \"0123456789\"\n"
                                  "text 0 0 left 000000 \"0123456789\"\n"
                                  "text 85 20 left FF0000 \"012\"\n"
                                  "text 100 80 left 000000 \"A\"\n");
}

TEST(TextPlaces, AreInsideThePicture)
{
    EXPECT_EQ(PlaceOf(99, 0, TextAlign::Right), (PixelPoint{0, 0}));
    EXPECT_EQ(PlaceOf(-1, 0, TextAlign::Left), (PixelPoint{0, 0}));
    EXPECT_EQ(PlaceOf(49, 0, TextAlign::Center), (PixelPoint{0, 0}));
    EXPECT_EQ(PlaceOf(-100000, 0, TextAlign::Center), (PixelPoint{0, 0}));
    EXPECT_EQ(PlaceOf(101, 0, TextAlign::Left), (PixelPoint{100, 0}));
    EXPECT_EQ(PlaceOf(201, 0, TextAlign::Right), (PixelPoint{100, 0}));
    EXPECT_EQ(PlaceOf(151, 0, TextAlign::Center), (PixelPoint{100, 0}));
    EXPECT_EQ(PlaceOf(100000, 0, TextAlign::Left), (PixelPoint{100, 0}));
    EXPECT_EQ(PlaceOf(0, -1, TextAlign::Left), (PixelPoint{0, 0}));
    EXPECT_EQ(PlaceOf(0, 81, TextAlign::Left), (PixelPoint{0, 80}));
}

TEST(TextPlaces, KeepTheBeginningOfATextThatIsWiderThanThePicture)
{
    for (const TextAlign align : {TextAlign::Left, TextAlign::Center, TextAlign::Right})
        EXPECT_EQ(PlaceOf(45, 0, align, 90), (PixelPoint{0, 0}));
}

TEST(TextPlaces, OfMovedTextsComeLastAfterTheirHalos)
{
    DisplayList list;
    list.Text(195, 0, TextAlign::Left, "AB", {255, 0, 0});
    list.Rect({0, 255, 0}, 0, 0, 200, 100);
    list.Line(10, 0, 10, 100);
    list.Text(50, 50, TextAlign::Left, "C");
    EXPECT_EQ(ReadableText(list), "rect 00FF00 0 0 200 100\n"
                                  "line 10 0 10 100\n"
                                  "text 50 50 left 000000 \"C\"\n"
                                  "halo 180 0 20 5 \"AB\"\n"
                                  "text 180 0 left FF0000 \"AB\" lifted\n");
    static_assert(kLine / 4 == kHalo);
}

TEST(TextPlaces, AreBelowEarlierTextsThatWouldBeCovered)
{
    DisplayList list;
    list.Text(100, 5, TextAlign::Left, "0123456789");
    list.Text(100, 5, TextAlign::Center, "0123456789");
    list.Text(80, 24, TextAlign::Left, "AB");
    list.Text(190, 46, TextAlign::Left, "C");
    EXPECT_EQ(ReadableText(list), "text 190 46 left 000000 \"C\"\n"
                                  "halo 50 25 100 5 \"0123456789\"\n"
                                  "halo 80 45 20 5 \"AB\"\n"
                                  "text 100 5 left 000000 \"0123456789\" lifted\n"
                                  "text 50 25 left 000000 \"0123456789\" lifted\n"
                                  "text 80 45 left 000000 \"AB\" lifted\n");
}

TEST(TextPlaces, StayOverAnotherTextWhereThereIsNoRoomBelow)
{
    DisplayList list;
    list.Text(20, 5, TextAlign::Left, "AB");
    list.Text(25, 5, TextAlign::Left, "CD");
    list.Text(195, 5, TextAlign::Left, "EF");
    list.Text(195, 5, TextAlign::Left, "GH");
    EXPECT_EQ(ReadableText(list, 44), "text 20 5 left 000000 \"AB\"\n"
                                      "text 25 5 left 000000 \"CD\"\n"
                                      "halo 180 5 20 5 \"EF\"\n"
                                      "halo 180 5 20 5 \"GH\"\n"
                                      "text 180 5 left 000000 \"EF\" lifted\n"
                                      "text 180 5 left 000000 \"GH\" lifted\n");
}

// A halo reaches one row further than its text; sideways it keeps within.
TEST(TextPlaces, OfTextsThatAHaloReachesComeAfterIt)
{
    DisplayList beside;
    beside.Text(0, 0, TextAlign::Left, "0123456789");
    beside.Text(105, 0, TextAlign::Left, "0123456789");
    EXPECT_EQ(ReadableText(beside), "text 0 0 left 000000 \"0123456789\"\n"
                                    "halo 100 0 100 5 \"0123456789\"\n"
                                    "text 100 0 left 000000 \"0123456789\" lifted\n");
    for (const auto& [y, isReached] : {std::pair{61, true}, std::pair{60, true}, std::pair{62, false}})
    {
        DisplayList list;
        list.Text(195, 41, TextAlign::Left, "AB");
        list.Text(180, y, TextAlign::Left, "CD");
        EXPECT_EQ(ReadableText(list).ends_with("\"CD\" lifted\n"), isReached) << y;
    }
}

// A line through the first; the second stays over it, where there is no room below.
TEST(TextPlaces, OfATextOverACrossedOneComeAfterTheHalo)
{
    DisplayList list;
    list.Text(100, 5, TextAlign::Left, "AB");
    list.Text(105, 5, TextAlign::Left, "CD");
    list.Line(102, 0, 102, 44);
    EXPECT_TRUE(ReadableText(list, 44).ends_with("text 105 5 left 000000 \"CD\" lifted\n"));
}

namespace
{
/// Whether a text of two letters at 50 40, 20 by 20 pixels, comes last and after its halo.
bool IsLiftedFrom(DisplayList list)
{
    list.Text(50, 40, TextAlign::Left, "AB");
    list.Line(0, 99, 200, 99);
    return ReadableText(list).ends_with("halo 50 40 20 5 \"AB\"\ntext 50 40 left 000000 \"AB\" lifted\n");
}

bool IsLiftedFromLine(PixelPoint start, PixelPoint end)
{
    DisplayList forth;
    forth.Line(start.x, start.y, end.x, end.y);
    DisplayList back;
    back.Line(end.x, end.y, start.x, start.y);
    EXPECT_EQ(IsLiftedFrom(forth), IsLiftedFrom(back));
    return IsLiftedFrom(forth);
}
}  // namespace

TEST(TextPlaces, AreLiftedFromLinesThatRunThroughTheLetters)
{
    for (const int x : {50, 60, 69})
        EXPECT_TRUE(IsLiftedFromLine({x, 0}, {x, 100})) << x;
    for (const int x : {49, 70})
        EXPECT_FALSE(IsLiftedFromLine({x, 0}, {x, 100})) << x;
    for (const int y : {41, 59})
        EXPECT_TRUE(IsLiftedFromLine({0, y}, {200, y})) << y;
    for (const int y : {40, 60})
        EXPECT_FALSE(IsLiftedFromLine({0, y}, {200, y})) << "no letter has ink in the first row: " << y;
}

TEST(TextPlaces, AreNotLiftedFromLinesThatEndBeforeThem)
{
    EXPECT_FALSE(IsLiftedFromLine({60, 0}, {60, 40}));
    EXPECT_TRUE(IsLiftedFromLine({60, 0}, {60, 41}));
    EXPECT_FALSE(IsLiftedFromLine({60, 60}, {60, 100}));
    EXPECT_FALSE(IsLiftedFromLine({0, 50}, {49, 50}));
    EXPECT_TRUE(IsLiftedFromLine({0, 50}, {50, 50}));
    EXPECT_TRUE(IsLiftedFromLine({55, 45}, {65, 55}));
}

TEST(TextPlaces, AreLiftedFromSlopesOfAnOutline)
{
    DisplayList through;
    through.Outline({{0, 100}, {100, 0}, {200, 100}});
    EXPECT_TRUE(IsLiftedFrom(through));
    DisplayList beside;
    beside.Outline({{0, 100}, {40, 0}, {200, 20}});
    EXPECT_FALSE(IsLiftedFrom(beside));
}

TEST(TextPlaces, AreNotLiftedFromColours)
{
    DisplayList list;
    list.Rect({0, 255, 0}, 0, 0, 200, 100);
    list.Fill({0, 255, 0}, {{0, 0}, {200, 0}, {200, 100}});
    EXPECT_FALSE(IsLiftedFrom(list));
}

TEST(TextPlaces, KeepTheLookOfTheTexts)
{
    for (const TextLook look : {TextLook::ControlFont, TextLook::PlainOnWhite})
    {
        DisplayList list;
        list.textLook = look;
        EXPECT_EQ(Readable(list), list);
    }
}
