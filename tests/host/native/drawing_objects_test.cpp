#include "host/drawing_objects.h"

#include <gtest/gtest.h>

namespace
{
Drawing Of(std::initializer_list<const char*> ids)
{
    Drawing drawing;
    for (const char* const id : ids)
    {
        drawing.dimensions.emplace_back();
        drawing.dimensions.back().id = id;
    }
    return drawing;
}
}  // namespace

TEST(DrawingObjects, FindsByIdAndByNameWhereThereIsNoId)
{
    Drawing drawing = Of({"A1", ""});
    drawing.dimensions[0].name = "shoulder";
    drawing.dimensions[1].name = "gap";
    DrawingObjects objects;
    objects.Show(drawing);

    EXPECT_EQ(objects.Find("A1"), &objects.At(0));
    EXPECT_EQ(objects.Find("gap"), &objects.At(1));
    EXPECT_EQ(objects.Find("shoulder"), nullptr);
    EXPECT_EQ(objects.Find(""), nullptr);
    EXPECT_EQ(objects.IndexOf(objects.Find("gap")), 1U);
    EXPECT_EQ(objects.IndexOf(nullptr), std::nullopt);
}

TEST(DrawingObjects, ObjectsOfAFormerDrawingStayKnown)
{
    DrawingObjects objects;
    objects.Show(Of({"A1", "A2"}));
    const DrawingObject* const former = objects.Find("A2");
    objects.Show(Of({"A2"}));

    EXPECT_EQ(objects.Count(), 1U);
    EXPECT_EQ(objects.Known(former), former);
    EXPECT_NE(objects.Find("A2"), former);
    EXPECT_EQ(objects.IndexOf(former), std::nullopt);
    const int stranger = 0;
    EXPECT_EQ(objects.Known(&stranger), nullptr);
    EXPECT_EQ(objects.Known(nullptr), nullptr);
}
