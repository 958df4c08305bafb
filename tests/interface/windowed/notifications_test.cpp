#include <gtest/gtest.h>

#include "interface/notifications.h"
#include "interface/notify_host.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"

namespace
{

TEST(Notifications, HaveTheCodesThatHostsKnow)
{
    EXPECT_EQ(kLinkAccepted, 1U);
    EXPECT_EQ(kDialogClosed, 2U);
    EXPECT_EQ(kChildCancelled, 3U);
    EXPECT_EQ(kEditBegins, 30U);
    EXPECT_EQ(kLinkBegins, 32U);
    EXPECT_EQ(kDistributionAccepted, 35U);
    EXPECT_EQ(kClosingAccepted, 93U);
    EXPECT_EQ(kLinkApplied, 107U);
    EXPECT_EQ(kClosingBegins, 246U);
    EXPECT_EQ(kNotificationMark, 65535);
}

TEST(Notifications, ArriveBeforeTheCallReturns)
{
    RecordingWindow host;
    NotifyHost(&host, kClosingBegins);
    const std::vector<ReceivedMessage> received = host.Received();
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].message, static_cast<UINT>(WM_CHAR));
    EXPECT_EQ(received[0].wParam, 246U);
    EXPECT_EQ(received[0].lParam, 0xFFFF);
}

TEST(Notifications, AreNotSentWithoutAWindow)
{
    RecordingWindow host;
    host.DestroyWindow();
    NotifyHost(&host, kDialogClosed);
    NotifyHost(nullptr, kDialogClosed);
    PumpUntilIdle();
    EXPECT_TRUE(host.Received().empty());
}

}  // namespace
