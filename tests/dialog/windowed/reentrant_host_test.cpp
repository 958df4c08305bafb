// Hosts that do something unusual inside a notification, and hosts that do nothing.

#include <string>

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

/// A notification: the command and the button of the child dialog that cause it.
struct Occasion
{
    const char* name;
    UINT command;
    int button;  // 0: the notification comes before the child dialog opens
    WPARAM code;
};

void PrintTo(const Occasion& occasion, std::ostream* out)
{
    *out << occasion.name;
}

constexpr Occasion kOccasions[] = {
    {"AddLink", ID_LINK_ADD, 0, kLinkBegins},
    {"AddLinkOk", ID_LINK_ADD, IDC_LINK_OK, kLinkAccepted},
    {"AddLinkApply", ID_LINK_ADD, IDC_LINK_APPLY, kLinkApplied},
    {"AddLinkCancel", ID_LINK_ADD, IDC_LINK_CANCEL, kChildCancelled},
    {"AddClosing", ID_CLOSING_ADD, 0, kClosingBegins},
    {"AddClosingOk", ID_CLOSING_ADD, IDC_CLOSING_OK, kClosingAccepted},
    {"AddClosingCancel", ID_CLOSING_ADD, IDC_CLOSING_CANCEL, kChildCancelled},
    {"EditLink", ID_LINK_EDIT, 0, kEditBegins},
    {"EditLinkOk", ID_LINK_EDIT, IDC_LINK_OK, kLinkAccepted},
    {"EditLinkCancel", ID_LINK_EDIT, IDC_LINK_CANCEL, kChildCancelled},
    {"EditClosing", ID_CLOSING_EDIT, 0, kEditBegins},
    {"EditClosingOk", ID_CLOSING_EDIT, IDC_CLOSING_OK, kClosingAccepted},
    {"LinkDistribution", ID_LINK_DISTRIBUTION, 0, kLinkBegins},
    {"LinkDistributionOk", ID_LINK_DISTRIBUTION, IDC_VARIABLE_OK, kDistributionAccepted},
    {"LinkDistributionCancel", ID_LINK_DISTRIBUTION, IDC_VARIABLE_CANCEL, kChildCancelled},
    {"ClosingDistribution", ID_CLOSING_DISTRIBUTION, 0, kClosingBegins},
    {"ClosingDistributionOk", ID_CLOSING_DISTRIBUTION, IDC_VARIABLE_OK, kDistributionAccepted},
};

class ReentrantHost : public CalcDialogTest, public testing::WithParamInterface<Occasion>
{
protected:
    ReentrantHost()
    {
        OpenWith(kProbabilistic);
        FillChain();
        FocusOnLink(0);
        host.Forget();
    }

    /// Does something inside the notification, once.
    void InsideTheNotification(const std::function<void()>& action)
    {
        m_reached = 0;
        host.On(GetParam().code, [this, action] {
            if (m_reached++ == 0)
                action();
        });
    }

    /// Causes the notification. A child dialog that opens after it is ended.
    void Cause()
    {
        if (GetParam().button != 0)
            Command(GetParam().command, {[this] {
                        if (GetParam().command == ID_LINK_ADD)
                            Load(Dimension(L"A3", L"2", L"0.1", L"0"));
                        ClickChild(GetParam().button);
                        if (dialog != nullptr && GetParam().button == IDC_LINK_APPLY)
                            dialog->EndModal();
                    }});
        else if (m_opensAfterwards)
            Command(GetParam().command, {[this] { dialog->EndModal(); }});
        else
            Command(GetParam().command);
        EXPECT_GT(m_reached, 0) << "the notification did not come";
    }

    bool m_opensAfterwards = true;

private:
    int m_reached = 0;
};

INSTANTIATE_TEST_SUITE_P(Inside, ReentrantHost, testing::ValuesIn(kOccasions), testing::PrintToStringParamName());

TEST_P(ReentrantHost, MayDestroyTheWindow)
{
    m_opensAfterwards = false;
    InsideTheNotification([this] { dialog->DestroyWindow(); });
    Cause();
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    EXPECT_EQ(host.Notifications().back(), GetParam().code) << "nothing follows";
    PumpUntilIdle();
}

TEST_P(ReentrantHost, MayDeleteTheDialog)
{
    m_opensAfterwards = false;
    InsideTheNotification([this] { dialog.reset(); });
    Cause();
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    EXPECT_EQ(host.Notifications().back(), GetParam().code) << "nothing follows";
    PumpUntilIdle();
}

// The command was for the former window: its child dialog does not open over the new one.
TEST_P(ReentrantHost, MayOpenTheWindowAnew)
{
    m_opensAfterwards = false;
    InsideTheNotification([this] { OpenAnew(); });
    Cause();
    EXPECT_EQ(host.Notifications().back(), GetParam().code) << "nothing follows";
    ExpectNoChild();
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Links().FocusRow(), -1);
    EXPECT_EQ(Closing().FocusRow(), -1);
}

TEST_P(ReentrantHost, MayEndTheModalDialog)
{
    InsideTheNotification([this] { dialog->EndModal(); });
    Cause();
    ExpectNoChild();
}

// The same command once more, from inside: another dialog of the kind opens and is ended.
TEST_P(ReentrantHost, MayStartTheSameCommandAgain)
{
    bool opened = false;
    InsideTheNotification([&] {
        Command(GetParam().command, {[&] {
                    opened = Child() != nullptr;
                    dialog->EndModal();
                }});
    });
    if (GetParam().command == ID_LINK_DISTRIBUTION || GetParam().command == ID_CLOSING_DISTRIBUTION)
        m_opensAfterwards = false;  // the first one was filled already, and the second one took its place
    Cause();
    EXPECT_TRUE(opened);
    ExpectNoChild();
}

// One occasion for each handler that goes on behind its notification.
constexpr Occasion kDifferentHandlers[] = {kOccasions[0],  kOccasions[1],  kOccasions[4],  kOccasions[5], kOccasions[7],
                                           kOccasions[10], kOccasions[12], kOccasions[13], kOccasions[15]};

using MilderHost = ReentrantHost;

INSTANTIATE_TEST_SUITE_P(Inside, MilderHost, testing::ValuesIn(kDifferentHandlers), testing::PrintToStringParamName());

TEST_P(MilderHost, MayResetTheDialog)
{
    // Without the link that it was for, editing ends before its dialog opens.
    m_opensAfterwards = GetParam().command != ID_LINK_EDIT;
    InsideTheNotification([this] { dialog->CancelDialog(); });
    Cause();
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(dialog->GetCloseObject(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

TEST_P(MilderHost, MayDeleteAllLinksAndTheClosingLink)
{
    m_opensAfterwards = GetParam().command != ID_LINK_EDIT;
    InsideTheNotification([this] {
        Command(ID_LINK_DELETE_ALL);
        Command(ID_CLOSING_DELETE);
    });
    Cause();
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Closing().Record(0), nullptr);
}

TEST_P(MilderHost, MayReadEverythingAndSwitchTheMethod)
{
    std::vector<void*> links;
    void* closing = nullptr;
    InsideTheNotification([&] {
        CDimParams dimension;
        CVariableParams distribution;
        dialog->GetDimDlgParams(dimension);
        dialog->GetCloseDimDlgParams(dimension);
        dialog->GetVariableDlgParams(distribution);
        links = Objects();
        closing = dialog->GetCloseObject();
        ChooseMethod(kAnalytic);
    });
    Cause();
    EXPECT_EQ(links, (std::vector<void*>{&objects[0], &objects[1]}));
    EXPECT_EQ(closing, &closingObject);
    EXPECT_EQ(Objects(), links);
    EXPECT_EQ(Child(), nullptr);
}

using UnusualHost = CalcDialogTest;

// The dialog that is filled from the host's values opens only after the notification.
TEST_F(UnusualHost, LoadsTooEarlyWithoutEffect)
{
    OpenWith(kAnalytic);
    host.OnEvery([this] {
        Load(Dimension(L"early", L"1", L"2", L"3"));
        LoadClosing(Dimension(L"early", L"1", L"2", L"3"));
    });
    for (int round = 0; round < 2; ++round)  // the second time a child object of the first is there
    {
        CString link = L"?";
        CString closing = L"?";
        Command(ID_LINK_ADD, {[&] {
                    link = ChildText(IDC_LINK_NOMINAL);
                    dialog->EndModal();
                }});
        Command(ID_CLOSING_ADD, {[&] {
                    closing = ChildText(IDC_CLOSING_NOMINAL);
                    dialog->EndModal();
                }});
        EXPECT_EQ(link, L"");
        EXPECT_EQ(closing, L"");
    }
}

TEST_F(UnusualHost, LoadsTooEarlyWhenEditingWithoutEffect)
{
    OpenWith(kAnalytic);
    FillChain();
    FocusOnLink(0);
    host.On(kEditBegins, [this] { Load(Dimension(L"early", L"1", L"2", L"3")); });
    CString name;
    Command(ID_LINK_EDIT, {[&] {
                name = ChildText(IDC_LINK_NAME);
                dialog->EndModal();
            }});
    EXPECT_EQ(name, L"A1");
}

using NestedChild = EachChild;

TEST_P(NestedChild, MayBeOpenedAgainWhileOneOfItsKindRuns)
{
    HWND first = nullptr;
    HWND second = nullptr;
    bool firstIsGone = false;
    Command(GetParam().command, {[&] {
                first = Child();
                Command(GetParam().command, {[&] {
                            second = Child();
                            firstIsGone = !::IsWindow(first);
                            ClickChild(GetParam().cancel);
                        }});
            }});
    EXPECT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_TRUE(firstIsGone);
    ExpectNoChild();
}

TEST_P(NestedChild, RepaintsTwiceWhenItWasReplaced)
{
    EXPECT_EQ(RepaintsOf([this] {
                  Command(GetParam().command,
                          {[this] { Command(GetParam().command, {[this] { ClickChild(GetParam().cancel); }}); }});
              }),
              2)
        << "the inner run ended with a result, the outer one as any other";
}

TEST_P(NestedChild, MayBeReplacedByOneThatTheHostEnds)
{
    Command(GetParam().command, {[this] { Command(GetParam().command, {[this] { dialog->EndModal(); }}); }});
    EXPECT_EQ(Child(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

// The second of three ends last, although the first one has given the calculation dialog back before.
TEST_P(NestedChild, MayBeReplacedWhileOneOfAnotherKindRuns)
{
    const ChildKind& other = GetParam().command == kDistributionChild.command ? kWeightChild : kDistributionChild;
    bool replaced = false;
    Command(GetParam().command, {[&] {
                const HWND first = Child();
                Command(other.command, {[&] {
                            Command(GetParam().command, {[&] {
                                        replaced = !::IsWindow(first) && ChildControl(GetParam().ownControl) != nullptr;
                                        EXPECT_FALSE(::IsWindowEnabled(Window()));
                                        ClickChild(GetParam().cancel);
                                    }});
                            EXPECT_FALSE(::IsWindowEnabled(Window()));
                            EXPECT_NE(ChildControl(other.ownControl), nullptr);
                            ClickChild(other.cancel);
                        }});
            }});
    EXPECT_TRUE(replaced);
    ExpectNoChild();
}

TEST_P(NestedChild, MayBeOpenWithOneOfEachOtherKind)
{
    Command(GetParam().command, {[this] {
                Command(ID_CONTEXT_LINK_WEIGHT, {[this] {
                            Command(ID_CLOSING_EDIT, {[this] { ClickChild(IDC_CLOSING_CANCEL); }});
                            dialog->EndModal();
                        }});
            }});
    EXPECT_EQ(Child(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_EQ(Objects().size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Kinds, NestedChild,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild),
                         testing::PrintToStringParamName());

using SilentHost = CalcDialogTest;

TEST_F(SilentHost, SeesTheSameNotificationsAndNoRowChanges)
{
    OpenWith(kProbabilistic);
    Command(ID_LINK_ADD, {[this] {
                Load(Dimension(L"A1", L"10", L"0.1", L"0"));
                ClickChild(IDC_LINK_OK);
            }});
    Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_OK); }});
    Command(ID_CLOSING_ADD, {[this] { ClickChild(IDC_CLOSING_OK); }});
    Command(ID_CLOSING_ADD, {[this] { ClickChild(IDC_CLOSING_CANCEL); }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{32, 1, 32, 1, 246, 93, 246, 3}));
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Closing().Record(0), nullptr);
    EXPECT_EQ(Links().Rows(), 1);
}

TEST_F(SilentHost, GetsAllNotificationsAsMarkedCharacters)
{
    OpenWith(kAnalytic);
    Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }});
    Command(IDCANCEL);
    const std::vector<ReceivedMessage> received = host.Received(WM_CHAR);
    ASSERT_EQ(received.size(), 3U);
    for (const ReceivedMessage& message : received)
        EXPECT_EQ(message.lParam, 0xFFFF);
}

// Every step twice, with a host that answers twice.
TEST_F(UnusualHost, AnswersEverythingTwice)
{
    OpenWith(kProbabilistic);
    host.On(kLinkAccepted, [this] {
        dialog->AddToList(&objects[0]);
        dialog->AddToList(&objects[0]);
    });
    host.On(kClosingAccepted, [this] {
        dialog->AddCloseDimToList(&closingObject);
        delete Closing().Record(0);  // the first one is the host's now
        dialog->AddCloseDimToList(&closingObject);
    });
    for (int round = 0; round < 2; ++round)
    {
        Command(ID_LINK_ADD, {[this] {
                    Load(Dimension(L"A1", L"10", L"0.1", L"0"));
                    ClickChild(IDC_LINK_OK);
                }});
        Command(ID_CLOSING_DELETE);
        Command(ID_CLOSING_ADD, {[this] {
                    LoadClosing(Dimension(L"", L"10", L"0.1", L"0"));
                    ClickChild(IDC_CLOSING_OK);
                }});
    }
    EXPECT_EQ(Objects(), (std::vector<void*>(4, &objects[0])));
    FocusOnLink(3);
    for (const UINT command : {ID_LINK_DELETE, ID_LINK_DELETE, ID_CLOSING_DELETE, ID_CLOSING_DELETE})
        Command(command);
    EXPECT_EQ(Objects().size(), 2U);
    EXPECT_EQ(dialog->GetCloseObject(), nullptr);
    Command(IDCANCEL);
    Command(IDCANCEL);
    EXPECT_TRUE(Objects().empty());
}

}  // namespace
