// The user closes the dialog, the host resets it: what is cleared, what stays, what the host hears.

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class ClosingTheDialog : public CalcDialogTest
{
protected:
    ClosingTheDialog()
    {
        OpenWith(kProbabilistic);
        FillChain();
        FocusOnLink(0);
        host.Forget();
    }

    bool IsOffered(UINT command) const
    {
        const HMENU bar = ::GetMenu(Window());
        ::SendMessageW(Window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(::GetSubMenu(bar, 0)), 0);
        return (::GetMenuState(bar, command, MF_BYCOMMAND) & MF_GRAYED) == 0;
    }

    void ExpectCleared() const
    {
        EXPECT_TRUE(Objects().empty());
        EXPECT_EQ(dialog->GetCloseObject(), nullptr);
        ASSERT_EQ(Links().Rows(), 1);
        EXPECT_EQ(Links().Text(0, 0), L"Shaft") << "the chain row stays";
        EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"", L"", L"", L""}));
        EXPECT_EQ(Closing().Record(0), nullptr);
        EXPECT_EQ(Closing().Row(0).Item(0).value, -1);
        EXPECT_FALSE(IsOffered(ID_LINK_ADD)) << "no method is chosen";
    }
};

const std::vector<WPARAM> kClosedOnce{kDialogClosed};

TEST_F(ClosingTheDialog, ByEscClearsItAndTellsTheHost)
{
    PostKey(Links().Window(), VK_ESCAPE);
    PumpUntilIdle();
    ExpectCleared();
    EXPECT_EQ(Codes(), kClosedOnce);
}

TEST_F(ClosingTheDialog, ByTheCloseBoxClearsItAndTellsTheHost)
{
    ::PostMessageW(Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
    PumpUntilIdle();
    ExpectCleared();
    EXPECT_EQ(Codes(), kClosedOnce);
}

TEST_F(ClosingTheDialog, ByTheCancelCommandClearsItAndTellsTheHost)
{
    Command(IDCANCEL);
    ExpectCleared();
    EXPECT_EQ(Codes(), kClosedOnce);
}

TEST_F(ClosingTheDialog, LeavesTheWindowToTheHost)
{
    Command(IDCANCEL);
    EXPECT_TRUE(::IsWindow(Window()));
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

TEST_F(ClosingTheDialog, TellsTheHostWhenEverythingIsCleared)
{
    bool wasTold = false;
    host.On(kDialogClosed, [&] {
        wasTold = true;
        ExpectCleared();
    });
    Command(IDCANCEL);
    EXPECT_TRUE(wasTold);
}

TEST_F(ClosingTheDialog, ClearsThroughTheVirtualOperation)
{
    std::vector<int> callsWhenTold;
    host.On(kDialogClosed, [&] { callsWhenTold.push_back(dialog->CancelDialogCalls()); });
    Command(IDCANCEL);
    EXPECT_EQ(callsWhenTold, (std::vector<int>{1}));
}

TEST_F(ClosingTheDialog, CanBeDoneTwice)
{
    Command(IDCANCEL);
    Command(IDCANCEL);
    ExpectCleared();
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDialogClosed, kDialogClosed}));
}

TEST_F(ClosingTheDialog, LetsTheUserStartAgain)
{
    Command(IDCANCEL);
    ChooseMethod(kAnalytic);
    FillChain();
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[1]}));
    EXPECT_EQ(dialog->GetCloseObject(), &closingObject);
    EXPECT_EQ(Links().Rows(), 3);
    EXPECT_EQ(Closing().Row(0).Item(0).value, 1);
}

TEST_F(ClosingTheDialog, MayDestroyTheWindowInsideTheNotification)
{
    host.On(kDialogClosed, [this] { dialog->DestroyWindow(); });
    Command(IDCANCEL);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(Codes(), kClosedOnce);
}

TEST_F(ClosingTheDialog, MayDeleteTheDialogInsideTheNotification)
{
    host.On(kDialogClosed, [this] {
        dialog->DestroyWindow();
        dialog.reset();
    });
    PostKey(Links().Window(), VK_ESCAPE);
    PumpUntilIdle();
    EXPECT_EQ(dialog, nullptr);
    EXPECT_EQ(Codes(), kClosedOnce);
}

TEST_F(ClosingTheDialog, MayHideTheWindowAndShowItAgain)
{
    host.On(kDialogClosed, [this] { ::ShowWindow(Window(), SW_HIDE); });
    Command(IDCANCEL);
    EXPECT_FALSE(::IsWindowVisible(Window()));
    ::ShowWindow(Window(), SW_SHOW);
    PumpUntilIdle();
    ExpectCleared();
}

TEST_F(ClosingTheDialog, DoesNotHappenByEnter)
{
    ::SetFocus(Closing().Window());
    PostKey(Closing().Window(), VK_RETURN);
    PostKey(Links().Window(), VK_RETURN);
    PumpUntilIdle();
    Command(IDOK);
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_TRUE(Codes().empty());
    EXPECT_EQ(Objects().size(), 2U);
}

using Resetting = ClosingTheDialog;

TEST_F(Resetting, ClearsWithoutANotificationAndWithoutARepaint)
{
    ExpectNoRepaintBy([this] { dialog->CancelDialog(); });
    ExpectCleared();
    EXPECT_TRUE(Codes().empty());
}

TEST_F(Resetting, ClearsACollapsedChain)
{
    PostClick(Links().Window(), Links().ExpandPoint(0));
    PumpUntilIdle();
    ASSERT_EQ(Links().Rows(), 1);
    dialog->CancelDialog();
    ExpectCleared();
    EXPECT_EQ(Links().Row(0).ChildCount(), 0);
}

TEST_F(Resetting, ClearsWhileACellIsBeingChosen)
{
    ClickCell(Links(), 1, 5);
    ASSERT_TRUE(Links().Grid().HasEditor());
    dialog->CancelDialog();
    ExpectCleared();
    EXPECT_FALSE(Links().Grid().HasEditor());
}

TEST_F(Resetting, CanBeDoneTwice)
{
    dialog->CancelDialog();
    dialog->CancelDialog();
    ExpectCleared();
}

TEST_F(Resetting, ClearsAFreshDialogToTheSameState)
{
    Close();
    dialog = std::make_unique<WatchedDialog>();
    Open();
    dialog->CancelDialog();
    ExpectCleared();
}

TEST_F(Resetting, SetsTheFocusToTheChainRow)
{
    dialog->CancelDialog();
    EXPECT_EQ(Links().FocusRow(), 0);
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Links().Rows(), 1);
}

using ChildAfterAReset = EachChild;

// What the user does next in the open child reaches no row and no record that was cleared.
TEST_P(ChildAfterAReset, FindsNothingToWriteAfterAReset)
{
    for (const WPARAM code : {kLinkAccepted, kClosingAccepted, kDistributionAccepted})
        host.On(code, [this] {
            CDimParams params = Dimension(L"late", L"1", L"1", L"0");
            CVariableParams distribution;
            distribution.law = 3;
            dialog->SetCurrentFRowData(params);
            dialog->SetCloseFRowData(params);
            dialog->SetVariableFRowData(distribution);
            dialog->SetVariableCloseFRowData(distribution);
        });
    Command(GetParam().command, {[this] { dialog->CancelDialog(); },
                                 [this] {
                                     if (const HWND slider = ChildControl(IDC_WEIGHT_SLIDER))
                                         PostKey(slider, VK_RIGHT);
                                 },
                                 [this] { ClickChild(GetParam().ok); }});
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Links().Rows(), 1);
    EXPECT_EQ(Links().Text(0, 0), L"Shaft");
    EXPECT_EQ(Closing().Record(0), nullptr);
    EXPECT_EQ(Closing().Text(0, 1), L"");
    EXPECT_EQ(Child(), nullptr);
}

TEST_P(ChildAfterAReset, IsEndedAfterAReset)
{
    Command(GetParam().command, {[this] {
                dialog->CancelDialog();
                dialog->EndModal();
            }});
    EXPECT_TRUE(Objects().empty());
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

TEST_F(Resetting, LeavesAnOpenWeightDialogWithoutLinks)
{
    int rows = -1;
    bool sliderEnabled = true;
    Command(ID_CONTEXT_LINK_WEIGHT, {[&] {
                dialog->CancelDialog();
                const ListView list(ChildControl(IDC_WEIGHT_LIST));
                rows = list.Rows();
                sliderEnabled = ::IsWindowEnabled(ChildControl(IDC_WEIGHT_SLIDER)) != FALSE;
                ClickChild(IDOK);
            }});
    EXPECT_EQ(rows, 1);
    EXPECT_FALSE(sliderEnabled);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ChildAfterAReset,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild),
                         testing::PrintToStringParamName());

}  // namespace
