// The closing link: adding, replacing, deleting, reading back.

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class ClosingLinkTest : public CalcDialogTest
{
protected:
    ClosingLinkTest() { OpenWith(kAnalytic); }

    void Confirm(const CDimParams& params, void* object)
    {
        host.On(kClosingAccepted, [this, object] { dialog->AddCloseDimToList(object); });
        Command(ID_CLOSING_ADD, {[this, params] {
                    LoadClosing(params);
                    ClickChild(IDC_CLOSING_OK);
                }});
    }
};

const std::vector<CString> kEmptyRow{L"      X", L"", L"", L"", L""};

TEST_F(ClosingLinkTest, IsBegunWithItsOwnNotificationBeforeTheDialogOpens)
{
    bool open = true;
    bool isClosingDialog = false;
    host.On(kClosingBegins, [&] { open = Child() != nullptr; });
    Command(ID_CLOSING_ADD, {[&] {
                isClosingDialog = ChildControl(IDC_CLOSING_FIELD) != nullptr;
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    EXPECT_FALSE(open);
    EXPECT_TRUE(isClosingDialog);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{246, kChildCancelled}));
}

TEST_F(ClosingLinkTest, IsBegunWhileTheLastDialogsRecordCanBeRead)
{
    Command(ID_CLOSING_ADD, {[this] {
                LoadClosing(Dimension(L"A1", L"6", L"0.15", L"-0.15"));
                dialog->EndModal();
            }});
    CDimParams inside;
    CDimParams afterwards;
    host.On(kClosingBegins, [&] { dialog->GetCloseDimDlgParams(inside); });
    Command(ID_CLOSING_ADD, {[&] {
                dialog->GetCloseDimDlgParams(afterwards);
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    EXPECT_EQ(inside.name, L"A1") << "the next one has not taken its place yet";
    EXPECT_EQ(afterwards.name, L"");
}

TEST_F(ClosingLinkTest, IsBegunFromTheContextMenuAlike)
{
    bool isClosingDialog = false;
    Command(ID_CONTEXT_CLOSING_ADD, {[&] {
                isClosingDialog = ChildControl(IDC_CLOSING_FIELD) != nullptr;
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    EXPECT_TRUE(isClosingDialog);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{246, kChildCancelled}));
}

TEST_F(ClosingLinkTest, LetsTheHostReadTheRecordWhileItIsToldOfTheAcceptance)
{
    CDimParams read;
    host.On(kClosingAccepted, [&] { dialog->GetCloseDimDlgParams(read); });
    Command(ID_CLOSING_ADD, {[this] {
                LoadClosing(Dimension(L"closing", L"6", L"0.15", L"-0.15", 1, 3));
                WriteChild(IDC_CLOSING_UPPER_DEV, L"0.2");
                ClickChild(IDC_CLOSING_OK);
            }});
    EXPECT_EQ(read.name, L"closing");
    EXPECT_EQ(read.nominal, L"6");
    EXPECT_EQ(read.upperDev, L"0.2");
    EXPECT_EQ(read.lowerDev, L"-0.15");
    EXPECT_EQ(read.caption, L"Picked size:");
    EXPECT_EQ(read.dimKind, 3);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{246, 93}));
}

TEST_F(ClosingLinkTest, FillsItsRowButTheFirstColumn)
{
    Confirm(Dimension(L"closing", L"6", L"0.15", L"-0.1", 1, 3), &closingObject);
    EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"6", L"", L"0.15", L"-0.1"}));
    EXPECT_EQ(Closing().Row(0).Item(0).value, 3) << "the kind";
    EXPECT_EQ(Closing().Row(0).Image(0), 0);
    EXPECT_EQ(Closing().Rows(), 1);
}

TEST_F(ClosingLinkTest, ShowsItsFieldInColumn2)
{
    CDimParams params = Dimension(L"", L"25", L"", L"");
    params.tolField = L"H7";
    Confirm(params, &closingObject);
    EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"25", L"H7", L"0.021", L"0"}));
}

TEST_F(ClosingLinkTest, GetsARecord)
{
    Confirm(Dimension(L"", L"0.1", L"0.021", L"-0.1"), &closingObject);
    const CDimLink* const record = Closing().Record(0);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->hostObject, &closingObject);
    EXPECT_EQ(record->weight, 1);
    EXPECT_EQ(record->law, 1);
    EXPECT_EQ(record->mean, 0.060500000000000005) << "((-0.1 + 0.1) + (0.021 + 0.1)) / 2";
}

TEST_F(ClosingLinkTest, DoesNotRepaintWhenTheHostSetsIt)
{
    host.On(kClosingAccepted, [this] { ExpectNoRepaintBy([this] { dialog->AddCloseDimToList(&closingObject); }); });
    Command(ID_CLOSING_ADD, {[this] {
                LoadClosing(Dimension(L"", L"6", L"0.15", L"-0.15"));
                ClickChild(IDC_CLOSING_OK);
            }});
    EXPECT_EQ(dialog->GetCloseObject(), &closingObject);
}

TEST_F(ClosingLinkTest, IsReplacedByTheNextOne)
{
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15", 1, 1), &closingObject);
    const CDimLink* const first = Closing().Record(0);
    Confirm(Dimension(L"", L"7", L"0.2", L"-0.2", 1, 3), &objects[0]);
    EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"7", L"", L"0.2", L"-0.2"}));
    EXPECT_EQ(dialog->GetCloseObject(), &objects[0]);
    EXPECT_EQ(Closing().Row(0).Item(0).value, 3);
    EXPECT_NE(Closing().Record(0), first);
}

TEST_F(ClosingLinkTest, OfKind2HasNoTolerance)
{
    AddClosing(Dimension(L"", L"7", L"0.2", L"-0.2", 0, 2), &closingObject);
    EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"7", L"", L"", L""}));
    EXPECT_EQ(Closing().Row(0).Item(0).value, 2);
    EXPECT_EQ(Closing().Record(0)->mean, 7.0);
}

// Abandoned on purpose: whoever still holds on to it finds it whole.
TEST_F(ClosingLinkTest, LeavesTheRecordOfTheReplacedOneAlone)
{
    Confirm(Dimension(L"", L"6", L"0.5", L"-0.25"), &closingObject);
    const CDimLink* const first = Closing().Record(0);
    Confirm(Dimension(L"", L"7", L"0.2", L"-0.2"), &objects[0]);
    EXPECT_EQ(first->hostObject, &closingObject);
    EXPECT_EQ(first->mean, 6.125);
    delete first;
}

TEST_F(ClosingLinkTest, TakesTheFocusOfItsListAfterOkWithoutANotification)
{
    const int before = dialog->FocusNotifications();
    EXPECT_EQ(Closing().FocusRow(), -1);
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
    EXPECT_EQ(Closing().FocusRow(), 0);
    EXPECT_EQ(Closing().Grid().FocusColumn(), -1) << "as a whole row";
    EXPECT_EQ(dialog->FocusNotifications(), before);
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(ClosingLinkTest, TakesTheFocusOfItsListAfterOkEvenWhenTheHostDoesNotAnswer)
{
    Command(ID_CLOSING_ADD, {[this] { ClickChild(IDC_CLOSING_OK); }});
    EXPECT_EQ(Closing().Record(0), nullptr);
    EXPECT_EQ(Closing().FocusRow(), 0);
}

TEST_F(ClosingLinkTest, LeavesTheFocusRowAfterCancelEvenWhenItWasAdded)
{
    AddClosing(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
    EXPECT_EQ(dialog->GetCloseObject(), &closingObject);
    EXPECT_EQ(Closing().FocusRow(), -1);
}

TEST_F(ClosingLinkTest, RepaintsOnceAfterOk)
{
    EXPECT_EQ(RepaintsOf([this] { Confirm(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject); }), 1);
}

TEST_F(ClosingLinkTest, LeavesTheFocusRowAfterCancel)
{
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(ID_CLOSING_ADD, {[this] { ClickChild(IDC_CLOSING_CANCEL); }}); }), 1);
    EXPECT_EQ(Closing().FocusRow(), -1);
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(ClosingLinkTest, DoesNothingMoreWhenTheHostEndsTheDialog)
{
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(ID_CLOSING_ADD, {[this] { dialog->EndModal(); }}); }), 0);
    EXPECT_EQ(Closing().FocusRow(), -1);
    EXPECT_NE(::GetFocus(), host.m_hWnd);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{246}));
}

TEST_F(ClosingLinkTest, OnlyRepaintsAfterAnyOtherResult)
{
    ::SetFocus(Links().Window());
    EXPECT_EQ(RepaintsOf([this] { Command(ID_CLOSING_ADD, {[this] { EndChildWith(7); }}); }), 1);
    EXPECT_EQ(Closing().FocusRow(), -1);
    EXPECT_NE(::GetFocus(), host.m_hWnd);
}

TEST_F(ClosingLinkTest, HasTheObjectThatTheHostGave)
{
    EXPECT_EQ(dialog->GetCloseObject(), nullptr) << "none yet";
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
    EXPECT_EQ(dialog->GetCloseObject(), &closingObject);
    Command(ID_CLOSING_DELETE);
    EXPECT_EQ(dialog->GetCloseObject(), nullptr) << "deleted";
}

TEST_F(ClosingLinkTest, HasNoObjectWhenTheHostGaveNull)
{
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15"), nullptr);
    EXPECT_NE(Closing().Record(0), nullptr);
    EXPECT_EQ(dialog->GetCloseObject(), nullptr);
}

TEST_F(ClosingLinkTest, IsDeletedWithoutALineToTheHost)
{
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15", 1, 3), &closingObject);
    host.Forget();
    EXPECT_EQ(RepaintsOf([this] { Command(ID_CLOSING_DELETE); }), 1);
    EXPECT_EQ(Closing().Texts(0), kEmptyRow);
    EXPECT_EQ(Closing().Record(0), nullptr);
    EXPECT_EQ(Closing().Row(0).Item(0).value, 3) << "the kind stays";
    EXPECT_TRUE(Codes().empty());
}

TEST_F(ClosingLinkTest, IsDeletedFromTheContextMenuAlike)
{
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
    Command(ID_CONTEXT_CLOSING_DELETE);
    EXPECT_EQ(Closing().Record(0), nullptr);
    EXPECT_EQ(Closing().Texts(0), kEmptyRow);
}

TEST_F(ClosingLinkTest, CanBeDeletedWhenThereIsNone)
{
    EXPECT_EQ(RepaintsOf([this] { Command(ID_CLOSING_DELETE); }), 1);
    EXPECT_EQ(RepaintsOf([this] { Command(ID_CLOSING_DELETE); }), 1);
    EXPECT_EQ(Closing().Texts(0), kEmptyRow);
}

TEST_F(ClosingLinkTest, CanBeAddedAgainAfterItWasDeleted)
{
    Confirm(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
    Command(ID_CLOSING_DELETE);
    Confirm(Dimension(L"", L"8", L"0.1", L"-0.1"), &objects[1]);
    EXPECT_EQ(dialog->GetCloseObject(), &objects[1]);
    EXPECT_EQ(Closing().Text(0, 1), L"8");
}

}  // namespace
