#include "variable_dialog_test.h"

#include "tests/support/message_pump.h"
#include "tests/support/resource_count.h"

namespace
{

constexpr int kEndedByHost = 5;

using VariableEnding = VariableDialogTest;

TEST_F(VariableEnding, TellsTheHostOfCancelOnceAndEndsWithCancel)
{
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TEST_F(VariableEnding, ResetsBeforeTheHostHearsOfCancel)
{
    CVariableParams told = UniformLink();
    CString name = L"?";
    CString mean;
    OnNotification([&](UINT) {
        told = Record();
        name = Text(IDC_VARIABLE_NAME) + Text(IDC_VARIABLE_NOMINAL) + Text(IDC_VARIABLE_CAPTION);
        mean = Text(IDC_VARIABLE_MEAN);
    });
    Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_EQ(told, CVariableParams{});
    EXPECT_EQ(name, L"");
    EXPECT_EQ(mean, L"0");
}

// OK hides it, Cancel does not: the difference is intended.
TEST_F(VariableEnding, LeavesThePictureVisibleOnCancel)
{
    Run({[this] {
        Click(IDC_VARIABLE_CANCEL);
        EXPECT_TRUE(IsShown(IDC_VARIABLE_PICTURE));
    }});
}

TEST_F(VariableEnding, CancelsWithAMeanThatOkWouldRefuse)
{
    const INT_PTR result = Run({[this] {
        Write(IDC_VARIABLE_MEAN, L"");
        Click(IDC_VARIABLE_CANCEL);
    }});
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(VariableEnding, CancelsByTheCloseBox)
{
    const INT_PTR result = Run({[this] { ::PostMessageW(dialog->m_hWnd, WM_SYSCOMMAND, SC_CLOSE, 0); }, [] {}});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TEST_F(VariableEnding, EndsWithTheHostsResultBetweenTwoActs)
{
    const INT_PTR result = Run({[this] { dialog->EndDialog(kEndedByHost); }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_TRUE(Codes().empty());
    EXPECT_EQ(Record(), UniformLink());
}

TEST_F(VariableEnding, KeepsTheResultThatTheHostGaveWhileItWasToldOfOk)
{
    OnNotification([this](UINT) { dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_EQ(Record(), CVariableParams{}) << "the reset follows all the same";
}

TEST_F(VariableEnding, KeepsTheResultThatTheHostGaveWhileItWasToldOfCancel)
{
    OnNotification([this](UINT) { dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_EQ(result, kEndedByHost);
}

TEST_F(VariableEnding, EndsNormallyInTheRunAfterOneThatTheHostEnded)
{
    OnNotification([this](UINT) { dialog->EndDialog(kEndedByHost); });
    Run({[this] { Click(IDC_VARIABLE_OK); }});
    OnNotification([](UINT) {});
    Record() = UniformLink();
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(result, IDOK);
}

TEST_F(VariableEnding, ResetsTheRecordWhenTheHostDestroysTheWindowWhileItIsToldOfOk)
{
    OnNotification([this](UINT) { dialog->DestroyWindow(); });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_NE(result, IDOK);
    EXPECT_NE(result, kEndedByHost);
    EXPECT_EQ(Record(), CVariableParams{});
}

TEST_F(VariableEnding, SurvivesThatTheHostDestroysTheWindowWhileItIsToldOfCancel)
{
    OnNotification([this](UINT) { dialog->DestroyWindow(); });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_NE(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TEST_F(VariableEnding, SurvivesThatTheHostDeletesTheDialogWhileItIsToldOfOk)
{
    OnNotification([this](UINT) {
        dialog->DestroyWindow();
        dialog.reset();
    });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_NE(result, IDOK);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDistributionAccepted}));
}

TEST_F(VariableEnding, SurvivesThatTheHostDeletesTheDialogWhileItIsToldOfCancel)
{
    OnNotification([this](UINT) { dialog.reset(); });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_NE(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TEST_F(VariableEnding, SurvivesThatItsWindowGoesBetweenTwoActs)
{
    const INT_PTR result = Run({[this] { dialog->DestroyWindow(); }});
    EXPECT_NE(result, IDOK);
    EXPECT_EQ(Record(), UniformLink());
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(VariableEnding, KeepsTheResultThatTheHostGaveWhileAMessageWasShown)
{
    ExpectMessageBox box;
    box.WhileShown([this] { dialog->EndDialog(kEndedByHost); });
    const INT_PTR result = Run({[this] {
        Write(IDC_VARIABLE_MEAN, L"");
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(VariableEnding, SurvivesThatTheHostDeletesTheDialogWhileAMessageIsShown)
{
    for (const int button : {IDC_VARIABLE_OK, IDC_VARIABLE_REDRAW})
    {
        SCOPED_TRACE(button);
        MakeDialog();
        ExpectMessageBox box;
        box.WhileShown([this] { dialog.reset(); });
        Run({[this, button] {
            Write(IDC_VARIABLE_MEAN, L"26");
            Click(button);
        }});
        EXPECT_EQ(dialog, nullptr);
    }
    EXPECT_TRUE(Codes().empty());
}

// A host that pumps messages while it is told lets the user press a button inside the first press. The inner press is
// done with first: its result counts, the outer one's comes to a dialog that has a result.
TEST_F(VariableEnding, EndsWithCancelWhenThatIsPressedInsideOk)
{
    bool first = true;
    OnNotification([&](UINT) {
        if (std::exchange(first, false))
            Command(IDC_VARIABLE_CANCEL);
    });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDistributionAccepted, kChildCancelled}));
}

TEST_F(VariableEnding, TellsTheHostOfASecondOkInsideTheFirstWithTheSameRecord)
{
    bool first = true;
    std::vector<CVariableParams> told;
    OnNotification([&](UINT) {
        told.push_back(Record());
        if (std::exchange(first, false))
            Command(IDC_VARIABLE_OK);
    });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDistributionAccepted, kDistributionAccepted}));
    EXPECT_EQ(told, (std::vector<CVariableParams>{UniformLink(), UniformLink()}));
    EXPECT_EQ(Record(), CVariableParams{});
}

// The record is empty by then: a mean of 0 and a law would go to the host.
TEST_F(VariableEnding, IgnoresAnOkInsideTheReportOfCancel)
{
    OnNotification([&](UINT code) {
        if (code == kChildCancelled)
            Command(IDC_VARIABLE_OK);
    });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TEST_F(VariableEnding, KeepsTheRecordEmptyInsideTheReportOfCancel)
{
    OnNotification([&](UINT) {
        Choose(kUniform);
        Write(IDC_VARIABLE_MEAN, L"");
        Command(IDC_VARIABLE_REDRAW);
    });
    EXPECT_EQ(Run({[this] { Click(IDC_VARIABLE_CANCEL); }}), IDCANCEL);
    EXPECT_EQ(Record(), CVariableParams{});
}

TEST_F(VariableEnding, AcceptsInTheRunAfterACancelledOne)
{
    Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    Record() = UniformLink();
    EXPECT_EQ(Run({[this] { Click(IDC_VARIABLE_OK); }}), IDOK);
}

TEST_F(VariableEnding, IgnoresASecondCancelInsideTheFirst)
{
    bool first = true;
    OnNotification([&](UINT) {
        if (std::exchange(first, false))
            Command(IDC_VARIABLE_CANCEL);
    });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_CANCEL); }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

// The inner OK has emptied the record and ended the run.
TEST_F(VariableEnding, IgnoresAThirdOkInsideTheFirst)
{
    bool first = true;
    OnNotification([&](UINT) {
        if (!std::exchange(first, false))
            return;
        Command(IDC_VARIABLE_OK);
        Command(IDC_VARIABLE_OK);
    });
    const INT_PTR result = Run({[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDistributionAccepted, kDistributionAccepted}));
}

// The first rounds fill the system's and the framework's caches.
TEST_F(VariableEnding, LeavesNothingBehind)
{
    const auto round = [this] {
        MakeDialog();
        Run({[] {}, [this] { Choose(kNormal); }, [this] { Choose(kTriangular); },
             [this] { Click(IDC_VARIABLE_REDRAW); }, [this] { Click(IDC_VARIABLE_OK); }});
        dialog.reset();
        host.Forget();
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

}  // namespace
