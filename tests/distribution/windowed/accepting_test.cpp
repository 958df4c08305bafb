#include "platform/moduleskin/resource.h"
#include "variable_dialog_test.h"

namespace
{

class VariableAccepting : public VariableDialogTest
{
protected:
    CVariableParams TypedLink() const
    {
        CVariableParams params = UniformLink();
        params.name = L"B2";
        params.law = 3;
        params.mean = 25.2;
        return params;
    }

    void Type() const
    {
        Write(IDC_VARIABLE_NAME, L"B2");
        Write(IDC_VARIABLE_MEAN, L"25.2");
        Choose(kTriangular);
    }
};

TEST_F(VariableAccepting, TellsTheHostWhichFindsTheWholeRecord)
{
    CVariableParams told;
    OnNotification([&](UINT) { told = Record(); });
    const INT_PTR result = Run({[this] {
        Type();
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDistributionAccepted}));
    EXPECT_EQ(told, TypedLink());
}

TEST_F(VariableAccepting, ShowsWhatWasTypedWhileTheHostIsTold)
{
    CString name;
    CString mean;
    bool pictured = false;
    OnNotification([&](UINT) {
        name = Text(IDC_VARIABLE_NAME);
        mean = Text(IDC_VARIABLE_MEAN);
        pictured = IsShown(IDC_VARIABLE_PICTURE);
    });
    Run({[this] {
        Type();
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(name, L"B2");
    EXPECT_EQ(mean, L"25.2");
    EXPECT_TRUE(pictured);
}

TEST_F(VariableAccepting, ResetsRecordAndControlsAfterwards)
{
    Run({[this] {
        Click(IDC_VARIABLE_OK);
        EXPECT_EQ(Record(), CVariableParams{});
        EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"");
        EXPECT_EQ(Text(IDC_VARIABLE_NOMINAL), L"");
        EXPECT_EQ(Text(IDC_VARIABLE_CAPTION), L"");
        EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"0");
        EXPECT_FALSE(IsShown(IDC_VARIABLE_PICTURE));
    }});
}

TEST_F(VariableAccepting, LeavesTheDeviationAndTheSelectedLawAsTheyAreShown)
{
    Run({[this] {
        Choose(kTriangular);
        Click(IDC_VARIABLE_OK);
        EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0.061237244");
        EXPECT_EQ(Position(), kTriangular);
    }});
}

TEST_F(VariableAccepting, TakesTheSelectedLawOfALinkWithoutOne)
{
    Record().law = 0;
    std::int32_t told = 0;
    OnNotification([&](UINT) { told = Record().law; });
    Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(told, 1);
}

TEST_F(VariableAccepting, KeepsTheLawWithoutASelection)
{
    std::int32_t told = 0;
    OnNotification([&](UINT) { told = Record().law; });
    Run({[this] {
        ::SendMessageW(Window(IDC_VARIABLE_LAW), CB_SETCURSEL, static_cast<WPARAM>(CB_ERR), 0);
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(told, 2);
}

TEST_F(VariableAccepting, TakesAnEmptyName)
{
    CString told = L"?";
    OnNotification([&](UINT) { told = Record().name; });
    const INT_PTR result = Run({[this] {
        Write(IDC_VARIABLE_NAME, L"");
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(told, L"");
}

TEST_F(VariableAccepting, AsksForAMissingMeanAndStaysOpen)
{
    const INT_PTR result = Run({[this] {
        const ExpectMessageBox box;
        Write(IDC_VARIABLE_MEAN, L"");
        Click(IDC_VARIABLE_OK);
        EXPECT_EQ(box.Text(), static_cast<const wchar_t*>(ResourceText(IDS_MEAN_MISSING)));
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(Record(), UniformLink());
    }});
    EXPECT_EQ(result, ModalScript::kStepsDone);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(VariableAccepting, RefusesAMeanOutsideTheFieldAndStaysOpen)
{
    const INT_PTR result = Run({[this] {
        const ExpectMessageBox box;
        Type();
        Write(IDC_VARIABLE_MEAN, L"25.200000001");
        Click(IDC_VARIABLE_OK);
        EXPECT_EQ(box.Text(), static_cast<const wchar_t*>(ResourceText(IDS_MEAN_OUTSIDE_FIELD)));
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(Record().mean, 25.05);
        EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"25.200000001");
        EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"B2");
        EXPECT_TRUE(IsShown(IDC_VARIABLE_PICTURE));
    }});
    EXPECT_EQ(result, ModalScript::kStepsDone);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(VariableAccepting, KeepsTheNameThatWasTypedBesideARefusedMean)
{
    Run({[this] {
        const ExpectMessageBox box;
        Type();
        Write(IDC_VARIABLE_MEAN, L"");
        Click(IDC_VARIABLE_OK);
        EXPECT_EQ(Record().name, L"B2");
    }});
}

TEST_F(VariableAccepting, AcceptsTheVeryEndsOfTheField)
{
    for (const wchar_t* mean : {L"24.9", L"25.2"})
    {
        SCOPED_TRACE(testing::PrintToString(CString(mean)));
        Record() = UniformLink();
        const INT_PTR result = Run({[&] {
            Write(IDC_VARIABLE_MEAN, mean);
            Click(IDC_VARIABLE_OK);
        }});
        EXPECT_EQ(result, IDOK);
    }
}

TEST_F(VariableAccepting, AcceptsAfterARefusal)
{
    const INT_PTR result = Run({[this] {
        {
            const ExpectMessageBox box;
            Write(IDC_VARIABLE_MEAN, L"26");
            Click(IDC_VARIABLE_OK);
        }
        Write(IDC_VARIABLE_MEAN, L"25");
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDistributionAccepted}));
}

TEST_F(VariableAccepting, WorksWithoutAHostWindow)
{
    dialog->SetHostWindow(nullptr);
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Record(), CVariableParams{});
}

TEST_F(VariableAccepting, TakesALongNameWhole)
{
    const CString longName(L'x', 500);
    CString told;
    OnNotification([&](UINT) { told = Record().name; });
    Run({[&] {
        Write(IDC_VARIABLE_NAME, longName);
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(told, longName);
}

TEST_F(VariableAccepting, TakesANameInAnyScript)
{
    CString told;
    OnNotification([&](UINT) { told = Record().name; });
    Run({[&] {
        Write(IDC_VARIABLE_NAME, L"\u0410\u2081 \U0001D6AB");
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(told, L"\u0410\u2081 \U0001D6AB");
}

}  // namespace
