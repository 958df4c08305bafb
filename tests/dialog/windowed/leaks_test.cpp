// What the calculation dialog leaves behind: nothing but what it abandons on purpose, which is counted exactly.
//
// The tests delete what was abandoned themselves; then not a single block or handle may be left. The first rounds fill
// the caches of the system and of the framework.

#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/planned_actions.h"
#include "tests/support/resource_count.h"

namespace
{

class Leaks : public CalcDialogTest
{
protected:
    /// The round leaves neither memory nor GDI objects behind.
    void ExpectNothingLeftBy(const std::function<void()>& round)
    {
        constexpr int kFirstRounds = 3;
        constexpr int kRounds = 4;
        for (int i = 0; i < kFirstRounds; ++i)
            Run(round);
        const int gdiObjects = GdiObjectCount();
        const std::size_t heapBlocks = HeapBlockCount();
        for (int i = 0; i < kRounds; ++i)
            Run(round);
        EXPECT_EQ(GdiObjectCount(), gdiObjects);
        EXPECT_EQ(HeapBlockCount(), heapBlocks);
    }

    void Renew()
    {
        dialog.reset();
        dialog = std::make_unique<WatchedDialog>();
        OpenWith(kProbabilistic);
    }

    /// Opens a child dialog, cancels it and notes its object.
    void OpenAndCancel(const ChildKind& kind)
    {
        Command(kind.command, {[&] {
                    m_children[kind.ownControl] = CWnd::FromHandlePermanent(Child());
                    ClickChild(kind.cancel);
                }});
    }

    void OpenAndCancelEach()
    {
        FocusOnLink(0);
        for (const ChildKind& kind : {kLinkChild, kClosingChild, kDistributionChild, kWeightChild})
            OpenAndCancel(kind);
    }

    /// The last child dialogs, which the calculation dialog has abandoned.
    void DeleteChildren()
    {
        for (const auto& [control, child] : m_children)
            delete child;
        m_children.clear();
    }

    /// The records of all rows, and the closing link's.
    std::vector<CDimLink*> Records() const
    {
        std::vector<CDimLink*> records;
        for (const WeightLink& link : Model())
            records.push_back(link.record);
        if (Closing().Record(0) != nullptr)
            records.push_back(Closing().Record(0));
        return records;
    }

private:
    void Run(const std::function<void()>& round)
    {
        round();
        host.Forget();
        PumpUntilIdle();
        AfxGetThread()->OnIdle(0);  // the end of temporary objects
    }

    std::map<int, CWnd*> m_children;
};

TEST_F(Leaks, AreNoneWithoutAChildDialog)
{
    ExpectNothingLeftBy([this] {
        Renew();
        ChooseMethod(kAnalytic);
        Command(IDCANCEL);
        dialog->DestroyWindow();
        dialog.reset();
    });
}

TEST_F(Leaks, AreTheLastChildOfEachKindAlone)
{
    ExpectNothingLeftBy([this] {
        Renew();
        FillChain();
        OpenAndCancelEach();
        Command(IDCANCEL);
        dialog->DestroyWindow();
        dialog.reset();
        const std::size_t before = HeapBlockCount();
        DeleteChildren();
        EXPECT_LT(HeapBlockCount(), before) << "they were abandoned, not freed";
    });
}

TEST_F(Leaks, AreNoChildrenBeforeTheLast)
{
    Renew();
    FillChain();
    ExpectNothingLeftBy([this] { OpenAndCancelEach(); });
    Close();
}

TEST_F(Leaks, AreNoChildrenThatTheHostOpensWhileTheirKindIsReplaced)
{
    Renew();
    FillChain();
    FocusOnLink(0);
    const Step cancel = [this] { ClickChild(IDC_VARIABLE_CANCEL); };
    ExpectNothingLeftBy([&] {
        Command(ID_LINK_DISTRIBUTION, {[&] {
                    host.OnEnabled([&] { Command(ID_LINK_DISTRIBUTION, {cancel}); });
                    Command(ID_LINK_DISTRIBUTION, {cancel});
                }});
    });
    Close();
}

TEST_F(Leaks, AreTheRecordsOfRowsWhenTheWindowGoesWithoutAReset)
{
    ExpectNothingLeftBy([this] {
        Renew();
        FillChain();
        OpenAndCancelEach();
        const std::vector<CDimLink*> records = Records();
        ASSERT_EQ(records.size(), 3U);
        dialog->DestroyWindow();
        dialog.reset();
        DeleteChildren();
        const std::size_t before = HeapBlockCount();
        for (const CDimLink* const record : records)
            delete record;
        EXPECT_EQ(HeapBlockCount(), before - records.size());
    });
}

TEST_F(Leaks, AreTheSameWhenTheObjectGoesWithItsWindow)
{
    ExpectNothingLeftBy([this] {
        Renew();
        FillChain();
        OpenAndCancelEach();
        ClickCell(Links(), 1, 5);
        const std::vector<CDimLink*> records = Records();
        dialog.reset();
        DeleteChildren();
        for (const CDimLink* const record : records)
            delete record;
    });
}

// The list closes its editor before it takes a row, and tells the dialog that it has the keyboard again.
TEST_F(Leaks, AreNoneWhenTheWindowGoesWhileALinkIsAdded)
{
    ExpectNothingLeftBy([this] {
        Renew();
        FillChain();
        OpenAndCancel(kNewLinkChild);
        OpenAndCancel(kNewClosingChild);
        ClickCell(Links(), 1, 5);
        ASSERT_TRUE(Links().Grid().HasEditor());
        dialog->OnNotified(NM_SETFOCUS, [this] {
            dialog->CancelDialog();
            dialog->DestroyWindow();
        });
        dialog->AddToList(&objects[2]);
        EXPECT_EQ(Window(), nullptr);
        dialog.reset();
        DeleteChildren();
    });
}

TEST_F(Leaks, AreNoneWhenTheChainGoesWhileLinksAreDeleted)
{
    for (const UINT command : {ID_LINK_DELETE, ID_LINK_DELETE_ALL})
    {
        SCOPED_TRACE(command);
        ExpectNothingLeftBy([this, command] {
            Renew();
            FillChain();
            OpenAndCancel(kNewLinkChild);
            OpenAndCancel(kNewClosingChild);
            ClickCell(Links(), 1, 5);
            ASSERT_TRUE(Links().Grid().HasEditor());
            dialog->OnNotified(NM_SETFOCUS, [this] {
                EXPECT_EQ(Objects().size(), 2U);
                dialog->CancelDialog();
            });
            Command(command);
            EXPECT_TRUE(Objects().empty());
            dialog->DestroyWindow();
            dialog.reset();
            DeleteChildren();
        });
    }
}

TEST_F(Leaks, AreNoneWhenTheChainGoesWhileALinkIsWrittenBack)
{
    ExpectNothingLeftBy([this] {
        Renew();
        FillChain();
        OpenAndCancel(kNewLinkChild);
        OpenAndCancel(kNewClosingChild);
        FocusOnLink(0);
        dialog->OnNotified(LVN_ITEMCHANGED, [this] { dialog->CancelDialog(); });
        CDimParams params = Dimension(L"new", L"4", L"0.1", L"0");
        dialog->SetCurrentFRowData(params);
        EXPECT_TRUE(Objects().empty());
        dialog->DestroyWindow();
        dialog.reset();
        DeleteChildren();
    });
}

TEST_F(Leaks, AreTheFirstClosingRecordWhenASecondOneComes)
{
    ExpectNothingLeftBy([this] {
        Renew();
        AddClosing(Dimension(L"", L"6", L"0.1", L"0"), &closingObject);
        const CDimLink* const first = Closing().Record(0);
        AddClosing(Dimension(L"", L"7", L"0.1", L"0"), &closingObject);
        OpenAndCancel(kClosingChild);
        Command(IDCANCEL);
        dialog->DestroyWindow();
        dialog.reset();
        DeleteChildren();
        const std::size_t before = HeapBlockCount();
        delete first;
        EXPECT_EQ(HeapBlockCount(), before - 1);
    });
}

TEST_F(Leaks, AreNotTheRecordsOfDeletedLinks)
{
    Renew();
    ExpectNothingLeftBy([this] {
        FillChain();
        FocusOnLink(1);
        Command(ID_LINK_DELETE);
        Command(ID_LINK_DELETE_ALL);
        Command(ID_CLOSING_DELETE);
    });
    Close();
}

TEST_F(Leaks, AreNotTheRecordsOfAReset)
{
    Renew();
    ExpectNothingLeftBy([this] {
        FillChain();
        dialog->CancelDialog();
    });
    Close();
}

TEST_F(Leaks, AreNoneWhenRowsAreRewritten)
{
    Renew();
    FillChain();
    FocusOnLink(0);
    ExpectNothingLeftBy([this] {
        CDimParams params = Dimension(L"A1, a name that is too long for a short text", L"10", L"0.2", L"-0.2");
        CVariableParams distribution;
        distribution.law = 2;
        dialog->SetCurrentFRowData(params);
        dialog->SetCloseFRowData(params);
        dialog->SetVariableFRowData(distribution);
        dialog->SetVariableCloseFRowData(distribution);
    });
    Close();
}

TEST_F(Leaks, AreNoneOfPaints)
{
    Renew();
    FillChain();
    ExpectNothingLeftBy([this] {
        ChooseMethod(kAnalytic);
        ChooseMethod(kProbabilistic);
        ::InvalidateRect(Control(IDC_CHAIN_DIAGRAM), nullptr, TRUE);
        ::UpdateWindow(Control(IDC_CHAIN_DIAGRAM));
    });
    Close();
}

TEST_F(Leaks, AreNoneOfContextMenus)
{
    Renew();
    FillChain();
    ExpectNothingLeftBy([this] {
        for (const int list : {IDC_CHAIN_LIST, IDC_CLOSING_LIST})
        {
            DoWhen([] { return ::FindWindowW(L"#32768", nullptr) != nullptr; }, [] { ::EndMenu(); });
            dialog->TrackEditMenu(CPoint(300, 300), list);
        }
    });
    Close();
}

TEST_F(Leaks, AreNoneOfColumn5sChoice)
{
    Renew();
    FillChain();
    ExpectNothingLeftBy([this] {
        ClickCell(Links(), 1, 5);
        ASSERT_TRUE(Links().Grid().HasEditor());
        ClickCell(Links(), 1, 0);
    });
    Close();
}

TEST_F(Leaks, AreNoneOfASecondWindow)
{
    ExpectNothingLeftBy([this] {
        Renew();
        for (int i = 0; i < 2; ++i)
        {
            dialog->DestroyWindow();
            OpenWith(kAnalytic);
        }
        dialog->DestroyWindow();
        dialog.reset();
    });
}

TEST_F(Leaks, AreTheChildrenThatRanWhenTheDialogWasDeleted)
{
    ExpectNothingLeftBy([this] {
        Renew();
        CWnd* child = nullptr;
        Command(ID_CLOSING_ADD, {[&] {
                    child = CWnd::FromHandlePermanent(Child());
                    dialog.reset();
                }});
        delete child;
    });
}

}  // namespace
