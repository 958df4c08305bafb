// What is common to all four child dialogs: how they end, and what the calculation dialog does then.

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

using ChildDialog = EachChild;

INSTANTIATE_TEST_SUITE_P(Kinds, ChildDialog,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild),
                         testing::PrintToStringParamName());

TEST_P(ChildDialog, IsOwnedByTheCalculationDialogWhichIsDisabledMeanwhile)
{
    HWND owner = nullptr;
    bool rightKind = false;
    bool enabled = true;
    Command(GetParam().command, {[&] {
                owner = ::GetWindow(Child(), GW_OWNER);
                rightKind = ChildControl(GetParam().ownControl) != nullptr;
                enabled = ::IsWindowEnabled(Window()) != FALSE;
                ClickChild(GetParam().cancel);
            }});
    EXPECT_EQ(owner, Window());
    EXPECT_TRUE(rightKind);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_P(ChildDialog, GivesTheKeyboardToTheMainWindowAndRepaintsAfterOk)
{
    RecordingWindow mainWindow(200, 100);
    AfxGetThread()->m_pMainWnd = &mainWindow;
    EXPECT_EQ(RepaintsOf([this] { Command(GetParam().command, {[this] { ClickChild(GetParam().ok); }}); }), 1);
    EXPECT_EQ(::GetFocus(), mainWindow.m_hWnd);
    EXPECT_EQ(Child(), nullptr);
}

TEST_P(ChildDialog, GivesTheKeyboardToTheMainWindowAndRepaintsAfterCancel)
{
    RecordingWindow mainWindow(200, 100);
    AfxGetThread()->m_pMainWnd = &mainWindow;
    EXPECT_EQ(RepaintsOf([this] { Command(GetParam().command, {[this] { ClickChild(GetParam().cancel); }}); }), 1);
    EXPECT_EQ(::GetFocus(), mainWindow.m_hWnd);
}

TEST_P(ChildDialog, ReactivatesTheDialogWhenThereIsNoMainWindow)
{
    AfxGetThread()->m_pMainWnd = nullptr;
    Command(GetParam().command, {[this] { ClickChild(GetParam().ok); }});
    EXPECT_EQ(::GetActiveWindow(), Window());
}

TEST_P(ChildDialog, LeavesTheFocusRowsWhereTheyAre)
{
    const int before = dialog->FocusNotifications();
    Command(GetParam().command, {[this] { ClickChild(GetParam().ok); }});
    Command(GetParam().command, {[this] { ClickChild(GetParam().cancel); }});
    EXPECT_EQ(Links().FocusRow(), 1);
    EXPECT_EQ(dialog->FocusNotifications(), before);
}

/// Also those that open for a row that is not there yet.
using EveryChildDialog = EachChild;

INSTANTIATE_TEST_SUITE_P(Kinds, EveryChildDialog,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild, kNewLinkChild,
                                         kNewClosingChild),
                         testing::PrintToStringParamName());

// The same result that EndModal gives.
TEST_P(EveryChildDialog, IsAbandonedWithTheResultOfTheHost)
{
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(GetParam().command, {[this] { EndChildWith(kEndedByHost); }}); }), 0);
    EXPECT_NE(::GetFocus(), host.m_hWnd);
    ExpectNoChild();
}

TEST_P(EveryChildDialog, IsEndedByEndModalWithoutARepaint)
{
    ::SetFocus(Links().Window());
    std::vector<WPARAM> atOpening;
    EXPECT_EQ(RepaintsOf([&] {
                  Command(GetParam().command, {[&] {
                              atOpening = Codes();
                              dialog->EndModal();
                          }});
              }),
              0);
    ExpectNoChild();
    EXPECT_EQ(Codes(), atOpening) << "the child says nothing";
    EXPECT_NE(::GetFocus(), host.m_hWnd);
}

TEST_P(ChildDialog, OnlyRepaintsAfterAnyOtherResult)
{
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(GetParam().command, {[this] { EndChildWith(77); }}); }), 1);
    EXPECT_NE(::GetFocus(), host.m_hWnd);
}

TEST_P(ChildDialog, OpensAgainAfterEachWayOfEnding)
{
    int opened = 0;
    const auto count = [&] { opened += ChildControl(GetParam().ownControl) != nullptr ? 1 : 0; };
    Command(GetParam().command, {count, [this] { dialog->EndModal(); }});
    Command(GetParam().command, {count, [this] { ClickChild(GetParam().ok); }});
    Command(GetParam().command, {count, [this] { ClickChild(GetParam().cancel); }});
    Command(GetParam().command, {count, [this] { ::DestroyWindow(Child()); }});
    Command(GetParam().command, {count, [this] { dialog->EndModal(); }});
    EXPECT_EQ(opened, 5);
}

// The host's result stands, whatever the user did to cause the notification.
TEST_P(ChildDialog, KeepsTheResultOfEndModalInsideItsOwnNotification)
{
    for (const WPARAM code : {kLinkAccepted, kClosingAccepted, kDistributionAccepted, kChildCancelled})
        host.On(code, [this] { dialog->EndModal(); });
    ::SetFocus(Links().Window());
    for (const int button : {GetParam().ok, GetParam().cancel})
    {
        const bool tellsTheHost = GetParam().ownControl != IDC_WEIGHT_SLIDER;
        const int expected = tellsTheHost ? 0 : 1;
        EXPECT_EQ(RepaintsOf([&] { Command(GetParam().command, {[&] { ClickChild(button); }}); }), expected);
    }
    EXPECT_EQ(Child(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

// A host that runs a loop of its own in the same handler leaves the child's window where the user can click it.
TEST_P(ChildDialog, HearsNothingMoreOnceTheHostHasEndedIt)
{
    ::SetFocus(Links().Window());
    for (const int button : {GetParam().ok, GetParam().cancel})
    {
        std::vector<WPARAM> atTheEnd;
        EXPECT_EQ(RepaintsOf([&] {
                      Command(GetParam().command, {[&] {
                                  dialog->EndModal();
                                  atTheEnd = Codes();
                                  ClickChild(button);
                                  ::SendMessageW(Child(), WM_CLOSE, 0, 0);
                              }});
                  }),
                  0);
        EXPECT_EQ(Codes(), atTheEnd);
        EXPECT_NE(::GetFocus(), host.m_hWnd);
        EXPECT_EQ(Child(), nullptr);
    }
}

using ChildDialogs = CalcDialogTest;

TEST_F(ChildDialogs, ApplyNothingMoreOnceTheHostHasEndedThem)
{
    OpenWith(kAnalytic);
    CDimParams params;
    Command(ID_LINK_ADD, {[&] {
                Load(Dimension(L"A1", L"10", L"0.1", L"0"));
                dialog->EndModal();
                ClickChild(IDC_LINK_APPLY);
                dialog->GetDimDlgParams(params);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{32}));
    EXPECT_EQ(params.nominal, L"10") << "not emptied either";
}

TEST_F(ChildDialogs, EndModalDoesNothingWithoutOne)
{
    dialog->EndModal();
    OpenWith(kAnalytic);
    ExpectNoRepaintBy([this] { dialog->EndModal(); });
    FillChain();
    ExpectNoRepaintBy([this] { dialog->EndModal(); });  // the old child objects have no window
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_TRUE(Codes().empty());
}

// Two kinds can run one inside the other when the host sends the command itself.
TEST_F(ChildDialogs, EndModalEndsAllThatAreOpen)
{
    OpenWith(kProbabilistic);
    FillChain();
    FocusOnLink(0);
    int repaints = RepaintsOf([this] {
        Command(ID_LINK_EDIT, {[this] { Command(ID_LINK_DISTRIBUTION, {[this] { dialog->EndModal(); }}); }});
    });
    EXPECT_EQ(repaints, 0);
    EXPECT_EQ(Child(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

TEST_F(ChildDialogs, LinkCommandsDoNothingWithTheFocusOnTheChainRow)
{
    OpenWith(kProbabilistic);
    FillChain();
    FocusOnChain();
    for (const UINT command : {ID_LINK_EDIT, ID_CONTEXT_LINK_EDIT, ID_LINK_DELETE, ID_CONTEXT_LINK_DELETE,
                               ID_LINK_DISTRIBUTION, ID_CONTEXT_LINK_DISTRIBUTION, ID_CONTEXT_LINK_WEIGHT})
    {
        SCOPED_TRACE(command);
        ExpectNoRepaintBy([&] { Command(command); });
    }
    EXPECT_TRUE(Codes().empty());
    EXPECT_EQ(Objects().size(), 2U);
}

TEST_F(ChildDialogs, LinkCommandsDoNothingWithoutAFocusRow)
{
    OpenWith(kProbabilistic);
    for (const UINT command : {ID_LINK_EDIT, ID_LINK_DELETE, ID_LINK_DISTRIBUTION, ID_CONTEXT_LINK_WEIGHT})
    {
        SCOPED_TRACE(command);
        ExpectNoRepaintBy([&] { Command(command); });
    }
    EXPECT_TRUE(Codes().empty());
}

TEST_F(ChildDialogs, ContextMenuCommandsOpenTheSameAsTheMenuBars)
{
    OpenWith(kProbabilistic);
    FillChain();
    FocusOnLink(0);
    const std::vector<std::pair<UINT, int>> commands = {
        {32783, IDC_LINK_FIELD},    {32778, IDC_LINK_FIELD},    {32796, IDC_VARIABLE_LAW},  {32798, IDC_VARIABLE_LAW},
        {32779, IDC_WEIGHT_SLIDER}, {32781, IDC_WEIGHT_SLIDER}, {32793, IDC_CLOSING_FIELD}, {32792, IDC_CLOSING_FIELD},
        {32797, IDC_VARIABLE_LAW},  {32799, IDC_VARIABLE_LAW}};
    for (const auto& [command, control] : commands)
    {
        bool rightKind = false;
        Command(command, {[&, ownControl = control] {
                    rightKind = ChildControl(ownControl) != nullptr;
                    dialog->EndModal();
                }});
        EXPECT_TRUE(rightKind) << command;
    }
}

TEST_F(ChildDialogs, TheItemWithoutAHandlerDoesNothing)
{
    OpenWith(kAnalytic);
    FillChain();
    FocusOnLink(0);
    ExpectNoRepaintBy([this] { Command(32774); });
    EXPECT_TRUE(Codes().empty());
    EXPECT_EQ(Child(), nullptr);
}

}  // namespace
