// The diagram in its control: what each paint shows, and that it stays.

#include <algorithm>

#include "calc/chain_calculation.h"
#include "diagram/chain_diagram_layout.h"
#include "drawing/gdi_painter.h"
#include "platform/moduleskin/resource.h"
#include "platform/text/text_encoding.h"
#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/pixels.h"

namespace
{

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kBlack = 0x000000;
constexpr std::uint32_t kGreen = 0x61DC05;
constexpr std::uint32_t kRed = 0xFF0000;

class Diagram : public CalcDialogTest
{
protected:
    Diagram() { Open(); }

    HWND Area() const { return Control(IDC_CHAIN_DIAGRAM); }
    Pixels Shown() const { return ShownPixels(Area()); }

    int CountOf(std::uint32_t colour) const
    {
        const Pixels shown = Shown();
        return static_cast<int>(std::count(shown.colours.begin(), shown.colours.end(), colour));
    }

    bool IsWhite() const
    {
        const Pixels shown = Shown();
        return shown.width > 100 && shown.height > 100 && CountOf(kWhite) == shown.width * shown.height;
    }

    /// Pixel column of a deviation when the largest one is `largest`: 60 pixels before the edge stands the largest.
    int ColumnOf(double deviation, double largest) const
    {
        const int width = Shown().width;
        return width / 2 + static_cast<int>((width / 2 - 60) * deviation / largest);
    }

    /// Inside the analytic bar, which is 140 to 180 below the top.
    std::uint32_t BarAt(int x) const { return Shown().At(x, 160); }
    /// Just above the base line, 20 above the bottom: inside each law's shape.
    std::uint32_t ShapeAt(int x) const { return Shown().At(x, Shown().height - 23); }

    /// 10 +0.1/-0.1 minus 4 +0.05/0: 6 +0.1/-0.15 by the analytic method, 5.975 +-0.0968 by the probabilistic one.
    void FillWithRequired(const wchar_t* upper, const wchar_t* lower, const wchar_t* nominal = L"6")
    {
        AddLinks({{Dimension(L"A1", L"10", L"0.1", L"-0.1"), &objects[0]},
                  {Dimension(L"A2", L"4", L"0.05", L"0", 0), &objects[1]}});
        AddClosing(Dimension(L"", nominal, upper, lower), &closingObject);
    }
};

// Required +-0.15 and computed +0.1/-0.15: the largest deviation is 0.15.
TEST_F(Diagram, IsGreenInsideTheRequiredLimitsByTheAnalyticMethod)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kAnalytic);
    const int lower = ColumnOf(-0.15, 0.15);
    const int upper = ColumnOf(0.1, 0.15);
    EXPECT_EQ(BarAt(lower + 5), kGreen);
    EXPECT_EQ(BarAt(upper - 5), kGreen);
    EXPECT_EQ(BarAt(upper + 5), kWhite) << "beyond the computed field";
    EXPECT_EQ(BarAt(lower - 5), kWhite);
    EXPECT_EQ(CountOf(kRed), 0);
}

// Required +-0.05 and computed +0.1/-0.15.
TEST_F(Diagram, IsRedBeyondTheRequiredLimitsByTheAnalyticMethod)
{
    FillWithRequired(L"0.05", L"-0.05");
    ChooseMethod(kAnalytic);
    EXPECT_EQ(BarAt(ColumnOf(-0.15, 0.15) + 5), kRed);
    EXPECT_EQ(BarAt(ColumnOf(-0.05, 0.15) - 5), kRed);
    EXPECT_EQ(BarAt(ColumnOf(-0.05, 0.15) + 5), kGreen);
    EXPECT_EQ(BarAt(ColumnOf(0.05, 0.15) - 5), kGreen);
    EXPECT_EQ(BarAt(ColumnOf(0.05, 0.15) + 5), kRed);
    EXPECT_EQ(BarAt(ColumnOf(0.1, 0.15) - 5), kRed);
}

TEST_F(Diagram, IsAllGreenWhenTheComputedFieldIsTheRequiredOne)
{
    FillWithRequired(L"0.1", L"-0.15");
    ChooseMethod(kAnalytic);
    EXPECT_GT(CountOf(kGreen), 1000);
    EXPECT_EQ(CountOf(kRed), 0);
}

// sigma is 0.2/6 and 0.05/6, D0 = 0.001041667, T = 0.193649198; limits 6.0718 and 5.8782, deviations +0.0718/-0.1218.
TEST_F(Diagram, IsGreenInsideTheRequiredLimitsByTheProbabilisticMethod)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kProbabilistic);
    EXPECT_EQ(ShapeAt(ColumnOf(-0.1, 0.15)), kGreen);
    EXPECT_EQ(ShapeAt(ColumnOf(0.05, 0.15)), kGreen);
    EXPECT_EQ(ShapeAt(ColumnOf(0.12, 0.15)), kWhite) << "beyond the computed field";
    EXPECT_EQ(CountOf(kRed), 0);
}

TEST_F(Diagram, IsRedBeyondTheRequiredLimitsByTheProbabilisticMethod)
{
    FillWithRequired(L"0.03", L"-0.05");
    ChooseMethod(kProbabilistic);
    const double largest = 0.1218;
    EXPECT_EQ(ShapeAt(ColumnOf(-0.08, largest)), kRed);
    EXPECT_EQ(ShapeAt(ColumnOf(-0.02, largest)), kGreen);
    EXPECT_EQ(ShapeAt(ColumnOf(0.05, largest)), kRed);
}

// The bell becomes a rectangle whose top is 140 below the top of the area.
TEST_F(Diagram, FollowsTheClosingLinksLaw)
{
    FillWithRequired(L"0.2", L"-0.2");
    ChooseMethod(kProbabilistic);
    CVariableParams uniform;
    uniform.law = 2;
    uniform.mean = 6;
    // T = 2 * sqrt(3) * sqrt(D0) = 0.1118, so -0.0809/+0.0309; close to the lower limit the bell is low.
    const int besideLower = ColumnOf(-0.075, 0.2);
    const std::uint32_t bell = Shown().At(besideLower, 145);
    Command(ID_CLOSING_DISTRIBUTION, {[&] {
                dialog->SetVariableCloseFRowData(uniform);
                ClickChild(IDC_VARIABLE_CANCEL);
            }});
    EXPECT_EQ(bell, kWhite);
    EXPECT_EQ(Shown().At(besideLower, 145), kGreen);
}

TEST_F(Diagram, FollowsTheMethodAtOnce)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kAnalytic);
    const Pixels analytic = Shown();
    ChooseMethod(kProbabilistic);
    EXPECT_GT(DifferentPixels(analytic, Shown()), 100);
    ChooseMethod(kAnalytic);
    EXPECT_EQ(DifferentPixels(analytic, Shown()), 0);
}

TEST_F(Diagram, FollowsAnEditedLink)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kAnalytic);
    EXPECT_EQ(CountOf(kRed), 0);
    FocusOnLink(0);
    Command(ID_LINK_EDIT, {[this] {
                CDimParams wider = Dimension(L"A1", L"10", L"0.4", L"-0.1");
                dialog->SetCurrentFRowData(wider);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_GT(CountOf(kRed), 100);
}

TEST_F(Diagram, CountsTheLinksOfACollapsedChain)
{
    FillWithRequired(L"0.15", L"-0.15");
    PostClick(Links().Window(), Links().ExpandPoint(0));
    PumpUntilIdle();
    ASSERT_EQ(Links().Rows(), 1);
    ChooseMethod(kAnalytic);
    EXPECT_GT(CountOf(kGreen), 1000);
}

TEST_F(Diagram, TakesTheTextOfTheRowNotThatOfTheDialog)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kAnalytic);
    const Pixels before = Shown();
    FocusOnLink(0);
    // Column 1 stays as it is, so the chain's nominal is the same.
    CDimParams moved = Dimension(L"A1", L"99", L"0.1", L"-0.1");
    dialog->SetCurrentFRowData(moved);
    ChooseMethod(kAnalytic);
    EXPECT_EQ(DifferentPixels(before, Shown()), 0);
}

TEST_F(Diagram, SaysSoInRedWhenTheNominalsDiffer)
{
    FillWithRequired(L"0.15", L"-0.15", L"7");
    ChooseMethod(kAnalytic);
    EXPECT_EQ(CountOf(kGreen), 0);
    EXPECT_GT(CountOf(kRed), 50) << "the message";
    const Pixels shown = Shown();
    EXPECT_EQ(shown.At(40, 100), kBlack) << "the computed nominal, 6, is less than 7: its marker stands left";
    EXPECT_EQ(shown.At(shown.width - 40, 100), kWhite);
}

TEST_F(Diagram, MarksAGreaterNominalOnTheRight)
{
    FillWithRequired(L"0.15", L"-0.15", L"5");
    ChooseMethod(kProbabilistic);
    const Pixels shown = Shown();
    EXPECT_EQ(shown.At(40, 100), kWhite);
    EXPECT_EQ(shown.At(shown.width - 40, 100), kBlack);
    EXPECT_EQ(shown.At(shown.width / 2, 30), kBlack) << "the centre line";
    EXPECT_EQ(shown.At(10, shown.height - 20), kBlack) << "the base line";
}

std::string LibraryText(UINT id)
{
    return ToUtf8(ResourceText(id));
}

class DiagramLayout : public Diagram
{
protected:
    /// The picture of the chain that FillWithRequired makes with +-0.15, with each text in its place.
    Pixels Expected(int method, double requiredNominal, const char* nominalText) const
    {
        const std::vector<ComponentLink> links = {
            {.nominal = 10, .upperDev = 0.1, .lowerDev = -0.1, .increasing = 1, .law = 1, .mean = 10},
            {.nominal = 4, .upperDev = 0.05, .lowerDev = 0, .increasing = 0, .law = 1, .mean = 4.025}};
        const Pixels shown = Shown();
        ChainDiagramInput input;
        input.width = shown.width;
        input.height = shown.height;
        input.method = method;
        input.closing = {.nominal = requiredNominal, .upperDev = 0.15, .lowerDev = -0.15, .law = 1};
        input.nominalText = nominalText;
        input.result = Calculate(method, links, input.closing);
        input.caption = LibraryText(IDS_DIAGRAM_CAPTION);
        input.upperWord = LibraryText(IDS_UPPER_LIMIT);
        input.lowerWord = LibraryText(IDS_LOWER_LIMIT);
        input.mismatchLines = {LibraryText(IDS_MISMATCH_LINE_1), LibraryText(IDS_MISMATCH_LINE_2),
                               LibraryText(IDS_MISMATCH_LINE_3)};
        return PaintedLike(Area(), [&](CDC& dc) {
            PaintDisplayList(dc, LayoutChainDiagram(input), CSize(input.width, input.height));
        });
    }
};

TEST_F(DiagramLayout, ShowsTheLayoutOfTheChainWithEachTextInItsPlace)
{
    FillWithRequired(L"0.15", L"-0.15");
    for (const int method : {kAnalytic, kProbabilistic})
    {
        ChooseMethod(method);
        EXPECT_EQ(DifferentPixels(Shown(), Expected(method, 6, "6")), 0) << "method " << method;
    }
}

TEST_F(DiagramLayout, ShowsTheLayoutOfDifferentNominalsWithEachTextInItsPlace)
{
    FillWithRequired(L"0.15", L"-0.15", L"7.50");
    ChooseMethod(kAnalytic);
    EXPECT_EQ(DifferentPixels(Shown(), Expected(kAnalytic, 7.5, "7.50")), 0);
}

/// Sizes of four digits with decimal places: wider than the room beside the outermost markers.
class DiagramOfLargeSizes : public Diagram
{
protected:
    enum class Side
    {
        Left,
        Right,
    };

    static constexpr int kLimitInset = 60;
    static constexpr int kNominalInset = 40;

    void FillChainOf(const wchar_t* nominal, const wchar_t* upper, const wchar_t* lower)
    {
        AddLinks({{Dimension(L"A1", nominal, upper, lower), &objects[0]},
                  {Dimension(L"A2", L"50", L"0", L"0", 0), &objects[1]}});
        AddClosing(Dimension(L"", L"1250", upper, lower), &closingObject);
    }

    /// The smallest rectangle around all that is black.
    static CRect InkOf(const Pixels& picture)
    {
        CRect ink(picture.width, picture.height, 0, 0);
        for (int row = 0; row < picture.height; ++row)
            for (int column = 0; column < picture.width; ++column)
                if (picture.At(column, row) == kBlack)
                {
                    ink.left = std::min<int>(ink.left, column);
                    ink.top = std::min<int>(ink.top, row);
                    ink.right = std::max<int>(ink.right, column + 1);
                    ink.bottom = std::max<int>(ink.bottom, row + 1);
                }
        return ink;
    }

    /// The text is whole, at the side of the area, and nothing runs through it.
    void ExpectAtSide(Side side, int y, const wchar_t* text, int inset) const
    {
        SCOPED_TRACE(testing::Message() << "text at " << y << " on the " << (side == Side::Left ? "left" : "right"));
        const Pixels shown = Shown();
        CSize extent;
        int left = 0;
        const Pixels alone = PaintedLike(Area(), [&](CDC& dc) {
            extent = dc.GetTextExtent(text);
            left = side == Side::Left ? 0 : shown.width - extent.cx;
            dc.TextOut(left, y, text);
        });
        ASSERT_GT(extent.cx, inset) << "it would be cut";
        ASSERT_GT(alone.Count(kBlack), 20);
        const CRect ink = InkOf(alone);
        int different = 0;
        for (int row = ink.top; row < ink.bottom; ++row)
            for (int column = ink.left; column < ink.right; ++column)
                different += (shown.At(column, row) == kBlack) != (alone.At(column, row) == kBlack) ? 1 : 0;
        EXPECT_EQ(different, 0);
    }
};

TEST_F(DiagramOfLargeSizes, KeepsTheLimitsWithinItsArea)
{
    FillChainOf(L"1300", L"0.123456789", L"-0.123456789");
    ChooseMethod(kAnalytic);
    for (const int y : {40, 180})  // required and computed
    {
        ExpectAtSide(Side::Left, y, L"1249.876543211", kLimitInset);
        ExpectAtSide(Side::Right, y, L"1250.123456789", kLimitInset);
    }
}

// Both on the left: the longer labels go below those of the upper limits.
TEST_F(DiagramOfLargeSizes, KeepsTheLimitsOfOneSideApart)
{
    FillChainOf(L"1300", L"-0.183456", L"-0.223456");
    ChooseMethod(kAnalytic);
    int height = 0;
    PaintedLike(Area(), [&](CDC& dc) { height = dc.GetTextExtent(CString(L"0")).cy; });
    for (const int y : {40, 180})  // required and computed
        ExpectAtSide(Side::Left, y + height, L"1249.776544", kLimitInset);
}

TEST_F(DiagramOfLargeSizes, KeepsASmallerNominalWithinItsArea)
{
    FillChainOf(L"1299.8755", L"0.1", L"-0.1");
    ChooseMethod(kAnalytic);
    ExpectAtSide(Side::Left, Shown().height - 20, L"1249.8755", kNominalInset);
}

TEST_F(DiagramOfLargeSizes, KeepsAGreaterNominalWithinItsArea)
{
    FillChainOf(L"1300.1245", L"0.1", L"-0.1");
    ChooseMethod(kProbabilistic);
    ExpectAtSide(Side::Right, Shown().height - 20, L"1250.1245", kNominalInset);
}

TEST_F(Diagram, IsWhiteToBeginWith)
{
    EXPECT_TRUE(IsWhite());
    ChooseMethod(kAnalytic);
    EXPECT_TRUE(IsWhite());
}

TEST_F(Diagram, IsWhiteWithoutAMethod)
{
    FillWithRequired(L"0.15", L"-0.15");
    EXPECT_TRUE(IsWhite());
}

TEST_F(Diagram, IsWhiteWithFewerThanTwoLinks)
{
    AddLink(Dimension(L"A1", L"6", L"0.1", L"-0.1"), &objects[0]);
    AddClosing(Dimension(L"", L"6", L"0.1", L"-0.1"), &closingObject);
    for (const int method : {kAnalytic, kProbabilistic})
    {
        ChooseMethod(method);
        EXPECT_TRUE(IsWhite()) << method;
    }
}

TEST_F(Diagram, IsWhiteWithoutAClosingLink)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kAnalytic);
    ASSERT_FALSE(IsWhite());
    Command(ID_CLOSING_DELETE);
    EXPECT_TRUE(IsWhite());
}

TEST_F(Diagram, IsWhiteWhenTheClosingLinkHasNoHostObject)
{
    FillWithRequired(L"0.15", L"-0.15");
    AddClosing(Dimension(L"", L"6", L"0.15", L"-0.15"), nullptr);
    ChooseMethod(kAnalytic);
    EXPECT_TRUE(IsWhite());
}

TEST_F(Diagram, IsWhiteAfterAllLinksWereDeleted)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kProbabilistic);
    ASSERT_FALSE(IsWhite());
    Command(ID_LINK_DELETE_ALL);
    EXPECT_TRUE(IsWhite());
}

TEST_F(Diagram, ComesBackWhenItWasCovered)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kAnalytic);
    const Pixels before = Shown();
    MakeDirty(Area());
    ASSERT_GT(DifferentPixels(before, Shown()), 0);
    ::InvalidateRect(Area(), nullptr, TRUE);
    PumpUntilIdle();
    EXPECT_EQ(DifferentPixels(before, Shown()), 0);
}

TEST_F(Diagram, ComesBackWhenItsDialogWasHidden)
{
    FillWithRequired(L"0.15", L"-0.15");
    ChooseMethod(kProbabilistic);
    const Pixels before = Shown();
    ::ShowWindow(Window(), SW_HIDE);
    ::ShowWindow(Window(), SW_SHOW);
    PumpUntilIdle();
    EXPECT_EQ(DifferentPixels(before, Shown()), 0);
}

// Left invalid, the control would paint itself over the diagram.
TEST_F(Diagram, IsNeverLeftInvalid)
{
    FillWithRequired(L"0.15", L"-0.15");
    for (const UINT command : {ID_METHOD_ANALYTIC, ID_METHOD_PROBABILISTIC, ID_CLOSING_DELETE, ID_LINK_DELETE_ALL})
    {
        Command(command);
        EXPECT_FALSE(::GetUpdateRect(Area(), nullptr, FALSE)) << command;
        EXPECT_FALSE(::GetUpdateRect(Window(), nullptr, FALSE)) << command;
    }
}

// Texts without a number count as 0, and an infinite or missing value reaches no coordinate.
TEST_F(Diagram, SurvivesTextsThatAreNoNumbers)
{
    AddLinks({{Dimension(L"A1", L"abc", L"x", L"y"), &objects[0]}, {Dimension(L"A2", L"1e400", L"", L""), nullptr}});
    AddClosing(Dimension(L"", L"nan", L"inf", L"-inf"), &closingObject);
    for (const int method : {kAnalytic, kProbabilistic})
        ChooseMethod(method);
    EXPECT_GT(CountOf(kWhite), 0);
    EXPECT_FALSE(::GetUpdateRect(Area(), nullptr, FALSE));
}

// Decreasing links are subtracted: here the variance is negative, and the limits are no numbers.
TEST_F(Diagram, SurvivesANegativeVariance)
{
    AddLinks({{Dimension(L"A1", L"10", L"0.01", L"-0.01"), &objects[0]},
              {Dimension(L"A2", L"4", L"0.5", L"-0.5", 0), &objects[1]}});
    AddClosing(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
    ChooseMethod(kProbabilistic);
    EXPECT_EQ(CountOf(kGreen) + CountOf(kRed), 0);
    EXPECT_EQ(Shown().At(Shown().width / 2, 30), kBlack) << "the centre line";
}

}  // namespace
