#include "tolerance_dialog_test.h"

namespace
{

using LinkAccepting = ToleranceDialogTest<LinkDialog>;
using ClosingAccepting = ToleranceDialogTest<ClosingDialog>;

template <class Controls>
class Accepting : public ToleranceDialogTest<Controls>
{
protected:
    /// Loads a dimension, types the two deviations and presses OK.
    /// @return  what the host reads while it is told; nothing when it isn't
    std::optional<CDimParams> Accept(const wchar_t* upper, const wchar_t* lower, int dimKind = 1)
    {
        CDimParams params = FreeDimension();
        params.dimKind = dimKind;
        std::optional<CDimParams> told;
        this->OnNotification([this, &told](UINT) { told = this->Record(); });
        m_result = this->RunLoaded(params, {[this, upper, lower] {
                                       this->Write(Controls::kUpper, upper);
                                       this->Write(Controls::kLower, lower);
                                       this->Command(Controls::kOk);
                                       m_running = this->dialog->ContinueModal() != FALSE;
                                       m_upperText = this->Text(Controls::kUpper);
                                       m_lowerText = this->Text(Controls::kLower);
                                       m_record = this->Record();
                                   }});
        return told;
    }

    void ExpectRefused(const wchar_t* upper, const wchar_t* lower, UINT message, int dimKind = 1)
    {
        SCOPED_TRACE(testing::Message() << "upper '" << upper << "' lower '" << lower << "' of a dimension of kind "
                                        << dimKind);
        const ExpectMessageBox box;
        EXPECT_FALSE(Accept(upper, lower, dimKind).has_value());
        EXPECT_EQ(box.Text(), ResourceText(message).GetString());
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_TRUE(m_running);
        EXPECT_EQ(m_upperText, upper) << "what was typed stays typed";
        EXPECT_EQ(m_lowerText, lower);
        EXPECT_EQ(m_record.upperDev, upper) << "the texts as typed stay in the record";
        EXPECT_EQ(m_record.lowerDev, lower);
        EXPECT_EQ(m_record.nominal, L"25");
    }

    void ExpectAccepted(const wchar_t* upper, const wchar_t* lower, const wchar_t* normalUpper,
                        const wchar_t* normalLower)
    {
        SCOPED_TRACE(testing::Message() << "upper '" << upper << "' lower '" << lower << "'");
        const auto told = Accept(upper, lower);
        ASSERT_TRUE(told.has_value());
        EXPECT_EQ(told->upperDev, normalUpper);
        EXPECT_EQ(told->lowerDev, normalLower);
        EXPECT_EQ(m_result, IDOK);
    }

    INT_PTR m_result = 0;
    bool m_running = false;
    CString m_upperText;
    CString m_lowerText;
    CDimParams m_record;
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(Accepting, Dialogs, );

TYPED_TEST(Accepting, TellsTheHostTheRecordOnceAndEndsWithOk)
{
    std::vector<CDimParams> told;
    this->OnNotification([this, &told](UINT) { told.push_back(this->Record()); });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{TypeParam::kAccepted}));
    EXPECT_EQ(told, (std::vector<CDimParams>{FreeDimension()}));
}

TYPED_TEST(Accepting, TellsTheHostBeforeItResets)
{
    CString shown;
    this->OnNotification([this, &shown](UINT) { shown = this->Text(TypeParam::kNominal); });
    this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_EQ(shown, L"25");
    EXPECT_EQ(this->Record(), EmptyRecord());
}

TYPED_TEST(Accepting, NeedsNoDimension)
{
    std::vector<CDimParams> told;
    this->OnNotification([this, &told](UINT) { told.push_back(this->Record()); });
    const INT_PTR result = this->Run({[this] { this->Click(TypeParam::kOk); }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{TypeParam::kAccepted}));
    EXPECT_EQ(told, (std::vector<CDimParams>{CDimParams{}}));
}

// They are read, but not checked.
TYPED_TEST(Accepting, TellsTheDeviationsThatStandThereEvenWithoutADimension)
{
    CDimParams told;
    this->OnNotification([this, &told](UINT) { told = this->Record(); });
    const INT_PTR result = this->Run({[this] {
        this->Write(TypeParam::kUpper, L"1x");
        this->Write(TypeParam::kLower, L"2x");
        this->Click(TypeParam::kOk);
    }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(told.upperDev, L"1x");
    EXPECT_EQ(told.lowerDev, L"2x");
}

TYPED_TEST(Accepting, WorksWithoutAHost)
{
    this->dialog->SetHostWindow(nullptr);
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_EQ(result, IDOK);
}

TYPED_TEST(Accepting, TakesTheFieldAsItStandsInTheBox)
{
    CString field;
    this->OnNotification([this, &field](UINT) { field = this->Record().tolField; });
    this->RunLoaded(FreeDimension(), {[this] {
                        this->TypeField(L"my own");
                        this->Click(TypeParam::kOk);
                    }});
    EXPECT_EQ(field, L"my own");
}

// 0.0125 mm from the library's +12.5 micrometres.
TYPED_TEST(Accepting, BringsTheLibrarysDeviationsIntoNormalForm)
{
    TheGaugeBase().fields["js9"] = {.lower = -12.5F, .upper = 12.5F};
    CDimParams params = FreeDimension();
    params.tolField = L"js9";
    CDimParams told;
    this->OnNotification([this, &told](UINT) { told = this->Record(); });
    this->RunLoaded(params, {[this] {
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.0125");
                        this->Click(TypeParam::kOk);
                    }});
    EXPECT_EQ(told.upperDev, L"0.0125");
    EXPECT_EQ(told.lowerDev, L"-0.0125");
}

TYPED_TEST(Accepting, BringsTypedDeviationsIntoNormalForm)
{
    this->ExpectAccepted(L" 007.50 ", L".5", L"7.5", L"0.5");
    this->ExpectAccepted(L"+.5", L"-0.5", L"0.5", L"-0.5");
    this->ExpectAccepted(L"0.1", L"", L"0.1", L"0");
    this->ExpectAccepted(L"", L"-0.1", L"0", L"-0.1");
    this->ExpectAccepted(L"0.1", L"0", L"0.1", L"0");
}

TYPED_TEST(Accepting, RefusesAMalformedUpperDeviation)
{
    this->ExpectRefused(L"1a", L"0", IDS_UPPER_DEV_MALFORMED);
    this->ExpectRefused(L"-.5", L"-1", IDS_UPPER_DEV_MALFORMED);
    this->ExpectRefused(L"+5e-05", L"0", IDS_UPPER_DEV_MALFORMED);
    this->ExpectRefused(L"\x0661", L"0", IDS_UPPER_DEV_MALFORMED);  // an Arabic digit
}

TYPED_TEST(Accepting, RefusesAMalformedLowerDeviation)
{
    this->ExpectRefused(L"1", L"1..2", IDS_LOWER_DEV_MALFORMED);
}

TYPED_TEST(Accepting, NamesTheUpperDeviationWhenBothAreMalformed)
{
    this->ExpectRefused(L"a", L"b", IDS_UPPER_DEV_MALFORMED);
}

TYPED_TEST(Accepting, RefusesALowerDeviationNotBelowTheUpper)
{
    this->ExpectRefused(L"0.1", L"0.1", IDS_DEVIATIONS_INCONSISTENT);
    this->ExpectRefused(L"", L"0.1", IDS_DEVIATIONS_INCONSISTENT);
}

TYPED_TEST(Accepting, RefusesTwoZeros)
{
    this->ExpectRefused(L"0", L"0", IDS_DEVIATIONS_INCONSISTENT);
}

TYPED_TEST(Accepting, RefusesTwoEmptyDeviations)
{
    for (const int dimKind : {0, 1, 3})
        this->ExpectRefused(L"", L"", IDS_DEVIATIONS_MISSING, dimKind);
}

// Blanks are something typed: the pair's own rule refuses them.
TYPED_TEST(Accepting, TellsBlanksFromNothing)
{
    this->ExpectRefused(L" ", L"", IDS_DEVIATIONS_INCONSISTENT);
    this->ExpectRefused(L"000", L"", IDS_DEVIATIONS_INCONSISTENT);
}

TYPED_TEST(Accepting, RefusesTwoEmptyDeviationsOfKindTwoByThePairsRule)
{
    this->ExpectRefused(L"", L"", IDS_DEVIATIONS_INCONSISTENT, 2);
}

TYPED_TEST(Accepting, ReadsTheLockedDeviationsOfKindTwoBack)
{
    const auto told = this->Accept(L"0.20", L"-0.1", 2);
    ASSERT_TRUE(told.has_value());
    EXPECT_EQ(told->upperDev, L"0.2");
    EXPECT_EQ(told->lowerDev, L"-0.1");
    EXPECT_EQ(told->tolField, L"zz") << "the box keeps the loaded text, too";
}

TYPED_TEST(Accepting, GoesThroughAfterACorrection)
{
    const ExpectMessageBox box;
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] {
                                               this->Write(TypeParam::kUpper, L"x");
                                               this->Click(TypeParam::kOk);
                                               this->Write(TypeParam::kUpper, L"0.3");
                                               this->Click(TypeParam::kOk);
                                           }});
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(box.WasShown());
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{TypeParam::kAccepted}));
}

TEST_F(ClosingAccepting, NeedsNoName)
{
    CDimParams nameless = FreeDimension();
    nameless.name = L"";
    CDimParams told;
    OnNotification([this, &told](UINT) { told = Record(); });
    const INT_PTR result = RunLoaded(nameless, {[this] { Click(IDC_CLOSING_OK); }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(told, nameless);
}

TEST_F(LinkAccepting, RefusesAnEmptyName)
{
    RunLoaded(FreeDimension(), {[this] {
                  Write(IDC_LINK_NAME, L"");
                  Write(IDC_LINK_UPPER_DEV, L"x");
                  for (const int button : {IDC_LINK_OK, IDC_LINK_APPLY})
                  {
                      const ExpectMessageBox box;
                      Click(button);
                      EXPECT_EQ(box.Text(), ResourceText(IDS_NAME_MISSING).GetString()) << "the name comes first";
                  }
                  EXPECT_TRUE(Codes().empty());
                  EXPECT_EQ(Text(IDC_LINK_UPPER_DEV), L"x");
              }});
}

TEST_F(LinkAccepting, ReadsTheDeviationsOnOkButNotOnApplyWhenTheNameIsMissing)
{
    RunLoaded(FreeDimension(), {[this] {
                  Write(IDC_LINK_NAME, L"");
                  Write(IDC_LINK_UPPER_DEV, L"0.7");
                  Write(IDC_LINK_LOWER_DEV, L"0.6");
                  {
                      const ExpectMessageBox box;
                      Click(IDC_LINK_APPLY);
                  }
                  EXPECT_EQ(Record().upperDev, L"0.2");
                  EXPECT_EQ(Record().lowerDev, L"-0.1");
                  {
                      const ExpectMessageBox box;
                      Click(IDC_LINK_OK);
                  }
                  EXPECT_EQ(Record().upperDev, L"0.7");
                  EXPECT_EQ(Record().lowerDev, L"0.6");
              }});
}

TEST_F(LinkAccepting, RefusesApplyWithAnEmptyNameEvenWithoutADimension)
{
    Run({[this] {
        const ExpectMessageBox box;
        Command(IDC_LINK_APPLY);
        EXPECT_EQ(box.Text(), ResourceText(IDS_NAME_MISSING).GetString());
        EXPECT_TRUE(Codes().empty());
    }});
}

TEST_F(LinkAccepting, ReadsNameWeightAndDirection)
{
    CDimParams told;
    OnNotification([this, &told](UINT) { told = Record(); });
    RunLoaded(FreeDimension(), {[this] {
                  Write(IDC_LINK_NAME, L"B2");
                  Click(IDC_LINK_WEIGHT_FIXED);
                  ::SendMessageW(Window(IDC_LINK_DIRECTION), CB_SETCURSEL, 0, 0);
                  Click(IDC_LINK_OK);
              }});
    CDimParams expected = FreeDimension();
    expected.name = L"B2";
    expected.weightFixed = 0;
    expected.increasing = 1;
    EXPECT_EQ(told, expected);
}

TEST_F(LinkAccepting, MakesFlagsOfWhateverWasLoaded)
{
    CDimParams params = FreeDimension();
    params.weightFixed = 7;
    params.increasing = -3;
    CDimParams told;
    OnNotification([this, &told](UINT) { told = Record(); });
    RunLoaded(params, {[this] { Click(IDC_LINK_OK); }});
    EXPECT_EQ(told.weightFixed, 1);
    EXPECT_EQ(told.increasing, 1);
}

// The record of kind 2 is increasing, the box shows what was loaded, and the box is what counts.
TEST_F(LinkAccepting, TakesTheDirectionOfKindTwoFromItsBox)
{
    CDimParams params = FreeDimension();
    params.dimKind = 2;
    CDimParams told;
    OnNotification([this, &told](UINT) { told = Record(); });
    RunLoaded(params, {[this] {
                  EXPECT_EQ(Record().increasing, 1);
                  Click(IDC_LINK_OK);
              }});
    EXPECT_EQ(told.increasing, 0);
}

TEST_F(LinkAccepting, KeepsTheDirectionWhenNoneIsSelected)
{
    CDimParams params = FreeDimension();
    params.increasing = 5;
    CDimParams told;
    OnNotification([this, &told](UINT) { told = Record(); });
    RunLoaded(params, {[this] {
                  ::SendMessageW(Window(IDC_LINK_DIRECTION), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
                  Click(IDC_LINK_OK);
              }});
    EXPECT_EQ(told.increasing, 5);
}

TEST_F(LinkAccepting, AppliesAndStaysOpenForTheNextDimension)
{
    std::vector<CDimParams> told;
    OnNotification([this, &told](UINT) { told.push_back(Record()); });
    CDimParams second = FreeDimension();
    second.name = L"A2";
    CDimParams third = FreeDimension();
    third.name = L"A3";
    const INT_PTR result = RunLoaded(FreeDimension(), {[this] { Click(IDC_LINK_APPLY); },
                                                       [this, second] {
                                                           Load(second);
                                                           Click(IDC_LINK_APPLY);
                                                       },
                                                       [this, third] {
                                                           Load(third);
                                                           Click(IDC_LINK_OK);
                                                       }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkApplied, kLinkApplied, kLinkAccepted}));
    EXPECT_EQ(told, (std::vector<CDimParams>{FreeDimension(), second, third}));
}

TEST_F(LinkAccepting, IsEmptyAfterApply)
{
    RunLoaded(FreeDimension(), {[this] {
                  Click(IDC_LINK_APPLY);
                  EXPECT_EQ(Record(), EmptyRecord());
                  for (const int control : {IDC_LINK_NAME, IDC_LINK_NOMINAL, IDC_LINK_CAPTION, IDC_LINK_UPPER_DEV,
                                            IDC_LINK_LOWER_DEV, IDC_LINK_FIELD})
                      EXPECT_EQ(Text(control), L"") << control;
                  EXPECT_FALSE(IsChecked(IDC_LINK_WEIGHT_FIXED));
                  EXPECT_FALSE(IsShown(IDC_LINK_PICTURE));
                  EXPECT_EQ(Enabled({IDC_LINK_NAME, IDC_LINK_WEIGHT_FIXED, IDC_LINK_DIRECTION, IDC_LINK_FIELD,
                                     IDC_LINK_FILTER, IDC_LINK_UPPER_DEV, IDC_LINK_LOWER_DEV, IDC_LINK_APPLY}),
                            std::vector<int>{});
                  EXPECT_EQ(Enabled({IDC_LINK_OK, IDC_LINK_CANCEL}), (std::vector<int>{IDC_LINK_OK, IDC_LINK_CANCEL}));
              }});
}

// What the host loads while it is told of the dimension before is gone with that one.
TEST_F(LinkAccepting, ResetsAfterTheHostWasToldOfApply)
{
    OnNotification([this](UINT code) {
        if (code == kLinkApplied)
            Load(FittedDimension());
    });
    RunLoaded(FreeDimension(), {[this] {
                  Click(IDC_LINK_APPLY);
                  EXPECT_EQ(Record(), EmptyRecord());
                  EXPECT_FALSE(IsEnabled(IDC_LINK_NAME));
              }});
}

TEST_F(LinkAccepting, AsksNothingOfTheLibraryWhenItResets)
{
    RunLoaded(FittedDimension(), {[this] {
                  Calls().clear();
                  Click(IDC_LINK_APPLY);
                  EXPECT_TRUE(Calls().empty());
              }});
}

}  // namespace
