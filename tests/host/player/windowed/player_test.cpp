#include <string>

#include <gtest/gtest.h>

#include "host/player/script_parser.h"
#include "host/player/step_handler.h"
#include "host/player/step_table.h"
#include "test_play.h"
#include "test_windows.h"

namespace
{

const char* const kControlLines = "expect-open link\n"
                                  "expect-closed message\n"
                                  "press link 1004\n";

class LinkDialog : public TestDialog
{
public:
    explicit LinkDialog(HWND owner) : TestDialog(owner, L"Link")
    {
        Add(WC_STATICW, 1017, L"", 0, {0, 0, 10, 10});
        Add(WC_BUTTONW, 1004, L"OK", WS_TABSTOP, {20, 20, 100, 44});
    }
};

}  // namespace

TEST(ScriptPlayer, EveryStepOfTheLanguageHasItsHandler)
{
    for (const StepForm& form : StepForms())
    {
        const StepHandler* const handler = FindStepHandler(form.name);
        ASSERT_NE(handler, nullptr) << form.name;
        EXPECT_NE(handler->atOnce != nullptr, handler->asTask != nullptr) << form.name;
    }
}

TEST(ScriptPlayer, StepsComeInOrderAndEachPrintsALine)
{
    TestHost host;
    const PlayResult result = Play(host, "open \"Shaft\"  # label\n\ndrawing a.json\nprint\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(host.asked, (std::vector<std::string>{"open Shaft", "drawing plays/a.json"}));
    EXPECT_EQ(
        result.output,
        "ok   1: open \"Shaft\"\nok   3: drawing a.json\nlink A1 40\nclosing 0\nok   4: print\nall 3 steps held\n");
}

TEST(ScriptPlayer, AnEmptyScriptHolds)
{
    TestHost host;
    EXPECT_EQ(Play(host, "").exitCode, 0);
    EXPECT_EQ(host.observer, nullptr);
}

TEST(ScriptPlayer, TheFirstFailureEndsThePlay)
{
    TestHost host;
    ExpectFails(host, "open\nexpect-closed host\nopen\n", 2, "expected host closed, found open: host");
    EXPECT_EQ(host.asked, (std::vector<std::string>{"open without label"}));
}

TEST(ScriptPlayer, WhatTheHostRefusesFailsTheStep)
{
    TestHost host;
    ExpectFails(host, "pick A1\npick B7\n", 2, "the drawing has no dimension B7");
}

TEST(ScriptPlayer, AStepWaitsForTheWindowThatItNames)
{
    TestHost host;
    LinkDialog dialog(host.MainWindow());
    static HWND late;
    late = dialog.Window();
    SetTimer(nullptr, 0, 300, [](HWND, UINT, UINT_PTR id, DWORD) {
        KillTimer(nullptr, id);
        ShowWindow(late, SW_SHOW);
    });
    ExpectHolds(host, kControlLines);
    EXPECT_EQ(dialog.commands.back(), "0:1004");
}

TEST(ScriptPlayer, AWindowThatNeverComesFailsAfterTenSeconds)
{
    TestHost host;
    const ULONGLONG start = GetTickCount64();
    ExpectFails(host, "expect-open weight\n", 1, "expected weight open, found open: host");
    const ULONGLONG waited = GetTickCount64() - start;
    EXPECT_GE(waited, 9900U);
    EXPECT_LT(waited, 15000U);
}

TEST(ScriptPlayer, StepsGoOnInsideAMessageBox)
{
    TestHost host;
    LinkDialog dialog(host.MainWindow());
    dialog.OnMessage([](TestDialog& link, UINT message, WPARAM wParam, LPARAM) {
        if (message != WM_COMMAND || LOWORD(wParam) != 1004)
            return false;
        MessageBoxW(link.Window(), L"The name is missing.", L"Link", MB_OK);
        link.commands.push_back("closed");
        return true;
    });
    dialog.Show();
    ExpectHolds(host, "press link 1004\n"
                      "expect-open message\n"
                      "expect-text message text \"The name is missing.\"\n"
                      "expect-enabled link window no\n"
                      "press message ok\n"
                      "expect-closed message\n"
                      "expect-enabled link window yes\n");
    EXPECT_EQ(dialog.commands.back(), "closed");
}

TEST(ScriptPlayer, AnEscapeClosesAMessageBox)
{
    TestHost host;
    host.opensMessage = true;
    ExpectHolds(host, "open\nexpect-open message\nkey message window Escape\nexpect-closed message\n");
    EXPECT_EQ(host.asked.back(), "message closed");
}

TEST(ScriptPlayer, AHostThatShowsAMessageInsideACallDoesNotBlockThePlay)
{
    TestHost host;
    host.opensMessage = true;
    ExpectHolds(host, "open\nexpect-open message\npress message ok\nexpect-closed message\npick A1\n");
    EXPECT_EQ(host.asked, (std::vector<std::string>{"open without label", "message closed", "pick A1"}));
}

TEST(ScriptPlayer, AControlBehindAMessageBoxCanNotBeUsed)
{
    TestHost host;
    host.opensMessage = true;
    ExpectFails(host, "open\nexpect-open message\npick A1\n", 3, "the host's window is disabled");
}

TEST(ScriptPlayer, ADisabledOrHiddenControlCanNotBeUsed)
{
    TestHost host;
    LinkDialog dialog(host.MainWindow());
    dialog.Show();
    EnableWindow(dialog.Control(1004), FALSE);
    ExpectFails(host, "press link 1004\n", 1, "control 1004 is disabled");
    EnableWindow(dialog.Control(1004), TRUE);
    ShowWindow(dialog.Control(1004), SW_HIDE);
    ExpectFails(host, "press link 1004\n", 1, "control 1004 is hidden");
    ExpectFails(host, "press link 1005\n", 1, "there is no control 1005");
}

TEST(ScriptPlayer, ACommandReachesTheWindowAlsoForADisabledButton)
{
    TestHost host;
    LinkDialog dialog(host.MainWindow());
    dialog.Show();
    EnableWindow(dialog.Control(1004), FALSE);
    ExpectHolds(host, "command link 1004\ncommand link 2\n");
    EXPECT_EQ(dialog.commands, (std::vector<std::string>{"0:1004", "0:2"}));
}

TEST(ScriptPlayer, AnswersAreSwitchedByCode)
{
    TestHost host;
    ExpectHolds(host, "answer off\nanswer on 32 1\n");
    EXPECT_EQ(host.asked, (std::vector<std::string>{"ignore 1", "ignore 107", "ignore 93", "ignore 35", "ignore 2",
                                                    "answer 32", "answer 1"}));
}

TEST(ScriptPlayer, NotificationsAreKeptUntilTheyAreExpected)
{
    TestHost host;
    LinkDialog dialog(host.MainWindow());
    static TestHost* told;
    told = &host;
    dialog.OnMessage([](TestDialog&, UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_COMMAND)
            told->observer->OnNotified(LOWORD(wParam));
        return false;
    });
    dialog.Show();
    ExpectHolds(host, "expect-notified\ncommand link 32\ncommand link 1\nexpect-notified 32 1\nexpect-notified\n");
    ExpectFails(host, "command link 3\nexpect-notified 1 3\n", 2, "expected 1 3, found 3");
}

TEST(ScriptPlayer, ACallWithoutADialogFails)
{
    TestHost host;
    ExpectFails(host, "call CancelDialog\n", 1, "there is no calculation dialog");
}

TEST(ScriptPlayerDeathTest, APlayThatDoesNotEndIsStoppedWithThree)
{
    EXPECT_EXIT(
        {
            TestHost host;
            ScriptPlayer player(ParseScript("expect-open weight\n", "plays/test.txt"), host,
                                std::chrono::milliseconds(200));
            player.Start();
            Sleep(10000);  // a user interface that hangs
        },
        testing::ExitedWithCode(3), "");
}
