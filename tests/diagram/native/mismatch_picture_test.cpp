#include "tests/diagram/native/diagram_cases.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

ChainDiagramInput MismatchInput(double computedNominal, std::int32_t method)
{
    ChainDiagramInput input = AnalyticInput({14, -14, 7, -7});
    input.method = method;
    input.result->nominal = computedNominal;
    input.result->nominalMatches = false;
    return input;
}

constexpr const char* kGreater = R"(text 200 7 center 000000 "caption"
text 200 280 center 000000 "nominal"
line 200 20 200 280
line 0 280 400 280
line 360 20 360 280
text 361 280 left 000000 "A0"
text 200 130 center FF0000 "first"
text 200 150 center FF0000 "second"
text 200 170 center FF0000 "third"
)";

}  // namespace

TEST(MismatchPicture, MarksAGreaterNominalOnTheRight)
{
    EXPECT_EQ(ToText(LayoutChainDiagram(MismatchInput(kNominal + 1, kAnalyticMethod))), kGreater);
}

TEST(MismatchPicture, IsTheSameByBothMethods)
{
    EXPECT_EQ(ToText(LayoutChainDiagram(MismatchInput(kNominal + 1, kProbabilisticMethod))), kGreater);
}

TEST(MismatchPicture, MarksASmallerNominalOnTheLeft)
{
    const DisplayList list = LayoutChainDiagram(MismatchInput(kNominal - 1, kAnalyticMethod));
    EXPECT_TRUE(HasLine(list, "line 40 20 40 280"));
    EXPECT_TRUE(HasLine(list, "text 40 280 right 000000 \"A0\""));
    EXPECT_EQ(AllOf<LinePrimitive>(list).size(), 3U);
    EXPECT_FALSE(HasField(list));
}

TEST(MismatchPicture, TakesANominalThatIsNoNumberAsNotGreater)
{
    const DisplayList list = LayoutChainDiagram(MismatchInput(std::nan(""), kAnalyticMethod));
    EXPECT_TRUE(HasLine(list, "line 40 20 40 280"));
}

// 231 / 2 = 115
TEST(MismatchPicture, CentresItsMessageInAnOddArea)
{
    ChainDiagramInput input = MismatchInput(kNominal + 1, kAnalyticMethod);
    input.width = 301;
    input.height = 231;
    const DisplayList list = LayoutChainDiagram(input);
    EXPECT_TRUE(HasLine(list, "text 150 95 center FF0000 \"first\""));
    EXPECT_TRUE(HasLine(list, "text 150 115 center FF0000 \"second\""));
    EXPECT_TRUE(HasLine(list, "text 150 135 center FF0000 \"third\""));
    EXPECT_TRUE(HasLine(list, "line 261 20 261 211"));
}
