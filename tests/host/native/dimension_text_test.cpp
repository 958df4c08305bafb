#include "host/dimension_text.h"

#include <gtest/gtest.h>

namespace
{
struct Case
{
    DrawingDimension dimension;
    const char* label;
    const char* upper;
    const char* lower;
};

DrawingDimension Dimension(const char* name, const char* nominal, const char* field, const char* upper,
                           const char* lower, std::int32_t kind = 1)
{
    DrawingDimension dimension;
    dimension.name = name;
    dimension.nominal = nominal;
    dimension.field = field;
    dimension.upper = upper;
    dimension.lower = lower;
    dimension.kind = kind;
    return dimension;
}
}  // namespace

TEST(DimensionText, WritesNameNominalFieldAndSignedDeviations)
{
    const Case cases[] = {
        {Dimension("A1", "40", "h8", "0", "-0.039"), "A1 = 40 h8", "0", "-0.039"},
        {Dimension("A2", "12.9", "", "0.3", "-0.1"), "A2 = 12.9", "+0.3", "-0.1"},
        {Dimension("A2", "12.9", "", "+0.3", "0.1"), "A2 = 12.9", "+0.3", "+0.1"},
        {Dimension("", "5", "", "", ""), "5", "", ""},
        {Dimension("X", "", "", "", ""), "X", "", ""},
        {Dimension("", "", "", "", ""), "", "", ""},
        // equal on both sides: written once
        {Dimension("C2", "12.9", "", "0.3", "-0.3"), "C2 = 12.9",
         "\xC2\xB1"
         "0.3",
         ""},
        {Dimension("C5", "8.4", "js11", "+0.045", "-0.0450"), "C5 = 8.4 js11",
         "\xC2\xB1"
         "0.045",
         ""},
        // a missing deviation beside a given one is 0; two zeros are no equal deviations
        {Dimension("A", "1", "", "0.1", ""), "A = 1", "+0.1", "0"},
        {Dimension("A", "1", "", "", "-0.1"), "A = 1", "0", "-0.1"},
        {Dimension("A", "1", "", "0", "0"), "A = 1", "0", "0"},
        // reversed limits stay as they are
        {Dimension("A", "1", "", "-0.1", "0.1"), "A = 1", "-0.1", "+0.1"},
        // kind 3 is a diameter
        {Dimension("D1", "30", "k6", "0.015", "0.002", 3),
         "D1 = \xC3\x98"
         "30 k6",
         "+0.015", "+0.002"},
        // kind 2 has no tolerance, whatever the drawing says
        {Dimension("A", "1", "h8", "0.1", "-0.1", 2), "A = 1", "", ""},
    };
    for (const Case& tested : cases)
    {
        SCOPED_TRACE(tested.label);
        const DimensionText texts = TextsOf(tested.dimension);
        EXPECT_EQ(texts.label, tested.label);
        EXPECT_EQ(texts.upper, tested.upper);
        EXPECT_EQ(texts.lower, tested.lower);
    }
}

TEST(DimensionText, OneLineHoldsBothDeviations)
{
    EXPECT_EQ(OneLineText(Dimension("A1", "40", "h8", "0", "-0.039")), "A1 = 40 h8 0/-0.039");
    EXPECT_EQ(OneLineText(Dimension("A1", "40", "", "0.1", "-0.1")), "A1 = 40 \xC2\xB1"
                                                                     "0.1");
    EXPECT_EQ(OneLineText(Dimension("A1", "40", "", "", "")), "A1 = 40");
}
