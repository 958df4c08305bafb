#include "distribution/density_shape.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace
{

constexpr std::int32_t kNormal = 1;
constexpr std::int32_t kUniform = 2;
constexpr std::int32_t kTriangular = 3;

// A field from 86 to 114 in the columns 60 to 340: a tenth of a unit a column, sigma 14/3.
DensityField Field(int left = 60, int right = 340, int height = 300)
{
    return {.lowerLimit = 86, .width = 28, .middle = 100, .left = left, .right = right, .height = height};
}

std::string Density(std::int32_t law, const DensityField& field)
{
    DisplayList list;
    DrawDensity(list, law, field);
    return ToText(list);
}

std::vector<PixelPoint> Curve(const DensityField& field)
{
    DisplayList list;
    DrawDensity(list, kNormal, field);
    if (list.primitives.size() != 2)
        return {};
    return std::get<FillPrimitive>(list.primitives[0]).corners;
}

}  // namespace

TEST(DensityShape, OfTheUniformLawIsARectangleWithItsTopEdge)
{
    EXPECT_EQ(Density(kUniform, Field()), "rect 00C4C4 61 140 340 280\n"
                                          "line 61 140 340 140\n");
}

TEST(DensityShape, OfTheTriangularLawIsATriangleWithItsSlopes)
{
    EXPECT_EQ(Density(kTriangular, Field()), "fill 00C4C4 60 280 200 140 340 280\n"
                                             "outline 60 280 200 140 340 280\n");
    EXPECT_EQ(Density(kTriangular, Field(60, 101)), "fill 00C4C4 60 280 80 140 101 280\n"
                                                    "outline 60 280 80 140 101 280\n");
}

// Vertices 0 to 279: the columns 60 to 338, and the right foot in column 340.
TEST(DensityShape, OfTheNormalLawHasAsManyVerticesAsColumns)
{
    const std::vector<PixelPoint> curve = Curve(Field());
    ASSERT_EQ(curve.size(), 280U);
    EXPECT_EQ(curve.front(), (PixelPoint{60, 280}));
    for (int vertex = 1; vertex <= 278; ++vertex)
        EXPECT_EQ(curve[static_cast<std::size_t>(vertex)].x, 60 + vertex);
    EXPECT_EQ(curve.back(), (PixelPoint{340, 280}));
}

// exp(-k^2 / 2) at k sigma: 1, 0.606531, 0.324652, 0.011109 at 0, 1, 1.5, 3; times 300 - 80.
TEST(DensityShape, OfTheNormalLawFollowsItsDensity)
{
    const std::vector<PixelPoint> curve = Curve(Field());
    ASSERT_EQ(curve.size(), 280U);
    EXPECT_EQ(curve[140].y, 60);       // the peak: 60 below the top
    EXPECT_EQ(curve[70].y, 280 - 71);  // 71.42
    EXPECT_EQ(curve[210].y, 280 - 71);
    EXPECT_EQ(curve[1].y, 280 - 2);  // 2.979 sigma: 0.011829 * 220 = 2.60
}

TEST(DensityShape, OfTheNormalLawIsCentredOnTheGivenMiddle)
{
    DensityField field = Field();
    field.middle = 93;  // a quarter of the columns
    const std::vector<PixelPoint> curve = Curve(field);
    ASSERT_EQ(curve.size(), 280U);
    EXPECT_EQ(curve[70].y, 60);
}

TEST(DensityShape, OfTheNormalLawIsOutlinedOpenOverItsFill)
{
    DisplayList list;
    DrawDensity(list, kNormal, Field());
    ASSERT_EQ(list.primitives.size(), 2U);
    const auto& fill = std::get<FillPrimitive>(list.primitives[0]);
    EXPECT_EQ(fill.color, (Rgb{0, 196, 196}));
    EXPECT_EQ(std::get<OutlinePrimitive>(list.primitives[1]).points, fill.corners);
}

TEST(DensityShape, IsMissingForAnyOtherLaw)
{
    for (const std::int32_t law : {0, 4, -1})
        EXPECT_EQ(Density(law, Field()), "") << law;
}

TEST(DensityShape, IsMissingForReversedLimitsAndFewerThanTwoColumns)
{
    for (const std::int32_t law : {kNormal, kUniform, kTriangular})
    {
        SCOPED_TRACE(law);
        EXPECT_EQ(Density(law, Field(340, 60)), "");
        EXPECT_EQ(Density(law, Field(200, 200)), "");
        EXPECT_EQ(Density(law, Field(200, 201)), "");
        DensityField withoutWidth = Field();
        withoutWidth.width = 0;
        EXPECT_EQ(Density(law, withoutWidth), "");
        withoutWidth.width = -28;
        EXPECT_EQ(Density(law, withoutWidth), "");
    }
}

TEST(DensityShape, NeedsThreeVerticesForACurve)
{
    EXPECT_EQ(Density(kNormal, Field(200, 202)), "");
    EXPECT_EQ(Curve(Field(200, 203)).size(), 3U);
}

TEST(DensityShape, IsMissingWhereThePlotIsTooLow)
{
    EXPECT_EQ(Density(kNormal, Field(60, 340, 80)), "");
    EXPECT_NE(Density(kNormal, Field(60, 340, 81)), "");
    for (const std::int32_t law : {kUniform, kTriangular})
    {
        EXPECT_EQ(Density(law, Field(60, 340, 160)), "") << law;
        EXPECT_NE(Density(law, Field(60, 340, 161)), "") << law;
    }
}
