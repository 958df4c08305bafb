#include "tests/drawing/windowed/gdi_exhaustion.h"
#include "tolerance_dialog_test.h"

namespace
{

using LinkLoading = ToleranceDialogTest<LinkDialog>;

template <class Controls>
class Loading : public ToleranceDialogTest<Controls>
{
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(Loading, Dialogs, );

TYPED_TEST(Loading, ShowsTheTexts)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        EXPECT_EQ(this->Text(TypeParam::kNominal), L"25");
                        EXPECT_EQ(this->Text(TypeParam::kCaption), L"Size:");
                        EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.2");
                        EXPECT_EQ(this->Text(TypeParam::kLower), L"-0.1");
                    }});
}

TYPED_TEST(Loading, StoresAllNineValues)
{
    this->RunLoaded(FreeDimension(), {[this] { EXPECT_EQ(this->Record(), FreeDimension()); }});
}

TYPED_TEST(Loading, KeepsTheFlagsAsTheyArePassed)
{
    CDimParams params = FreeDimension();
    params.weightFixed = 7;
    params.increasing = -3;
    this->RunLoaded(params, {[this] {
                        EXPECT_EQ(this->Record().weightFixed, 7);
                        EXPECT_EQ(this->Record().increasing, -3);
                    }});
}

TYPED_TEST(Loading, EnablesTheInputs)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        const std::vector<int> inputs{TypeParam::kField, TypeParam::kFilter, TypeParam::kUpper,
                                                      TypeParam::kLower, TypeParam::kOk,     TypeParam::kCancel};
                        EXPECT_EQ(this->Enabled(inputs), inputs);
                    }});
}

TYPED_TEST(Loading, AsksTheLibraryOnce)
{
    this->Run({[this] {
        this->Calls().clear();
        this->Load(FittedDimension());
        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}}));
    }});
}

TYPED_TEST(Loading, NarrowsTheNominalToSinglePrecision)
{
    CDimParams params = FittedDimension();
    params.nominal = L"0.1 mm";
    this->Run({[this, params] {
        this->Calls().clear();
        this->Load(params);
        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{0.1F, "H7"}}));
    }});
}

TYPED_TEST(Loading, ShowsAndLocksTheDeviationsOfAKnownField)
{
    this->RunLoaded(FittedDimension(), {[this] {
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.021");
                        EXPECT_EQ(this->Text(TypeParam::kLower), L"") << "a deviation of exactly 0";
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kLower));
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kField));
                    }});
}

// What the library says is shown; the record takes it over when the user accepts.
TYPED_TEST(Loading, StoresTheDeviationsThatWereLoadedWithAKnownField)
{
    this->RunLoaded(FittedDimension(), {[this] { EXPECT_EQ(this->Record(), FittedDimension()); }});
}

TYPED_TEST(Loading, ReplacesTheDimensionBefore)
{
    CDimParams second = FreeDimension();
    second.nominal = L"40";
    second.upperDev = L"0.5";
    this->RunLoaded(FittedDimension(), {[this, second] {
                        this->Load(second);
                        EXPECT_EQ(this->Record(), second);
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.5");
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kUpper)) << "the known field's lock is gone";
                    }});
}

TYPED_TEST(Loading, ChangesNothingWithoutANominal)
{
    CDimParams nameless = FittedDimension();
    nameless.nominal = L"";
    nameless.caption = L"other";
    this->RunLoaded(FreeDimension(), {[this, nameless] {
                        this->Calls().clear();
                        this->Load(nameless);
                        EXPECT_EQ(this->Record(), FreeDimension());
                        EXPECT_EQ(this->Text(TypeParam::kCaption), L"Size:");
                        EXPECT_TRUE(this->Calls().empty());
                    }});
}

TYPED_TEST(Loading, LeavesAnEmptyDialogEmptyWithoutANominal)
{
    CDimParams nameless = FreeDimension();
    nameless.nominal = L"";
    this->RunLoaded(nameless, {[this] {
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kField));
                        EXPECT_EQ(this->Text(TypeParam::kField), L"");
                        EXPECT_FALSE(this->IsShown(TypeParam::kPicture));
                    }});
}

TYPED_TEST(Loading, ChangesNothingWithoutAWindow)
{
    this->dialog->Params() = FreeDimension();
    this->Load(FittedDimension());
    EXPECT_EQ(this->Record(), FreeDimension());
    EXPECT_TRUE(this->Calls().empty());
}

TYPED_TEST(Loading, MayBeGivenItsOwnRecord)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        CDimParams& own = this->dialog->Params();
                        this->dialog->SetDlgParams(own.name, own.nominal, own.caption, own.weightFixed, own.tolField,
                                                   own.upperDev, own.lowerDev, own.dimKind, own.increasing);
                        EXPECT_EQ(this->Record(), FreeDimension());
                        EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
                    }});
}

TYPED_TEST(Loading, TakesNoToleranceForKindTwo)
{
    CDimParams params = FittedDimension();
    params.dimKind = 2;
    CDimParams expected = params;
    expected.tolField = L"";
    expected.upperDev = L"";
    expected.lowerDev = L"";
    expected.increasing = 1;
    this->Run({[this, params, expected] {
        this->Calls().clear();
        this->Load(params);
        EXPECT_EQ(this->Record(), expected);
        const std::vector<int> tolerance{TypeParam::kField, TypeParam::kFilter, TypeParam::kUpper, TypeParam::kLower};
        EXPECT_EQ(this->Enabled(tolerance), std::vector<int>{});
        EXPECT_TRUE(this->Calls().empty()) << "the library is not asked";
        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.2") << "the edits keep the loaded texts";
        EXPECT_EQ(this->Text(TypeParam::kLower), L"-0.1");
    }});
}

TYPED_TEST(Loading, MayBeGivenItsOwnRecordOfKindTwo)
{
    CDimParams params = FreeDimension();
    params.dimKind = 2;
    this->dialog->Params() = params;
    this->Run({[this] {
        EXPECT_EQ(this->Record().nominal, L"25");
        EXPECT_EQ(this->Record().upperDev, L"");
        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.2");
    }});
}

TYPED_TEST(Loading, DrawsNoPictureForKindZeroAndTakesItsTolerance)
{
    CDimParams params = FittedDimension();
    params.dimKind = 0;
    this->RunLoaded(params, {[this, params] {
                        EXPECT_FALSE(this->IsShown(TypeParam::kPicture));
                        EXPECT_EQ(this->Record(), params);
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.021");
                    }});
}

TYPED_TEST(Loading, LeavesThePictureBeforeForKindZero)
{
    CDimParams params = FreeDimension();
    params.dimKind = 0;
    this->RunLoaded(FreeDimension(), {[this, params] {
                        const Pixels before = ShownPixels(this->Window(TypeParam::kPicture));
                        this->Load(params);
                        EXPECT_TRUE(this->IsShown(TypeParam::kPicture));
                        EXPECT_EQ(DifferentPixels(ShownPixels(this->Window(TypeParam::kPicture)), before), 0);
                    }});
}

TYPED_TEST(Loading, StoresAnUnknownKindAndShowsAnEmptyFrame)
{
    CDimParams params = FreeDimension();
    params.dimKind = 9;
    this->RunLoaded(FreeDimension(), {[this, params] {
                        this->Load(params);
                        EXPECT_TRUE(this->IsShown(TypeParam::kPicture));
                        const Pixels shown = ShownPixels(this->Window(TypeParam::kPicture));
                        EXPECT_EQ(shown.Count(shown.At(0, 0)), shown.width * shown.height);
                        EXPECT_EQ(this->Record(), params);
                    }});
}

TYPED_TEST(Loading, DrawsEachKindsPicture)
{
    for (const auto& [kind, bitmap] : {std::pair{1, IDB_KIND_1}, std::pair{2, IDB_KIND_2}, std::pair{3, IDB_KIND_3}})
    {
        SCOPED_TRACE(kind);
        CDimParams params = FreeDimension();
        params.dimKind = kind;
        Pixels shown;
        this->RunLoaded(params, {[&] { shown = ShownPixels(this->Window(TypeParam::kPicture)); }});
        const Pixels expected = ResourcePicture(bitmap);
        ASSERT_GT(expected.width, 0);
        EXPECT_EQ(DifferentPixels(shown, expected), 0);
    }
}

// The texts are shown before the picture, the record is stored after it.
TYPED_TEST(Loading, EndsBeforeTheRecordWhenNoMemoryContextCanBeMade)
{
    this->Run({[this] {
        this->Calls().clear();
        {
            const GdiExhaustion exhaustion;
            this->Load(FittedDimension());
        }
        EXPECT_EQ(this->Record(), CDimParams{});
        EXPECT_TRUE(this->Calls().empty());
        EXPECT_EQ(this->Text(TypeParam::kField), L"H7");
        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.2");
        EXPECT_TRUE(this->IsEnabled(TypeParam::kField));
        EXPECT_TRUE(this->IsShown(TypeParam::kPicture));
    }});
}

// The edits are unlocked then, and the record still has the field before.
TYPED_TEST(Loading, AsksForTheFieldBeforeWhenItIsTypedAfterALoadThatEndedEarly)
{
    CDimParams known = FreeDimension();
    known.tolField = L"k6";
    known.dimKind = 0;  // no picture, whose end would leave a graphics object to the next one
    this->RunLoaded(known, {[this, known] {
                        {
                            const GdiExhaustion exhaustion;
                            this->Load(FreeDimension());
                        }
                        ASSERT_EQ(this->Record(), known);
                        ASSERT_TRUE(this->IsEnabled(TypeParam::kUpper));
                        this->Calls().clear();
                        this->Write(TypeParam::kField, L"k6");
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "k6"}}));
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.015");
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kLower));
                    }});
}

TEST_F(LinkLoading, ShowsLabelWeightAndDirection)
{
    RunLoaded(
        FreeDimension(), {[this] {
            EXPECT_EQ(Text(IDC_LINK_NAME), L"A1");
            EXPECT_TRUE(IsChecked(IDC_LINK_WEIGHT_FIXED));
            EXPECT_EQ(::SendMessageW(Window(IDC_LINK_DIRECTION), CB_GETCURSEL, 0, 0), 1);
            const std::vector<int> inputs{IDC_LINK_NAME, IDC_LINK_WEIGHT_FIXED, IDC_LINK_DIRECTION, IDC_LINK_APPLY};
            EXPECT_EQ(Enabled(inputs), inputs);
        }});
}

TEST_F(LinkLoading, ShowsAnIncreasingLinkOfFreeWeight)
{
    CDimParams params = FreeDimension();
    params.weightFixed = 0;
    params.increasing = 1;
    RunLoaded(FreeDimension(), {[this, params] {
                  Load(params);
                  EXPECT_FALSE(IsChecked(IDC_LINK_WEIGHT_FIXED));
                  EXPECT_EQ(::SendMessageW(Window(IDC_LINK_DIRECTION), CB_GETCURSEL, 0, 0), 0);
              }});
}

TEST_F(LinkLoading, LetsLabelWeightDirectionAndApplyBeUsedForKindTwo)
{
    CDimParams params = FreeDimension();
    params.dimKind = 2;
    RunLoaded(
        params, {[this] {
            const std::vector<int> inputs{IDC_LINK_NAME, IDC_LINK_WEIGHT_FIXED, IDC_LINK_DIRECTION, IDC_LINK_APPLY};
            EXPECT_EQ(Enabled(inputs), inputs);
        }});
}

TEST_F(LinkLoading, LeavesTheWeightWhenNoMemoryContextCanBeMade)
{
    Run({[this] {
        const GdiExhaustion exhaustion;
        Load(FreeDimension());
        EXPECT_FALSE(IsChecked(IDC_LINK_WEIGHT_FIXED));
        EXPECT_EQ(Text(IDC_LINK_NAME), L"A1");
        EXPECT_TRUE(IsEnabled(IDC_LINK_APPLY));
    }});
}

}  // namespace
