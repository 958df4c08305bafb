#include "variable_dialog_test.h"

#include "distribution/density_plot_layout.h"
#include "drawing/gdi_painter.h"
#include "platform/moduleskin/resource.h"
#include "platform/text/text_encoding.h"
#include "tests/support/resource_count.h"

Pixels VariableDialogTest::ExpectedPlot()
{
    RECT area{};
    ::GetClientRect(Window(IDC_VARIABLE_PLOT), &area);
    DensityPlotInput input;
    input.width = area.right;
    input.height = area.bottom;
    input.nominalText = ToUtf8(Record().nominal);
    input.name = ToUtf8(Record().name);
    input.upperDevText = ToUtf8(Record().upperDev);
    input.lowerDevText = ToUtf8(Record().lowerDev);
    input.law = Record().law;
    input.mean = Record().mean;
    input.upperWord = ToUtf8(ResourceText(IDS_UPPER_LIMIT));
    input.lowerWord = ToUtf8(ResourceText(IDS_LOWER_LIMIT));
    return PaintedPixels(input.width, input.height, [&](CDC& dc) {
        ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(SYSTEM_FONT));
        PaintDisplayList(dc, LayoutDensityPlot(input), CSize(input.width, input.height));
    });
}

namespace
{

constexpr std::uint32_t kDensity = 0x00C4C4;  // 0, 196, 196
constexpr std::uint32_t kWhite = 0xFFFFFF;

class VariablePlot : public VariableDialogTest
{
protected:
    void RepaintDialog() const
    {
        ::RedrawWindow(dialog->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }

    void ExpectThePlotOfTheRecord()
    {
        const Pixels shown = ShownPlot();
        EXPECT_GT(shown.width, 300);
        EXPECT_GT(shown.height, 200);
        EXPECT_EQ(DifferentPixels(shown, ExpectedPlot()), 0);
    }
};

class VariablePlotOfLaw : public VariablePlot, public testing::WithParamInterface<std::int32_t>
{
};

TEST_P(VariablePlotOfLaw, IsOnTheScreen)
{
    Record().law = GetParam();
    Run({[] {}, [this] { ExpectThePlotOfTheRecord(); }});
}

TEST_P(VariablePlotOfLaw, HasItsDensityInTheMiddleOfTheField)
{
    Record().law = GetParam();
    Record().lowerDev = L"-0.2";  // symmetric: the middle is the plot's
    Record().mean = 25.1;
    Run({[] {},
         [this] {
             const Pixels shown = ShownPlot();
             const int besideNominal = shown.width / 2 + 3;
             const int aboveBase = shown.height - 30;
             EXPECT_EQ(shown.At(besideNominal, aboveBase), GetParam() == 0 ? kWhite : kDensity);
             EXPECT_EQ(shown.At(30, aboveBase), kWhite) << "beside the field";
         }});
}

INSTANTIATE_TEST_SUITE_P(Laws, VariablePlotOfLaw, testing::Values(0, 1, 2, 3));

class VariablePlotOfField : public VariablePlot,
                            public testing::WithParamInterface<std::pair<const wchar_t*, const wchar_t*>>
{
};

TEST_P(VariablePlotOfField, IsOnTheScreenForEveryLaw)
{
    Record().upperDev = GetParam().first;
    Record().lowerDev = GetParam().second;
    Run({[] {},
         [this] {
             for (const int position : {kNormal, kUniform, kTriangular})
             {
                 SCOPED_TRACE(position);
                 Choose(position);
                 ExpectThePlotOfTheRecord();
             }
         }});
}

// Straddling, above, far above and narrow, below and narrow; without a scale, without width, reversed, no numbers,
// huge.
INSTANTIATE_TEST_SUITE_P(Fields, VariablePlotOfField,
                         testing::Values(std::pair(L"0.1", L"-0.1"), std::pair(L"0.3", L"0.1"),
                                         std::pair(L"0.3", L"0.299"), std::pair(L"-0.299", L"-0.3"),
                                         std::pair(L"0", L"0"), std::pair(L"0.1", L"0.1"), std::pair(L"-0.1", L"-0.1"),
                                         std::pair(L"-0.1", L"0.1"), std::pair(L"x", L""),
                                         std::pair(L"1e300", L"-1e300"), std::pair(L"1e999", L"0")));

TEST_F(VariablePlot, ComesBackWhenItWasCovered)
{
    Run({[] {},
         [this] {
             const HWND plot = Window(IDC_VARIABLE_PLOT);
             MakeDirty(plot);
             ::RedrawWindow(plot, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
             ExpectThePlotOfTheRecord();
         }});
}

TEST_F(VariablePlot, IsDrawnAnewWheneverTheDialogPaints)
{
    Run({[] {},
         [this] {
             Record().mean = 25.19;
             Record().name = L"other";
             RepaintDialog();
             ExpectThePlotOfTheRecord();
         }});
}

TEST_F(VariablePlot, LeavesNothingToPaintAfterwards)
{
    Run({[] {},
         [this] {
             RepaintDialog();
             EXPECT_FALSE(::GetUpdateRect(Window(IDC_VARIABLE_PLOT), nullptr, FALSE));
             EXPECT_FALSE(::GetUpdateRect(dialog->m_hWnd, nullptr, FALSE));
         }});
}

// After the reset the record is empty: no density, but axes and the limits' texts.
TEST_F(VariablePlot, HasOnlyAxesAndZerosInAPaintAfterTheReset)
{
    Run({[] {},
         [this] {
             Click(IDC_VARIABLE_CANCEL);
             RepaintDialog();
             ExpectThePlotOfTheRecord();
             const Pixels shown = ShownPlot();
             EXPECT_EQ(shown.Count(kDensity), 0);
             EXPECT_EQ(shown.At(5, shown.height - 20), 0U) << "the base line";
         }});
}

// A host that repaints everything while it is told.
TEST_F(VariablePlot, CanBePaintedWhileTheHostIsTold)
{
    int different = -1;
    OnNotification([&](UINT) {
        RepaintDialog();
        different = DifferentPixels(ShownPlot(), ExpectedPlot());
    });
    Run({[] {}, [this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(different, 0);
}

TEST_F(VariablePlot, LeavesNoGraphicsObjectsBehind)
{
    Run({[] {},
         [this] {
             RepaintDialog();
             const int before = GdiObjectCount();
             for (int i = 0; i < 20; ++i)
                 RepaintDialog();
             EXPECT_EQ(GdiObjectCount(), before);
         }});
}

}  // namespace
