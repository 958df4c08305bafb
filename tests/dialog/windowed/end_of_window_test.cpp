// Late and early calls of the host, the destroyed window, the deleted dialog.

#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class EndOfWindow : public CalcDialogTest
{
protected:
    /// No link, no closing link, and as long as there is a window the two rows as they begin.
    /// @param closingKind  what the closing row keeps as its kind
    void ExpectNothingAdded(std::int32_t closingKind) const
    {
        EXPECT_TRUE(Objects().empty());
        EXPECT_EQ(dialog->GetCloseObject(), nullptr);
        if (Window() == nullptr)
            return;
        ASSERT_EQ(Links().Rows(), 1);
        EXPECT_EQ(Links().Row(0).ChildCount(), 0);
        EXPECT_EQ(Links().Texts(0), (std::vector<CString>{L"Shaft", L"", L"", L"", L"", L""}));
        ASSERT_EQ(Closing().Rows(), 1);
        EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"", L"", L"", L""}));
        EXPECT_EQ(Closing().Row(0).Item(0).value, closingKind);
        EXPECT_EQ(Closing().Record(0), nullptr);
    }

    /// Every operation of the host, with arguments that must come back as they were.
    void ExpectCallsWithoutEffect()
    {
        CDimParams dimension = Dimension(L"n", L"1", L"2", L"3", 7, 8);
        CVariableParams distribution;
        distribution.law = 9;
        dialog->EndModal();
        Load(dimension);
        LoadClosing(dimension);
        dialog->GetDimDlgParams(dimension);
        dialog->GetCloseDimDlgParams(dimension);
        dialog->GetVariableDlgParams(distribution);
        dialog->SetCurrentFRowData(dimension);
        dialog->SetCloseFRowData(dimension);
        dialog->SetVariableFRowData(distribution);
        dialog->SetVariableCloseFRowData(distribution);
        dialog->AddToList(&objects[0]);
        dialog->AddCloseDimToList(&objects[0]);
        dialog->GetCurrentObject(&objects[0]);
        dialog->TrackEditMenu(CPoint(0, 0), 0);
        ExpectNothingAdded(0);
        dialog->CancelDialog();
        ExpectNothingAdded(-1);
        EXPECT_EQ(dimension.name, L"n");
        EXPECT_EQ(dimension.increasing, 7);
        EXPECT_EQ(dimension.dimKind, 8);
        EXPECT_EQ(distribution.law, 9);
    }
};

TEST_F(EndOfWindow, LeavesCallsBeforeCreateWithoutEffect)
{
    ExpectCallsWithoutEffect();
    Open();
    EXPECT_EQ(Links().Rows(), 1);
}

// The contract asks for a dialog that was opened before; a host that is too early does no harm.
TEST_F(EndOfWindow, LeavesCallsBeforeAnyChildDialogWithoutEffect)
{
    Open();
    ExpectCallsWithoutEffect();
}

TEST_F(EndOfWindow, LeavesCallsAfterwardsWithoutEffect)
{
    OpenWith(kProbabilistic);
    FillChain();
    FocusOnLink(0);
    Command(ID_LINK_DISTRIBUTION, {[this] { ClickChild(IDC_VARIABLE_CANCEL); }});
    dialog->CancelDialog();
    dialog->DestroyWindow();
    ExpectCallsWithoutEffect();
}

TEST_F(EndOfWindow, TellsTheHostNothing)
{
    OpenWith(kAnalytic);
    FillChain();
    dialog->DestroyWindow();
    EXPECT_TRUE(Codes().empty());
    EXPECT_EQ(Window(), nullptr);
}

TEST_F(EndOfWindow, ComesWithTheHostsWindow)
{
    auto other = std::make_unique<RecordingWindow>();
    ASSERT_TRUE(dialog->Create(other.get()));
    other.reset();
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(EndOfWindow, ComesWithTheObject)
{
    OpenWith(kAnalytic);
    FillChain();
    const HWND window = Window();
    dialog.reset();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(Codes().empty());
    PumpUntilIdle();
}

TEST_F(EndOfWindow, ComesWithTheObjectWhileACellIsBeingChosen)
{
    OpenWith(kAnalytic);
    FillChain();
    ClickCell(Links(), 1, 5);
    ASSERT_TRUE(Links().Grid().HasEditor());
    const HWND window = Window();
    dialog.reset();
    PumpUntilIdle();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(EndOfWindow, ClosesTheEditorOfACellThatIsBeingChosen)
{
    OpenWith(kAnalytic);
    FillChain();
    ClickCell(Links(), 1, 5);
    ASSERT_TRUE(Links().Grid().HasEditor());
    const HWND editor = ::GetFocus();
    dialog->DestroyWindow();
    PumpUntilIdle();
    EXPECT_FALSE(::IsWindow(editor));
}

using ChildAtTheEnd = EachChild;

TEST_P(ChildAtTheEnd, EndsWithTheWindowOfTheCalculationDialog)
{
    HWND child = nullptr;
    Command(GetParam().command, {[&] {
                child = Child();
                dialog->DestroyWindow();
            }});
    EXPECT_NE(child, nullptr);
    EXPECT_FALSE(::IsWindow(child));
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    EXPECT_EQ(::GetActiveWindow(), host.m_hWnd);
}

TEST_P(ChildAtTheEnd, EndsWithTheCalculationDialog)
{
    HWND child = nullptr;
    Command(GetParam().command, {[&] {
                child = Child();
                dialog.reset();
            }});
    EXPECT_NE(child, nullptr);
    EXPECT_FALSE(::IsWindow(child));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    EXPECT_EQ(::GetActiveWindow(), host.m_hWnd);
}

// The child's object stays, but the dialog has forgotten it: a late host reads nothing.
TEST_P(ChildAtTheEnd, IsForgottenWithTheWindow)
{
    Command(GetParam().command, {[this] { ClickChild(GetParam().cancel); }});
    dialog->DestroyWindow();
    CDimParams dimension = Dimension(L"kept", L"1", L"2", L"3");
    CVariableParams distribution;
    distribution.name = L"kept";
    dialog->GetDimDlgParams(dimension);
    dialog->GetCloseDimDlgParams(dimension);
    dialog->GetVariableDlgParams(distribution);
    dialog->EndModal();
    EXPECT_EQ(dimension.name, L"kept");
    EXPECT_EQ(distribution.name, L"kept");
}

INSTANTIATE_TEST_SUITE_P(Kinds, ChildAtTheEnd,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild),
                         testing::PrintToStringParamName());

// The contract: a child's record can be read late, and is empty after the child has reported.
using LateCalls = CalcDialogTest;

TEST_F(LateCalls, ReadTheSurvivingRecordWhichIsEmptyByThen)
{
    OpenWith(kAnalytic);
    Command(ID_LINK_ADD, {[this] {
                Load(Dimension(L"A1", L"10", L"0.1", L"0", 0));
                ClickChild(IDC_LINK_OK);
            }});
    CDimParams params = Dimension(L"old", L"1", L"2", L"3", 0);
    dialog->GetDimDlgParams(params);
    EXPECT_EQ(params.name, L"");
    EXPECT_EQ(params.nominal, L"");
    EXPECT_EQ(params.increasing, 1);
}

TEST_F(LateCalls, ReadTheRecordAsItWasWhenTheHostEndedTheChild)
{
    OpenWith(kAnalytic);
    Command(ID_LINK_ADD, {[this] {
                Load(Dimension(L"A1", L"10", L"0.1", L"0", 0));
                dialog->EndModal();
            }});
    CDimParams params;
    dialog->GetDimDlgParams(params);
    EXPECT_EQ(params.name, L"A1");
    EXPECT_EQ(params.nominal, L"10");
}

TEST_F(LateCalls, AddAnEmptyRow)
{
    OpenWith(kAnalytic);
    Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }});
    dialog->AddToList(&objects[0]);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0]}));
    ASSERT_EQ(Model().size(), 1U);
    EXPECT_EQ(Model()[0].name, L"");
    EXPECT_EQ(Model()[0].nominal, L"");
    EXPECT_EQ(Model()[0].image, -1);
    EXPECT_EQ(Model()[0].weightFixed, ResourceText(IDS_WEIGHT_FIXED_NO));
    EXPECT_EQ(Model()[0].record->mean, 0.0);
}

TEST_F(LateCalls, LoadNothingIntoAClosedChild)
{
    OpenWith(kAnalytic);
    Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }});
    Command(ID_CLOSING_ADD, {[this] { ClickChild(IDC_CLOSING_CANCEL); }});
    Load(Dimension(L"late", L"1", L"2", L"3"));
    LoadClosing(Dimension(L"late", L"1", L"2", L"3"));
    CDimParams params;
    dialog->GetDimDlgParams(params);
    EXPECT_EQ(params.name, L"");
    dialog->GetCloseDimDlgParams(params);
    EXPECT_EQ(params.name, L"");
}

TEST_F(LateCalls, LoadAnEmptyNominalWithoutEffect)
{
    OpenWith(kAnalytic);
    CString name;
    Command(ID_LINK_ADD, {[&] {
                Load(Dimension(L"A1", L"10", L"0.1", L"0"));
                Load(Dimension(L"A2", L"", L"0.5", L"0"));
                name = ChildText(IDC_LINK_NAME);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(name, L"A1");
}

}  // namespace
