// The command that adds links, and the rows and records that the host's answer makes.

#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class AddingLinks : public CalcDialogTest
{
protected:
    AddingLinks() { OpenWith(kAnalytic); }

    /// The whole road of one link: loaded, confirmed, answered.
    void Confirm(const CDimParams& params, void* object)
    {
        host.On(kLinkAccepted, [this, object] { dialog->AddToList(object); });
        Command(ID_LINK_ADD, {[this, params] {
                    Load(params);
                    ClickChild(IDC_LINK_OK);
                }});
    }

    void CollapseChain() const
    {
        PostClick(Links().Window(), Links().ExpandPoint(0));
        PumpUntilIdle();
        ASSERT_EQ(Links().Rows(), 1);
    }
};

TEST_F(AddingLinks, TellTheHostBeforeTheDialogOpens)
{
    bool open = true;
    host.On(kLinkBegins, [&] { open = Child() != nullptr; });
    Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }});
    EXPECT_FALSE(open);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkBegins, kChildCancelled}));
}

TEST_F(AddingLinks, TellTheHostWhileTheLastDialogsRecordCanBeRead)
{
    Command(ID_LINK_ADD, {[this] {
                Load(Dimension(L"A1", L"25", L"0.2", L"-0.1"));
                dialog->EndModal();
            }});
    CDimParams inside;
    CDimParams afterwards;
    host.On(kLinkBegins, [&] { dialog->GetDimDlgParams(inside); });
    Command(ID_LINK_ADD, {[&] {
                dialog->GetDimDlgParams(afterwards);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(inside.name, L"A1") << "the next one has not taken its place yet";
    EXPECT_EQ(afterwards.name, L"");
}

TEST_F(AddingLinks, OpenTheLinkToleranceDialogOverTheCalculationDialog)
{
    HWND owner = nullptr;
    bool isLinkDialog = false;
    bool dialogEnabled = true;
    bool hostEnabled = false;
    Command(ID_LINK_ADD, {[&] {
                owner = ::GetWindow(Child(), GW_OWNER);
                isLinkDialog = ChildControl(IDC_LINK_APPLY) != nullptr;
                dialogEnabled = ::IsWindowEnabled(Window()) != FALSE;
                hostEnabled = ::IsWindowEnabled(host.m_hWnd) != FALSE;
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(owner, Window());
    EXPECT_TRUE(isLinkDialog);
    EXPECT_FALSE(dialogEnabled);
    EXPECT_TRUE(hostEnabled) << "the user picks dimensions there";
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(AddingLinks, OpenAnEmptyDialogWhenTheHostDoesNotAnswer)
{
    CString nominal = L"?";
    CDimParams params;
    Command(ID_LINK_ADD, {[&] {
                nominal = ChildText(IDC_LINK_NOMINAL);
                dialog->GetDimDlgParams(params);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(nominal, L"");
    EXPECT_TRUE(params.nominal.IsEmpty());
    EXPECT_TRUE(Objects().empty());
}

TEST_F(AddingLinks, WorkFromTheContextMenuAlike)
{
    bool isLinkDialog = false;
    Command(ID_CONTEXT_LINK_ADD, {[&] {
                isLinkDialog = ChildControl(IDC_LINK_APPLY) != nullptr;
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_TRUE(isLinkDialog);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkBegins, kChildCancelled}));
}

TEST_F(AddingLinks, LetTheHostReadTheRecordWhileItIsToldOfTheAcceptance)
{
    CDimParams read;
    host.On(kLinkAccepted, [&] { dialog->GetDimDlgParams(read); });
    Command(ID_LINK_ADD, {[this] {
                Load(Dimension(L"A1", L"25", L"0.2", L"-0.1", 0, 3));
                WriteChild(IDC_LINK_NAME, L"B7");
                WriteChild(IDC_LINK_UPPER_DEV, L"0.3");
                ClickChild(IDC_LINK_WEIGHT_FIXED);
                ClickChild(IDC_LINK_OK);
            }});
    EXPECT_EQ(read.name, L"B7");
    EXPECT_EQ(read.nominal, L"25");
    EXPECT_EQ(read.tolField, L"");
    EXPECT_EQ(read.upperDev, L"0.3");
    EXPECT_EQ(read.lowerDev, L"-0.1");
    EXPECT_EQ(read.caption, L"Picked size:");
    EXPECT_EQ(read.weightFixed, 1);
    EXPECT_EQ(read.increasing, 0);
    EXPECT_EQ(read.dimKind, 3);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkBegins, kLinkAccepted}));
}

TEST_F(AddingLinks, GiveSeveralLinksByApply)
{
    int next = 0;
    host.On(kLinkApplied, [&] { dialog->AddToList(&objects[next++]); });
    Command(ID_LINK_ADD, {[&] {
                              Load(Dimension(L"A1", L"10", L"0.1", L"0"));
                              ClickChild(IDC_LINK_APPLY);
                          },
                          [&] {
                              Load(Dimension(L"A2", L"20", L"0.1", L"0"));
                              ClickChild(IDC_LINK_APPLY);
                          },
                          [this] { ClickChild(IDC_LINK_OK); }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkBegins, kLinkApplied, kLinkApplied, kLinkAccepted}));
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[1]}));
    EXPECT_EQ(Links().Rows(), 3);
}

// --- what AddToList makes ---

TEST_F(AddingLinks, FillTheRowFromTheDialogsRecord)
{
    Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    const ListView links = Links();
    ASSERT_EQ(links.Rows(), 2);
    EXPECT_EQ(links.Texts(1),
              (std::vector<CString>{L"A1", L"25", L"", L"0.2", L"-0.1", ResourceText(IDS_WEIGHT_FIXED_NO)}));
    EXPECT_EQ(links.Row(1).Level(), 1);
}

TEST_F(AddingLinks, ShowTheFieldInColumn2)
{
    CDimParams params = Dimension(L"A1", L"25", L"", L"");
    params.tolField = L"H7";
    Confirm(params, &objects[0]);
    EXPECT_EQ(Links().Text(1, 2), L"H7");
    EXPECT_EQ(Links().Text(1, 3), L"0.021") << "ISO 286: 25 H7 is +21/0 micrometres";
    EXPECT_EQ(Links().Text(1, 4), L"0");
}

// The texts of a record that the dialog shows but hasn't checked arrive as the host wrote them.
TEST_F(AddingLinks, ShowTheHostsTextsUnchanged)
{
    AddLink(Dimension(L" a ", L"025.50 mm", L"+0.200", L"-.1"), &objects[0]);
    EXPECT_EQ(Links().Text(1, 0), L" a ");
    EXPECT_EQ(Links().Text(1, 1), L"025.50 mm");
    EXPECT_EQ(Links().Text(1, 3), L"+0.200");
    EXPECT_EQ(Links().Text(1, 4), L"-.1");
}

TEST_F(AddingLinks, MakeARecordWithWeight1AndLaw1)
{
    AddLinks({{Dimension(L"A1", L"25", L"0.2", L"-0.1", 1), &objects[0]},
              {Dimension(L"A2", L"25", L"0.2", L"-0.1", 0), &objects[1]}});
    const CDimLink& first = *Links().Record(1);
    EXPECT_EQ(first.hostObject, &objects[0]);
    EXPECT_EQ(first.weight, 1);
    EXPECT_EQ(first.increasing, 1);
    EXPECT_EQ(first.law, 1);
    EXPECT_EQ(Links().Record(2)->hostObject, &objects[1]);
    EXPECT_EQ(Links().Record(2)->increasing, 0);
}

// ((-0.1 + 0.1) + (0.021 + 0.1)) / 2; another order of the additions gives another last digit.
TEST_F(AddingLinks, PutTheMeanIntoTheMiddleInTheContractsOrderOfAdditions)
{
    AddLink(Dimension(L"A1", L"0.1", L"0.021", L"-0.1"), &objects[0]);
    EXPECT_EQ(Links().Record(1)->mean, 0.060500000000000005);
}

TEST_F(AddingLinks, CountTextsThatAreNoNumbersAs0)
{
    AddLinks({{Dimension(L"A1", L"10", L"abc", L""), &objects[0]},
              {Dimension(L"A2", L"abc", L"0.5", L""), &objects[1]},
              {Dimension(L"A3", L"10x", L"1,5", L"-1e-1"), &objects[2]}});
    EXPECT_EQ(Links().Record(1)->mean, 10.0);
    EXPECT_EQ(Links().Record(2)->mean, 0.25);
    EXPECT_EQ(Links().Record(3)->mean, 10.45) << "1,5 counts as 1: (9.9 + 11) / 2";
}

TEST_F(AddingLinks, GiveEachKindItsImage)
{
    AddLinks({{Dimension(L"K1", L"1", L"", L"", 1, 1), nullptr},
              {Dimension(L"K2", L"1", L"", L"", 1, 2), nullptr},
              {Dimension(L"K3", L"1", L"", L"", 1, 3), nullptr}});
    EXPECT_EQ(Links().Row(1).Image(0), 9);
    EXPECT_EQ(Links().Row(2).Image(0), 10);
    EXPECT_EQ(Links().Row(3).Image(0), 11);
}

TEST_F(AddingLinks, GiveOtherKindsNoImage)
{
    AddLinks({{Dimension(L"K0", L"1", L"", L"", 1, 0), nullptr},
              {Dimension(L"K4", L"1", L"", L"", 1, 4), nullptr},
              {Dimension(L"K-1", L"1", L"", L"", 1, -1), nullptr}});
    ASSERT_EQ(Links().Rows(), 4);
    for (int row = 1; row < 4; ++row)
        EXPECT_LT(Links().Row(row).Image(0), 0) << "row " << row;
}

TEST_F(AddingLinks, TakeADimensionOfKind2WithoutToleranceAndIncreasing)
{
    CDimParams params = Dimension(L"K2", L"30", L"0.5", L"-0.5", 0, 2);
    params.tolField = L"H7";
    AddLink(params, nullptr);
    EXPECT_EQ(Links().Texts(1), (std::vector<CString>{L"K2", L"30", L"", L"", L"", ResourceText(IDS_WEIGHT_FIXED_NO)}));
    EXPECT_EQ(Links().Record(1)->increasing, 1);
    EXPECT_EQ(Links().Record(1)->mean, 30.0);
}

TEST_F(AddingLinks, SayInColumn5WhetherTheWeightIsFixed)
{
    CDimParams params = Dimension(L"A", L"1", L"", L"");
    std::vector<std::pair<CDimParams, void*>> links;
    for (const int fixed : {0, 1, 5, -1})
    {
        params.weightFixed = fixed;
        links.emplace_back(params, nullptr);
    }
    AddLinks(links);
    EXPECT_EQ(Links().Text(1, 5), ResourceText(IDS_WEIGHT_FIXED_NO));
    for (int row = 2; row <= 4; ++row)
        EXPECT_EQ(Links().Text(row, 5), ResourceText(IDS_WEIGHT_FIXED_YES)) << "row " << row;
    EXPECT_EQ(Links().Row(1).Item(5).kind, 2) << "a drop-down list";
}

TEST_F(AddingLinks, AppendInTheOrderOfTheCalls)
{
    AddLinks({{Dimension(L"C", L"3", L"", L""), &objects[2]}, {Dimension(L"A", L"1", L"", L""), &objects[0]}});
    AddLink(Dimension(L"B", L"2", L"", L""), &objects[1]);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[2], &objects[0], &objects[1]}));
    EXPECT_EQ(Links().Text(1, 0), L"C");
    EXPECT_EQ(Links().Text(2, 0), L"A");
    EXPECT_EQ(Links().Text(3, 0), L"B");
}

TEST_F(AddingLinks, TakeTheSameObjectTwice)
{
    AddLinks({{Dimension(L"A", L"1", L"", L""), &objects[0]}, {Dimension(L"B", L"2", L"", L""), &objects[0]}});
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[0]}));
}

TEST_F(AddingLinks, ShowNothingBeforeTheChainIsExpanded)
{
    int rows = -1;
    host.On(kLinkAccepted, [&] {
        ExpectNoRepaintBy([this] { dialog->AddToList(&objects[0]); });
        rows = Links().Rows();
    });
    Command(ID_LINK_ADD, {[this] {
                Load(Dimension(L"A1", L"25", L"0.2", L"-0.1"));
                ClickChild(IDC_LINK_OK);
            }});
    EXPECT_EQ(rows, 1);
    EXPECT_EQ(Links().Rows(), 2);
}

TEST_F(AddingLinks, ShowAtOnceWhatComesToAnExpandedChain)
{
    AddLink(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    int rows = -1;
    Command(ID_LINK_ADD, {[&] {
                Load(Dimension(L"A2", L"5", L"0.2", L"-0.1"));
                dialog->AddToList(&objects[1]);
                rows = Links().Rows();
                dialog->EndModal();
            }});
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(Links().Text(2, 1), L"5");
}

/// Refuses new rows, as a list view does that has no memory left.
LRESULT CALLBACK RefuseRows(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == LVM_INSERTITEMW)
        return -1;
    return ::CallWindowProcW(reinterpret_cast<WNDPROC>(::GetPropW(window, L"former")), window, message, wParam, lParam);
}

TEST_F(AddingLinks, AddNoneThatTheListRefuses)
{
    AddLink(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    const HWND list = Links().Window();
    Command(ID_LINK_ADD, {[&] {
                Load(Dimension(L"A2", L"5", L"0.2", L"-0.1"));
                const LONG_PTR former = ::GetWindowLongPtrW(list, GWLP_WNDPROC);
                ::SetPropW(list, L"former", reinterpret_cast<HANDLE>(former));
                ::SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&RefuseRows));
                EXPECT_NO_THROW(dialog->AddToList(&objects[1]));
                ::SetWindowLongPtrW(list, GWLP_WNDPROC, former);
                ::RemovePropW(list, L"former");
                dialog->EndModal();
            }});
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0]}));
    EXPECT_EQ(Links().Rows(), 2) << "the chain row and the first link";
    AddLink(Dimension(L"A3", L"5", L"0.2", L"-0.1"), &objects[2]);
    FocusOnLink(0);
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[2]}));
    EXPECT_EQ(Links().Rows(), 2);
    CollapseChain();
    EXPECT_EQ(Links().Rows(), 1);
}

// --- how the command ends ---

TEST_F(AddingLinks, ExpandAndFocusTheChainAfterOk)
{
    Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    FocusOnLink(0);
    CollapseChain();
    Confirm(Dimension(L"A2", L"25", L"0.2", L"-0.1"), &objects[1]);
    EXPECT_EQ(Links().Rows(), 3);
    EXPECT_EQ(Links().FocusRow(), 0);
    EXPECT_EQ(Links().Grid().FocusColumn(), 0);
}

TEST_F(AddingLinks, MoveTheFocusWithoutANotification)
{
    Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    FocusOnLink(0);
    const int before = dialog->FocusNotifications();
    EXPECT_GT(before, 0) << "a click is told";
    Confirm(Dimension(L"A2", L"25", L"0.2", L"-0.1"), &objects[1]);
    EXPECT_EQ(dialog->FocusNotifications(), before);
}

// The host answers with no link.
TEST_F(AddingLinks, FocusTheChainAfterOkWithoutAnyLink)
{
    ASSERT_EQ(Links().FocusRow(), -1);
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_OK); }}); }), 1);
    EXPECT_EQ(Links().FocusRow(), 0);
    EXPECT_EQ(Links().Grid().FocusColumn(), 0);
    EXPECT_EQ(Links().Rows(), 1);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(AddingLinks, RepaintOnceAfterOk)
{
    EXPECT_EQ(RepaintsOf([this] { Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]); }), 1);
}

TEST_F(AddingLinks, GiveTheKeyboardToTheMainWindowAfterOk)
{
    RecordingWindow mainWindow(200, 100);
    AfxGetThread()->m_pMainWnd = &mainWindow;
    Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    EXPECT_EQ(::GetFocus(), mainWindow.m_hWnd);
}

TEST_F(AddingLinks, ReactivateTheDialogWhenThereIsNoMainWindow)
{
    AfxGetThread()->m_pMainWnd = nullptr;
    Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    EXPECT_EQ(::GetActiveWindow(), Window());
}

TEST_F(AddingLinks, DoTheSameAfterCancelWhenThereAreLinks)
{
    AddLink(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    FocusOnLink(0);
    CollapseChain();
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }}); }), 1);
    EXPECT_EQ(Links().Rows(), 2);
    EXPECT_EQ(Links().FocusRow(), 0);
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(AddingLinks, LeaveTheFocusRowAfterCancelWithoutLinks)
{
    const int before = Links().FocusRow();
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }}); }), 1);
    EXPECT_EQ(Links().Rows(), 1);
    EXPECT_EQ(Links().FocusRow(), before);
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(AddingLinks, DoNothingMoreWhenTheHostEndsTheDialog)
{
    ::SetFocus(Links().Window());
    const int repaints = RepaintsOf([this] {
        Command(ID_LINK_ADD, {[this] {
                    Load(Dimension(L"A1", L"25", L"0.2", L"-0.1"));
                    dialog->AddToList(&objects[0]);
                    dialog->EndModal();
                }});
    });
    EXPECT_EQ(repaints, 0);
    EXPECT_EQ(Links().Rows(), 1) << "not expanded";
    EXPECT_EQ(Links().FocusRow(), -1);
    EXPECT_NE(::GetFocus(), host.m_hWnd);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkBegins}));
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0]}));
}

TEST_F(AddingLinks, OnlyRepaintAfterAnyOtherResult)
{
    AddLink(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    FocusOnLink(0);
    CollapseChain();
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_ADD, {[this] { EndChildWith(7); }}); }), 1);
    EXPECT_EQ(Links().Rows(), 1) << "not expanded";
    EXPECT_NE(::GetFocus(), host.m_hWnd);
}

TEST_F(AddingLinks, OnlyRepaintWhenTheDialogsWindowIsDestroyed)
{
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_ADD, {[this] { ::DestroyWindow(Child()); }}); }), 1);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kLinkBegins}));
}

TEST_F(AddingLinks, WorkUnderEveryMethodAndWithoutOne)
{
    dialog->CancelDialog();
    Confirm(Dimension(L"A1", L"25", L"0.2", L"-0.1"), &objects[0]);
    ChooseMethod(kProbabilistic);
    Confirm(Dimension(L"A2", L"25", L"0.2", L"-0.1"), &objects[1]);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[1]}));
}

}  // namespace
