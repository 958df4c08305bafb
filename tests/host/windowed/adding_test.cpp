// Adding links and the closing link, as the module and the user make the host do it.

#include "host/exchanged_records.h"
#include "host_test.h"
#include "tests/support/framework_printers.h"

namespace
{
using Adding = HostTest;

TEST_F(Adding, OpeningGivesTheLabelBeforeTheWindow)
{
    ASSERT_TRUE(m_frame->OpenCalculation(L"Plate"));

    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetFileName Plate", "Create"}));
    EXPECT_EQ(Protocol().Round(), ChainRound::kIdle);
}

TEST_F(Adding, OpeningWithoutALabelSetsNone)
{
    ASSERT_TRUE(m_frame->OpenCalculation(std::nullopt));

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"Create"});
}

TEST_F(Adding, ADialogThatCannotBeMadeIsTold)
{
    FakeCalcTolDlg::MakesNone() = true;
    EXPECT_FALSE(m_frame->OpenCalculation(L"Plate"));

    FakeCalcTolDlg::MakesNone() = false;
    FakeCalcTolDlg::CreatesNone() = true;
    EXPECT_FALSE(m_frame->OpenCalculation(L"Plate"));
    EXPECT_EQ(FakeCalcTolDlg::Living(), nullptr);
    EXPECT_EQ(Protocol().Dialog(), nullptr);
}

TEST_F(Adding, APickLoadsTheDimensionIntoTheLinkDialog)
{
    Open();
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetDlgParams"});
    EXPECT_TRUE(Dialog().linkRecord == ToParams(Object("A1").dimension));
    EXPECT_EQ(Dialog().linkRecord.tolField, L"h8");
    EXPECT_EQ(Dialog().linkRecord.caption, L"Size:");
    EXPECT_EQ(Dialog().linkRecord.increasing, 1);
    EXPECT_EQ(Dialog().linkRecord.weightFixed, 1);
    EXPECT_EQ(Dialog().linkRecord.dimKind, 1);
    EXPECT_EQ(Protocol().Loaded(), &Object("A1"));
}

TEST_F(Adding, AnAcceptedLinkIsAddedWithItsObject)
{
    Open();
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    m_frame->ClickDimension(Object("A2"));
    Dialog().linkRecord.upperDev = L"0.25";
    Dialog().TakeCalls();
    Notify(kLinkAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"AddToList"});
    EXPECT_EQ(Dialog().objects, std::vector<void*>{Address("A2")});
    EXPECT_EQ(Lines().front(), "link A2 25 0.25 -0.1 decreasing normal");
    EXPECT_EQ(Protocol().Round(), ChainRound::kIdle);
    EXPECT_EQ(Protocol().Loaded(), nullptr);
}

TEST_F(Adding, AfterApplyTheNextPickIsAddedToo)
{
    Open();
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    Notify(kLinkApplied);
    Dialog().linkRecord = {};
    EXPECT_EQ(Protocol().Loaded(), nullptr);
    EXPECT_EQ(Protocol().Round(), ChainRound::kAddingLink);

    m_frame->ClickDimension(Object("A2"));
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetDlgParams", "AddToList", "SetDlgParams", "AddToList"}));
    EXPECT_EQ(Dialog().objects, (std::vector<void*>{Address("A1"), Address("A2")}));
}

TEST_F(Adding, AcceptingWithNothingLoadedAddsNothing)
{
    Open();
    Begin(kLinkBegins);
    Notify(kLinkAccepted);
    Begin(kClosingBegins);
    Notify(kClosingAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
    EXPECT_EQ(Protocol().Round(), ChainRound::kIdle);
}

TEST_F(Adding, TheClosingLinkGoesItsOwnWay)
{
    Open();
    Begin(kClosingBegins);
    m_frame->ClickDimension(Object("X"));
    EXPECT_TRUE(Dialog().closingRecord == ToParams(Object("X").dimension));
    Notify(kClosingAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetCloseDimDlgParams", "AddCloseDimToList"}));
    EXPECT_EQ(Dialog().closingObject, Address("X"));
    EXPECT_EQ(Lines(), std::vector<std::string>{"closing 15 0.3 -0.3 normal"});
}

// By hand: A0 = 40 - 25; upper 40 - 24.9, lower 39.961 - 25.2.
TEST_F(Adding, TheChainIsPrintedWithItsResult)
{
    Open();
    AddLink("A1");
    AddLink("A2");
    AddClosing("X");

    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], "link A1 40 0 -0.039 increasing normal");
    EXPECT_EQ(lines[1], "link A2 25 0.2 -0.1 decreasing normal");
    EXPECT_EQ(lines[2], "closing 15 0.3 -0.3 normal");
    EXPECT_EQ(lines[3], "analytic A0=15 upper=15.1 lower=14.761 ES0=0.1 EI0=-0.239");
}

TEST_F(Adding, PicksLoadNothingUnlessADialogWaits)
{
    m_frame->ClickDimension(Object("A1"));  // there is no dialog at all
    Open();
    m_frame->ClickDimension(Object("A1"));
    Begin(kLinkBegins);
    Notify(kChildCancelled);
    m_frame->ClickDimension(Object("A1"));

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
    EXPECT_EQ(Protocol().Loaded(), nullptr);
}

TEST_F(Adding, ADimensionWithoutNominalSizeIsNotLoaded)
{
    Open();
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("N"));

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
    EXPECT_EQ(m_frame->Prompt(), L"N has no nominal size: it can't be loaded.");
}

TEST_F(Adding, ARecordThatSomebodyElseLoadedIsRecognisedByNameAndSize)
{
    Open();
    Begin(kLinkBegins);
    Dialog().linkRecord = ToParams(Object("A2").dimension);
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().objects, std::vector<void*>{Address("A2")});

    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    Dialog().linkRecord = ToParams(Object("A2").dimension);
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().objects, (std::vector<void*>{Address("A2"), Address("A2")})) << "not the one that was picked";

    Begin(kLinkBegins);
    Dialog().linkRecord = ToParams(Object("A2").dimension);
    Dialog().linkRecord.name = L"stranger";
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().objects.size(), 2U) << "the drawing has no such dimension";
}

TEST_F(Adding, NotificationsThatAreNotAnsweredChangeNothing)
{
    Open();
    Protocol().SetAnswering(kLinkAccepted, false);
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    Dialog().TakeCalls();
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().TakeCalls(), Calls{});

    Protocol().SetAnswering(kLinkAccepted, true);
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetDlgParams", "AddToList"}));
}

TEST_F(Adding, ATypedCharacterIsNoNotification)
{
    Open();
    m_frame->SendMessage(WM_CHAR, kLinkBegins, 1);

    EXPECT_EQ(Protocol().Round(), ChainRound::kIdle);
}

TEST_F(Adding, ALinkThatTheUserDeletesIsPrintedNoMore)
{
    Open();
    AddLink("A1");
    AddLink("A2");
    Dialog().objects.erase(Dialog().objects.begin());

    EXPECT_EQ(Lines(), (std::vector<std::string>{"link A2 25 0.2 -0.1 decreasing normal", "closing none"}));
}

TEST_F(Adding, ALinkThatTheHostDidNotAddIsPrintedAsUnknown)
{
    Open();
    Dialog().objects.push_back(Address("A2"));
    Dialog().objects.push_back(nullptr);

    EXPECT_EQ(Lines(), (std::vector<std::string>{"link A2 unknown", "link ? unknown", "closing none"}));
}

TEST_F(Adding, AnotherDrawingLeavesTheObjectsOfTheChainKnown)
{
    Open();
    AddLink("A1");
    m_frame->ShowDrawing(Drawing{});

    EXPECT_EQ(Lines().front(), "link A1 40 0 -0.039 increasing normal");
    EXPECT_EQ(m_frame->Objects().Known(Dialog().objects.front())->Name(), "A1");
}
}  // namespace
