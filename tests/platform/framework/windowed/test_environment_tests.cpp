// What every windowed test relies on.

#include <vector>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/support/input.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/message_pump.h"
#include "tests/support/planned_actions.h"
#include "tests/support/recording_window.h"
#include "tests/support/resource_count.h"

TEST(TestEnvironment, UnexpectedMessageBoxIsClosedAndFailsTheTest)
{
    RecordingWindow window;
    EXPECT_NONFATAL_FAILURE(AfxMessageBox(L"Nobody expects this"), "Nobody expects this");
}

TEST(TestEnvironment, ExpectedMessageBoxThatDoesNotComeFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE({ const ExpectMessageBox box; }, "did not come");
}

TEST(TestEnvironment, AnswerThatTheBoxDoesNotOfferFailsTheTest)
{
    RecordingWindow window;
    EXPECT_NONFATAL_FAILURE(
        {
            const ExpectMessageBox box(IDRETRY);
            AfxMessageBox(L"text");
        },
        "no button 4");
}

TEST(TestEnvironment, MessageBoxesAreAnsweredInTheOrderAnnounced)
{
    RecordingWindow window;
    const ExpectMessageBox first(IDYES);
    const ExpectMessageBox second(IDNO);
    EXPECT_EQ(AfxMessageBox(L"one", MB_YESNO), IDYES);
    EXPECT_EQ(AfxMessageBox(L"two", MB_YESNO), IDNO);
    EXPECT_EQ(second.Text(), L"two");
}

TEST(TestEnvironment, WaitingEndsWithTheConditionOrTheTime)
{
    bool done = false;
    DoLater([&done] { done = true; });
    EXPECT_TRUE(WaitUntil([&done] { return done; }));
    EXPECT_FALSE(WaitUntil([] { return false; }, 30));
}

TEST(TestEnvironment, HostNotificationsAreToldFromTypedText)
{
    RecordingWindow host;
    host.SendMessage(WM_CHAR, 246, 0xFFFF);
    PostText(host, L"k");
    PumpUntilIdle();
    EXPECT_EQ(host.Notifications(), std::vector<WPARAM>{246});
    EXPECT_EQ(host.Received(WM_CHAR).size(), 2u);
}

TEST(TestEnvironment, AllocatedBlocksAreCounted)
{
    const std::size_t before = HeapBlockCount();
    const HANDLE heap = ::GetProcessHeap();
    void* block = ::HeapAlloc(heap, 0, 100);
    EXPECT_EQ(HeapBlockCount(), before + 1);
    ::HeapFree(heap, 0, block);
    EXPECT_EQ(HeapBlockCount(), before);
}

TEST(TestEnvironment, WindowRoundsLeaveNoMemoryBehind)
{
    const auto round = [] {
        RecordingWindow window;
        CEdit edit;
        edit.Create(WS_VISIBLE, CRect(0, 0, 50, 20), &window, 1);
        CWnd::FromHandle(::GetDesktopWindow());
        PumpUntilIdle();
        window.DestroyWindow();
        PumpUntilIdle();
        AfxGetThread()->OnIdle(0);
    };
    for (int i = 0; i < 3; ++i)
        round();
    const std::size_t before = HeapBlockCount();
    for (int i = 0; i < 10; ++i)
        round();
    EXPECT_EQ(HeapBlockCount(), before);
}
