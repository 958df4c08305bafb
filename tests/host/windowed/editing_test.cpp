// Editing rows and distributions: which dialog it is about, what is written, and what the host's copy makes of it.

#include "calc/centre_of_grouping.h"
#include "host/exchanged_records.h"
#include "host_test.h"
#include "tests/support/framework_printers.h"

namespace
{
/// A chain of A1 and A2 with the closing link X.
class Editing : public HostTest
{
protected:
    void SetUp() override
    {
        HostTest::SetUp();
        Open();
        AddLink("A1");
        AddLink("A2");
        AddClosing("X");
    }

    /// The record of the row that a dimension became.
    CDimParams Row(const std::string& name) const { return ToParams(Object(name).dimension); }

    CVariableParams Distribution(const std::string& name) const
    {
        const DrawingDimension& dimension = Object(name).dimension;
        const CDimParams row = Row(name);
        return {.nominal = row.nominal,
                .name = row.name,
                .caption = row.caption,
                .upperDev = row.upperDev,
                .lowerDev = row.lowerDev,
                .dimKind = row.dimKind,
                .law = 1,
                .mean = CentreOfGrouping(dimension.nominal, dimension.upper, dimension.lower)};
    }
};

TEST_F(Editing, ALinkIsRewrittenFromTheRecord)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    EXPECT_EQ(Protocol().Round(), ChainRound::kEditingLink);
    Dialog().linkRecord.upperDev = L"0.5";
    Dialog().linkRecord.name = L"B";
    Notify(kLinkAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetCurrentFRowData"});
    EXPECT_TRUE(Dialog().written == Dialog().linkRecord);
    EXPECT_EQ(Lines()[0], "link A1 40 0 -0.039 increasing normal");
    EXPECT_EQ(Lines()[1], "link B 25 0.5 -0.1 decreasing normal");
}

TEST_F(Editing, APickDuringAnEditLoadsTheDimensionAndTheRowKeepsItsNominalSize)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    m_frame->ClickDimension(Object("X"));
    Notify(kLinkAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetDlgParams", "SetCurrentFRowData"}));
    EXPECT_EQ(Dialog().written.name, L"X");
    EXPECT_EQ(Lines()[1], "link X 25 0.3 -0.3 decreasing normal");
}

TEST_F(Editing, TheClosingLinkIsToldByWhichRecordHasChanged)
{
    BeginEdit(Dialog().closingRecord, Row("X"));
    EXPECT_EQ(Protocol().Round(), ChainRound::kEditingClosing);
    m_frame->ClickDimension(Object("A2"));
    Notify(kClosingAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetCloseDimDlgParams", "SetCloseFRowData"}));
    EXPECT_EQ(Lines()[2], "closing 25 0.2 -0.1 normal");
}

TEST_F(Editing, AClosingLinkDeletedMeanwhileIsNotWritten)
{
    BeginEdit(Dialog().closingRecord, Row("X"));
    Dialog().closingObject = nullptr;
    Notify(kClosingAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
    EXPECT_EQ(Lines()[2], "closing none");
}

// A dialog that the host ended keeps its record: it must not be taken for the one that opens now.
TEST_F(Editing, ARecordLeftFromADialogThatWasEndedDoesNotMislead)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Protocol().EndModal();
    BeginEdit(Dialog().closingRecord, Row("X"));
    EXPECT_EQ(Protocol().Round(), ChainRound::kEditingClosing);

    Protocol().EndModal();
    BeginEdit(Dialog().linkRecord, Row("A1"));
    EXPECT_EQ(Protocol().Round(), ChainRound::kEditingLink);
}

TEST_F(Editing, AnEditThatCannotBeToldLoadsNothingAndWritesWhereItIsAcceptedAllTheSame)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Protocol().EndModal();
    BeginEdit(Dialog().closingRecord, Row("X"));
    Protocol().EndModal();
    Dialog().TakeCalls();
    BeginEdit(Dialog().linkRecord, Row("A2"));  // both are as they were before

    EXPECT_EQ(Protocol().Round(), ChainRound::kEditing);
    m_frame->ClickDimension(Object("A1"));
    Notify(kLinkAccepted);
    EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetCurrentFRowData"});
    EXPECT_EQ(Lines()[1], "link A2 unknown") << "which row it was is not known";
}

TEST_F(Editing, AfterAnAppliedEditTheNextDimensionIsAdded)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Notify(kLinkApplied);
    Dialog().linkRecord = {};
    m_frame->ClickDimension(Object("X"));
    Notify(kLinkAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetCurrentFRowData", "SetDlgParams", "AddToList"}));
    EXPECT_EQ(Dialog().objects.back(), Address("X"));
}

TEST_F(Editing, AnEditAcceptedWithNothingLoadedWritesNothing)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Dialog().linkRecord = {};
    Notify(kLinkAccepted);
    BeginEdit(Dialog().closingRecord, Row("X"));
    Dialog().closingRecord = {};
    Notify(kClosingAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
}

// Two rows that look alike: the host can't know which one was edited, and says so instead of guessing.
TEST_F(Editing, AnEditOfOneOfTwoEqualLinksMakesTheLinksUnknown)
{
    AddLink("A2");
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Dialog().linkRecord.upperDev = L"0.5";
    Notify(kLinkAccepted);

    EXPECT_EQ(Lines(), (std::vector<std::string>{"link A1 unknown", "link A2 unknown", "link A2 unknown",
                                                 "closing 15 0.3 -0.3 normal"}));
}

TEST_F(Editing, ALinkDeletedMeanwhileMakesTheEditedOneUnknown)
{
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Dialog().objects.erase(Dialog().objects.begin());
    Notify(kLinkAccepted);

    EXPECT_EQ(Lines().front(), "link A2 unknown");
}

TEST_F(Editing, TheDistributionOfALinkIsWritten)
{
    BeginDistribution(kLinkBegins, Distribution("A2"));
    EXPECT_EQ(Protocol().Round(), ChainRound::kLinkDistribution);
    Dialog().variableRecord.law = 2;
    Dialog().variableRecord.mean = 25.1;
    Notify(kDistributionAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetVariableFRowData"});
    EXPECT_EQ(Dialog().writtenDistribution.law, 2);
    EXPECT_EQ(Dialog().writtenDistribution.mean, 25.1);
    EXPECT_EQ(Lines()[0], "link A1 40 0 -0.039 increasing normal");
    EXPECT_EQ(Lines()[1], "link A2 25 0.2 -0.1 decreasing uniform");
}

TEST_F(Editing, TheDistributionOfTheClosingLinkIsWritten)
{
    CVariableParams values = Distribution("X");
    values.name = L"X";
    BeginDistribution(kClosingBegins, values);
    EXPECT_EQ(Protocol().Round(), ChainRound::kClosingDistribution);
    Dialog().variableRecord.law = 3;
    Notify(kDistributionAccepted);

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetVariableCloseFRowData"});
    EXPECT_EQ(Lines()[2], "closing 15 0.3 -0.3 triangular");
}

TEST_F(Editing, TheDistributionStaysWhenTheToleranceIsEditedLater)
{
    BeginDistribution(kLinkBegins, Distribution("A2"));
    Dialog().variableRecord.law = 3;
    Notify(kDistributionAccepted);
    m_frame->EnableWindow(TRUE);
    BeginEdit(Dialog().linkRecord, Row("A2"));
    Dialog().linkRecord.upperDev = L"0.5";
    Notify(kLinkAccepted);

    EXPECT_EQ(Lines()[1], "link A2 25 0.5 -0.1 decreasing triangular");
}

TEST_F(Editing, PicksLoadNothingIntoTheDistributionDialog)
{
    BeginDistribution(kLinkBegins, Distribution("A2"));
    m_frame->ClickDimension(Object("A1"));

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
}

TEST_F(Editing, ReplacingTheClosingLinkTakesTheNewOne)
{
    AddClosing("A1");

    EXPECT_EQ(Lines()[2], "closing 40 0 -0.039 normal");
}
}  // namespace
