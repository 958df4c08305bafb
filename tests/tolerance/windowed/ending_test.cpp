#include "tests/support/message_pump.h"
#include "tests/support/resource_count.h"
#include "tolerance_dialog_test.h"

namespace
{

template <class Controls>
class Ending : public ToleranceDialogTest<Controls>
{
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(Ending, Dialogs, );

constexpr int kEndedByHost = 5;

TYPED_TEST(Ending, TellsTheHostOfCancelOnceAndEndsWithCancel)
{
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TYPED_TEST(Ending, CancelsWithoutADimensionAlike)
{
    const INT_PTR result = this->Run({[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TYPED_TEST(Ending, ResetsBeforeTheHostHearsOfCancel)
{
    CDimParams told = FreeDimension();
    CString shown = L"25";
    bool enabled = true;
    bool pictured = true;
    this->OnNotification([&](UINT) {
        told = this->Record();
        shown = this->Text(TypeParam::kNominal);
        enabled = this->IsEnabled(TypeParam::kField);
        pictured = this->IsShown(TypeParam::kPicture);
    });
    this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_EQ(told, EmptyRecord());
    EXPECT_EQ(shown, L"");
    EXPECT_FALSE(enabled);
    EXPECT_FALSE(pictured);
}

// The record is empty by then: accepted, it would blank the link of an edit that the user cancelled.
TYPED_TEST(Ending, IgnoresAnOkInsideTheReportOfCancel)
{
    this->OnNotification([this](UINT) {
        ::SendMessageW(this->dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(TypeParam::kOk, BN_CLICKED),
                       reinterpret_cast<LPARAM>(this->Window(TypeParam::kOk)));
    });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TYPED_TEST(Ending, AcceptsInTheRunAfterACancelledOne)
{
    this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_EQ(this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }}), IDOK);
}

TYPED_TEST(Ending, CancelsByTheCloseBox)
{
    const INT_PTR result = this->RunLoaded(
        FreeDimension(), {[this] { ::PostMessageW(this->dialog->m_hWnd, WM_SYSCOMMAND, SC_CLOSE, 0); }, [] {}});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TYPED_TEST(Ending, EndsWithTheHostsResultBetweenTwoActs)
{
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->dialog->EndDialog(kEndedByHost); }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_TRUE(this->Codes().empty());
}

// The first result counts: the host gave it while it was told of the acceptance.
TYPED_TEST(Ending, KeepsTheResultThatTheHostGaveWhileItWasToldOfOk)
{
    this->OnNotification([this](UINT) { this->dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_EQ(this->Record(), EmptyRecord()) << "the reset follows all the same";
}

TYPED_TEST(Ending, KeepsTheResultThatTheHostGaveWhileItWasToldOfCancel)
{
    this->OnNotification([this](UINT) { this->dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_EQ(result, kEndedByHost);
}

TYPED_TEST(Ending, EndsNormallyInTheRunAfterOneThatTheHostEnded)
{
    this->OnNotification([this](UINT) { this->dialog->EndDialog(kEndedByHost); });
    this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    this->OnNotification([](UINT) {});
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_EQ(result, IDOK);
}

TYPED_TEST(Ending, ResetsTheRecordWhenTheHostDestroysTheWindow)
{
    this->OnNotification([this](UINT) { this->dialog->DestroyWindow(); });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_NE(result, IDOK);
    EXPECT_NE(result, kEndedByHost);
    EXPECT_EQ(this->Record(), EmptyRecord());
}

TYPED_TEST(Ending, SurvivesThatTheHostDeletesTheDialogWhileItIsToldOfOk)
{
    this->OnNotification([this](UINT) {
        this->dialog->DestroyWindow();
        this->dialog.reset();
    });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kOk); }});
    EXPECT_NE(result, IDOK);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{TypeParam::kAccepted}));
}

TYPED_TEST(Ending, SurvivesThatTheHostDeletesTheDialogWhileItIsToldOfCancel)
{
    this->OnNotification([this](UINT) { this->dialog.reset(); });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] { this->Click(TypeParam::kCancel); }});
    EXPECT_NE(result, IDCANCEL);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TYPED_TEST(Ending, KeepsTheResultThatTheHostGaveWhileAMessageWasShown)
{
    ExpectMessageBox box;
    box.WhileShown([this] { this->dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] {
                                               this->Write(TypeParam::kUpper, L"x");
                                               this->Click(TypeParam::kOk);
                                           }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_TRUE(this->Codes().empty());
}

TYPED_TEST(Ending, SurvivesThatTheHostDeletesTheDialogWhileAMessageIsShown)
{
    ExpectMessageBox box;
    box.WhileShown([this] { this->dialog.reset(); });
    this->RunLoaded(FreeDimension(), {[this] {
                        this->Write(TypeParam::kUpper, L"x");
                        this->Click(TypeParam::kOk);
                    }});
    EXPECT_EQ(this->dialog, nullptr);
    EXPECT_TRUE(this->Codes().empty());
}

// The first rounds fill the system's and the framework's caches.
TYPED_TEST(Ending, LeavesNothingBehind)
{
    const auto round = [this] {
        this->dialog = std::make_unique<typename TypeParam::Dialog>(&this->host);
        this->RunLoaded(FittedDimension(),
                        {[this] { this->Click(TypeParam::kFilter); }, [this] { this->Click(TypeParam::kOk); }});
        this->dialog.reset();
        this->host.Forget();
        TheGaugeBase().calls = {};
        PumpUntilIdle();
        AfxGetThread()->OnIdle(0);  // the end of temporary objects
    };
    for (int i = 0; i < 3; ++i)
        round();
    const int gdiObjects = GdiObjectCount();
    const std::size_t heapBlocks = HeapBlockCount();
    for (int i = 0; i < 5; ++i)
        round();
    EXPECT_EQ(GdiObjectCount(), gdiObjects);
    EXPECT_EQ(HeapBlockCount(), heapBlocks);
}

using LinkEnding = ToleranceDialogTest<LinkDialog>;

TEST_F(LinkEnding, ResetsLabelWeightDirectionAndApplyBeforeTheHostHearsOfCancel)
{
    CString name = L"A1";
    bool checked = true;
    const std::vector<int> controls{IDC_LINK_APPLY, IDC_LINK_NAME, IDC_LINK_DIRECTION, IDC_LINK_WEIGHT_FIXED};
    std::vector<int> enabled = controls;
    OnNotification([&](UINT) {
        name = Text(IDC_LINK_NAME);
        checked = IsChecked(IDC_LINK_WEIGHT_FIXED);
        enabled = Enabled(controls);
    });
    RunLoaded(FreeDimension(), {[&] {
                  ASSERT_EQ(Enabled(controls), controls);
                  ASSERT_TRUE(IsChecked(IDC_LINK_WEIGHT_FIXED));
                  Click(IDC_LINK_CANCEL);
              }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
    EXPECT_EQ(name, L"");
    EXPECT_FALSE(checked);
    EXPECT_EQ(enabled, std::vector<int>{});
}

TEST_F(LinkEnding, SurvivesThatTheHostDeletesTheDialogWhileItIsToldOfApply)
{
    OnNotification([this](UINT) {
        dialog->DestroyWindow();
        dialog.reset();
    });
    RunLoaded(FreeDimension(), {[this] { Click(IDC_LINK_APPLY); }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkApplied}));
}

TEST_F(LinkEnding, KeepsTheResultThatTheHostGaveWhileItWasToldOfApply)
{
    OnNotification([this](UINT) { dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = RunLoaded(FreeDimension(), {[this] { Click(IDC_LINK_APPLY); }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_EQ(Record(), EmptyRecord());
}

}  // namespace
