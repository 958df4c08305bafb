#include "platform/moduleskin/resource.h"
#include "variable_dialog_test.h"

namespace
{

using VariableRedraw = VariableDialogTest;

TEST_F(VariableRedraw, TakesTheTypedMeanIntoTheRecordAndThePlot)
{
    Run({[] {},
         [this] {
             const Pixels former = ShownPlot();
             Write(IDC_VARIABLE_MEAN, L"25.15");
             Click(IDC_VARIABLE_REDRAW);
             EXPECT_EQ(Record().mean, 25.15);
             const Pixels shown = ShownPlot();
             EXPECT_GT(DifferentPixels(shown, former), 0);
             EXPECT_EQ(DifferentPixels(shown, ExpectedPlot()), 0);
         }});
    EXPECT_TRUE(Codes().empty());
}

TEST_F(VariableRedraw, LeavesNameLawAndTextsAlone)
{
    Run({[this] {
        Write(IDC_VARIABLE_MEAN, L"25.150");
        Write(IDC_VARIABLE_NAME, L"B");
        Click(IDC_VARIABLE_REDRAW);
        CVariableParams expected = UniformLink();
        expected.mean = 25.15;
        EXPECT_EQ(Record(), expected);
        EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"25.150");
        EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"B");
    }});
}

TEST_F(VariableRedraw, AsksForAMissingMean)
{
    Run({[this] {
        const ExpectMessageBox box;
        Write(IDC_VARIABLE_MEAN, L"");
        Click(IDC_VARIABLE_REDRAW);
        EXPECT_EQ(box.Text(), static_cast<const wchar_t*>(ResourceText(IDS_MEAN_MISSING)));
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(Record(), UniformLink());
    }});
}

class VariableRefusedMean : public VariableDialogTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(VariableRefusedMean, IsReportedAndStaysTyped)
{
    Run({[] {},
         [this] {
             const Pixels former = ShownPlot();
             const ExpectMessageBox box;
             Write(IDC_VARIABLE_MEAN, GetParam());
             Click(IDC_VARIABLE_REDRAW);
             EXPECT_EQ(box.Text(), static_cast<const wchar_t*>(ResourceText(IDS_MEAN_OUTSIDE_FIELD)));
             EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
             EXPECT_EQ(Record(), UniformLink());
             EXPECT_EQ(Text(IDC_VARIABLE_MEAN), GetParam());
             EXPECT_EQ(DifferentPixels(ShownPlot(), former), 0);
         }});
}

// Just beyond either end; without a number; a deviation; too large for a number.
INSTANTIATE_TEST_SUITE_P(Texts, VariableRefusedMean,
                         testing::Values(L"25.200000001", L"24.899999999", L"mean", L" ", L"0.05", L"-25.05",
                                         L"1e999"));

class VariableAcceptedMean : public VariableDialogTest,
                             public testing::WithParamInterface<std::pair<const wchar_t*, double>>
{
};

TEST_P(VariableAcceptedMean, IsTakenAsTheNumberAtItsStart)
{
    Run({[this] {
        Write(IDC_VARIABLE_MEAN, GetParam().first);
        Click(IDC_VARIABLE_REDRAW);
        EXPECT_EQ(Record().mean, GetParam().second);
    }});
}

// Both ends; the comma ends the number; what follows it is ignored.
INSTANTIATE_TEST_SUITE_P(Texts, VariableAcceptedMean,
                         testing::Values(std::pair(L"25.2", 25.2), std::pair(L"24.9", 24.9), std::pair(L"25,19", 25.0),
                                         std::pair(L" +25.1 mm", 25.1), std::pair(L"2.51e1", 25.1)));

// 0.1 + 0.071 and 0.171 differ in the last bit of their binary form.
TEST_F(VariableRedraw, AcceptsTheVeryEndOfADecimalField)
{
    Record().nominal = L"0.1";
    Record().upperDev = L"0.071";
    Record().lowerDev = L"0";
    Run({[this] {
        Write(IDC_VARIABLE_MEAN, L"0.171");
        Click(IDC_VARIABLE_REDRAW);
        EXPECT_EQ(Record().mean, 0.171);
    }});
}

// The user corrects the field at once.
TEST_F(VariableRedraw, PutsTheFocusOnARefusedMeanWithItsTextSelected)
{
    Run({[this] {
             const ExpectMessageBox box;
             Write(IDC_VARIABLE_MEAN, L"26");
             FocusOn(IDC_VARIABLE_REDRAW);
             Click(IDC_VARIABLE_REDRAW);
         },
         [this] {
             EXPECT_EQ(Focused(), IDC_VARIABLE_MEAN);
             EXPECT_EQ(::SendMessageW(Window(IDC_VARIABLE_MEAN), EM_GETSEL, 0, 0), MAKELRESULT(0, 2));
         }});
}

TEST_F(VariableRedraw, WorksAgainAfterARefusal)
{
    Run({[this] {
        {
            const ExpectMessageBox box;
            Write(IDC_VARIABLE_MEAN, L"26");
            Click(IDC_VARIABLE_REDRAW);
        }
        Write(IDC_VARIABLE_MEAN, L"25");
        Click(IDC_VARIABLE_REDRAW);
        EXPECT_EQ(Record().mean, 25.0);
    }});
}

/// A dialog that redraws in its own way.
class DerivedVariableDialog : public CVariableDlg
{
public:
    using CVariableDlg::CVariableDlg;
    int redrawn = 0;

protected:
    void OnRedraw() override { ++redrawn; }
};

TEST_F(VariableRedraw, AsksADerivedDialog)
{
    auto derived = std::make_unique<DerivedVariableDialog>(&host);
    const DerivedVariableDialog& asked = *derived;
    derived->SetHostWindow(&host);
    derived->Params() = UniformLink();
    dialog = std::move(derived);
    Run({[this] {
        Write(IDC_VARIABLE_MEAN, L"25.1");
        Click(IDC_VARIABLE_REDRAW);
    }});
    EXPECT_EQ(asked.redrawn, 1);
    EXPECT_EQ(dialog->Params().mean, 25.05);
}

}  // namespace
