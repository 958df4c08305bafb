// The end of the dialog: by the user, by the host, and inside notifications.

#include <functional>

#include "host_test.h"
#include "tests/support/framework_printers.h"

namespace
{
/// Does something inside every notification.
class Observer : public NotificationObserver
{
public:
    explicit Observer(std::function<void(UINT)> action) : m_action(std::move(action)) {}
    void OnNotified(UINT code) override { m_action(code); }

private:
    std::function<void(UINT)> m_action;
};

using Ending = HostTest;

TEST_F(Ending, AClosedDialogIsDeletedWhenItsCodeHasReturned)
{
    Open();
    Notify(kDialogClosed);
    ASSERT_NE(FakeCalcTolDlg::Living(), nullptr) << "its own code is still running";
    EXPECT_TRUE(Protocol().HasWindow());

    PumpUntilIdle();
    EXPECT_EQ(FakeCalcTolDlg::Living(), nullptr);
    EXPECT_EQ(Protocol().Dialog(), nullptr);
    EXPECT_EQ(Protocol().Round(), ChainRound::kClosed);
    EXPECT_EQ(Lines(), std::vector<std::string>{"closing none"});
}

TEST_F(Ending, AClosedDialogStaysWhenTheNotificationIsNotAnswered)
{
    Open();
    Protocol().SetAnswering(kDialogClosed, false);
    Notify(kDialogClosed);
    PumpUntilIdle();

    EXPECT_TRUE(Protocol().HasWindow());
}

TEST_F(Ending, ADialogOpenedMeanwhileIsNotTheOneThatWasClosed)
{
    Open();
    Notify(kDialogClosed);
    Open();
    PumpUntilIdle();

    EXPECT_TRUE(Protocol().HasWindow());
}

TEST_F(Ending, TheObserverHearsEveryCodeBeforeTheAnswer)
{
    Open();
    std::vector<UINT> codes;
    std::vector<std::size_t> linksInside;
    Observer observer([&](UINT code) {
        codes.push_back(code);
        linksInside.push_back(Dialog().objects.size());
    });
    Protocol().SetObserver(&observer);
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    Notify(kLinkAccepted);
    Notify(static_cast<HostNotification>(77));
    Protocol().SetObserver(nullptr);
    Notify(kChildCancelled);

    EXPECT_EQ(codes, (std::vector<UINT>{kLinkBegins, kLinkAccepted, 77}));
    EXPECT_EQ(linksInside, (std::vector<std::size_t>{0, 0, 1}))
        << "the link is added after the observer has heard of it";
}

TEST_F(Ending, AnObserverMayDeleteTheDialogInsideANotification)
{
    for (const HostNotification code : {kLinkBegins, kClosingBegins, kEditBegins, kLinkAccepted, kLinkApplied,
                                        kClosingAccepted, kDistributionAccepted, kChildCancelled, kDialogClosed})
    {
        SCOPED_TRACE(code);
        Open();
        Observer observer([&](UINT) { Protocol().DeleteDialog(); });
        Protocol().SetObserver(&observer);
        m_frame->SendMessage(WM_CHAR, code, kNotificationMark);
        PumpUntilIdle();
        Protocol().SetObserver(nullptr);

        EXPECT_EQ(FakeCalcTolDlg::Living(), nullptr);
        EXPECT_EQ(Protocol().Round(), ChainRound::kClosed);
    }
}

TEST_F(Ending, ADestroyedWindowLeavesTheObjectUntilTheNextOpening)
{
    Open();
    AddLink("A1");
    Protocol().DestroyWindow();
    EXPECT_NE(FakeCalcTolDlg::Living(), nullptr);
    EXPECT_FALSE(Protocol().HasWindow());
    m_frame->ClickDimension(Object("A1"));
    EXPECT_EQ(Dialog().TakeCalls(), Calls{});

    ASSERT_TRUE(m_frame->OpenCalculation(L"Plate"));
    EXPECT_EQ(Dialog().TakeCalls(), (Calls{"SetFileName Plate", "Create"}));
    EXPECT_TRUE(Dialog().objects.empty()) << "a new object takes its place";
}

TEST_F(Ending, EndingTheChildDialogEndsTheRound)
{
    Open();
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object("A1"));
    Dialog().TakeCalls();
    Protocol().EndModal();

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"EndModal"});
    EXPECT_EQ(Protocol().Round(), ChainRound::kIdle);
    EXPECT_EQ(Protocol().Loaded(), nullptr);
}

TEST_F(Ending, CancellingEmptiesTheCopy)
{
    Open();
    AddLink("A1");
    Protocol().CancelDialog();

    EXPECT_EQ(Lines(), std::vector<std::string>{"closing none"});
}

TEST_F(Ending, ClosingTheMainWindowEndsTheDialogInOrder)
{
    Open();
    const HWND window = m_frame->GetSafeHwnd();
    m_frame->PostMessage(WM_CLOSE);
    m_frame = nullptr;
    PumpUntilIdle();

    EXPECT_EQ(FakeCalcTolDlg::Living(), nullptr);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(Ending, ClosingTheMainWindowEndsAChildDialogFirst)
{
    Open();
    Begin(kLinkBegins);
    m_frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(Dialog().TakeCalls(), Calls{"EndModal"}) << "the child's loop must return before anything is destroyed";
    EXPECT_NE(m_frame->GetSafeHwnd(), nullptr);

    const HWND window = m_frame->GetSafeHwnd();
    m_frame = nullptr;
    PumpUntilIdle();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(FakeCalcTolDlg::Living(), nullptr);
}

TEST_F(Ending, ADisabledMainWindowIsNotClosed)
{
    Open();
    m_frame->EnableWindow(FALSE);
    m_frame->SendMessage(WM_CLOSE);

    EXPECT_NE(m_frame->GetSafeHwnd(), nullptr);
    EXPECT_TRUE(Protocol().HasWindow());
}
}  // namespace
