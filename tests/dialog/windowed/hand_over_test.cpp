// The moments in which a child dialog opens or goes: its owners are disabled and enabled, the calculation dialog
// becomes active, the main window gets the keyboard. And hosts that end the calculation dialog in one of these moments.

#include <tuple>

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

/// A child dialog and the button that ends it.
using Ending = std::tuple<ChildKind, bool>;

class HandOver : public CalcDialogTest, public testing::WithParamInterface<Ending>
{
protected:
    HandOver()
    {
        OpenWith(kProbabilistic);
        FillChain();
        FocusOnLink(0);
        host.Forget();
    }

    static const ChildKind& Kind() { return std::get<ChildKind>(GetParam()); }
    static bool ByOk() { return std::get<bool>(GetParam()); }
    static int Button() { return ByOk() ? Kind().ok : Kind().cancel; }
};

std::string NameOf(const testing::TestParamInfo<Ending>& ending)
{
    return std::get<ChildKind>(ending.param).name + std::string(std::get<bool>(ending.param) ? "Ok" : "Cancel");
}

INSTANTIATE_TEST_SUITE_P(After, HandOver,
                         testing::Combine(testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild,
                                                          kNewLinkChild, kNewClosingChild),
                                          testing::Bool()),
                         &NameOf);

// Windows activates the owner of the window that goes only when that one was active itself.
TEST_P(HandOver, TakesTheActivationFromAnotherWindow)
{
    AfxGetThread()->m_pMainWnd = nullptr;
    RecordingWindow other(200, 100);
    Command(Kind().command, {[&] {
                other.SetActiveWindow();
                EndChildWith(ByOk() ? IDOK : IDCANCEL);
            }});
    EXPECT_EQ(::GetActiveWindow(), Window());
}

TEST_P(HandOver, MayDeleteTheDialog)
{
    Command(Kind().command, {[this] {
                host.OnFocused([this] { dialog.reset(); });
                ClickChild(Button());
            }});
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

TEST_P(HandOver, MayDestroyTheWindow)
{
    Command(Kind().command, {[this] {
                host.OnFocused([this] { dialog->DestroyWindow(); });
                ClickChild(Button());
            }});
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

// What is left of the command was for the former window.
TEST_P(HandOver, MayOpenTheWindowAnew)
{
    Command(Kind().command, {[this] {
                host.OnFocused([this] { OpenAnew(); });
                ClickChild(Button());
            }});
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_EQ(Links().FocusRow(), -1);
    EXPECT_EQ(Closing().FocusRow(), -1);
}

using AnyOtherResult = EachChild;

INSTANTIATE_TEST_SUITE_P(Kinds, AnyOtherResult,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild, kNewLinkChild,
                                         kNewClosingChild),
                         testing::PrintToStringParamName());

TEST_P(AnyOtherResult, LeavesTheActivationToAnotherWindow)
{
    AfxGetThread()->m_pMainWnd = nullptr;
    RecordingWindow other(200, 100);
    Command(GetParam().command, {[&] {
                other.SetActiveWindow();
                EndChildWith(7);
            }});
    EXPECT_EQ(::GetActiveWindow(), other.m_hWnd);
}

/// The host's window is disabled before the child's window is made.
using DisablingTheHost = EachChild;

INSTANTIATE_TEST_SUITE_P(Kinds, DisablingTheHost,
                         testing::Values(kLinkChild, kClosingChild, kDistributionChild, kWeightChild, kNewLinkChild,
                                         kNewClosingChild),
                         testing::PrintToStringParamName());

TEST_P(DisablingTheHost, MayDeleteTheDialogWhoseChildIsToOpen)
{
    host.OnDisabled([this] { dialog.reset(); });
    Command(GetParam().command);
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

TEST_P(DisablingTheHost, MayOpenTheWindowAnewOfTheDialogWhoseChildIsToOpen)
{
    host.OnDisabled([this] { OpenAnew(); });
    Command(GetParam().command);
    ExpectNoChild();
    EXPECT_TRUE(::IsWindowVisible(Window()));
}

// The child that the host opens meanwhile takes the place of the one that was to open.
TEST_P(DisablingTheHost, MayRunTheCommandWhoseChildIsToOpen)
{
    int opened = 0;
    bool hostEnabled = true;
    host.OnDisabled([&] {
        Command(GetParam().command, {[&] {
                    ++opened;
                    hostEnabled = ::IsWindowEnabled(host.m_hWnd) != FALSE;
                    dialog->EndModal();
                }});
    });
    Command(GetParam().command, std::vector<Step>{});
    EXPECT_EQ(opened, 1);
    const bool leavesTheHostDisabled =
        GetParam().command == kDistributionChild.command || GetParam().command == kWeightChild.command;
    EXPECT_EQ(hostEnabled, !leavesTheHostDisabled);
    EXPECT_EQ(Child(), nullptr);
    EXPECT_EQ(::GetActiveWindow(), Window());
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

// These two kinds leave the host's window disabled while they are open.
class EnablingTheHost : public EachChild
{
protected:
    /// Opens the child, and while it is open does the same command again, which replaces it. The host does something
    /// when the first one has given it back its window. No second one opens.
    void Replace(const std::function<void()>& whenEnabled)
    {
        HWND first = nullptr;
        Command(GetParam().command, {[&] {
                    first = Child();
                    atOpening = Codes();
                    host.OnEnabled(whenEnabled);
                    Command(GetParam().command);
                }});
        EXPECT_NE(first, nullptr);
        EXPECT_FALSE(::IsWindow(first));
        EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
        PumpUntilIdle();
    }

    std::vector<WPARAM> atOpening;
};

INSTANTIATE_TEST_SUITE_P(Kinds, EnablingTheHost, testing::Values(kDistributionChild, kWeightChild),
                         testing::PrintToStringParamName());

TEST_P(EnablingTheHost, MayDeleteTheDialogWhoseChildEnds)
{
    for (const bool byHost : {false, true})
    {
        if (dialog == nullptr)
        {
            dialog = std::make_unique<WatchedDialog>();
            OpenWith(kProbabilistic);
            FillChain();
            FocusOnLink(0);
        }
        Command(GetParam().command, {[&] {
                    host.OnEnabled([this] { dialog.reset(); });
                    byHost ? dialog->EndModal() : ClickChild(GetParam().ok);
                }});
        EXPECT_EQ(dialog, nullptr);
        EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
        PumpUntilIdle();
    }
}

TEST_P(EnablingTheHost, MayDestroyTheWindowOfTheDialogWhoseChildEnds)
{
    Command(GetParam().command, {[this] {
                host.OnEnabled([this] { dialog->DestroyWindow(); });
                ClickChild(GetParam().ok);
            }});
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

// What the user has chosen stands.
TEST_P(EnablingTheHost, ComesTooLateToEndTheChildThatTheUserHasEnded)
{
    for (const int button : {GetParam().ok, GetParam().cancel})
    {
        ::SetFocus(Links().Window());
        const int repaints = RepaintsOf([&] {
            Command(GetParam().command, {[&] {
                        host.OnEnabled([this] { dialog->EndModal(); });
                        ClickChild(button);
                    }});
        });
        EXPECT_EQ(repaints, 1);
        EXPECT_EQ(::GetFocus(), host.m_hWnd);
    }
}

TEST_P(EnablingTheHost, MayDeleteTheDialogWhoseChildIsReplaced)
{
    Replace([this] { dialog.reset(); });
    EXPECT_EQ(dialog, nullptr);
    EXPECT_EQ(Codes(), atOpening);
}

TEST_P(EnablingTheHost, MayDestroyTheWindowOfTheDialogWhoseChildIsReplaced)
{
    Replace([this] { dialog->DestroyWindow(); });
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(Codes(), atOpening);
}

TEST_P(EnablingTheHost, MayOpenTheWindowAnewOfTheDialogWhoseChildIsReplaced)
{
    Replace([this] { OpenAnew(); });
    EXPECT_EQ(Codes(), atOpening);
    EXPECT_EQ(Child(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
}

// The link that the next child was for goes in the same moment.
TEST_P(EnablingTheHost, MayDeleteAllLinksWhenTheChildIsReplaced)
{
    HWND first = nullptr;
    std::vector<Step> replacing{[&] {
        first = Child();
        host.OnEnabled([this] { Command(ID_LINK_DELETE_ALL); });
        if (GetParam().command == kDistributionChild.command)
            Command(GetParam().command);
        else
            Command(GetParam().command, {[this] { ClickChild(GetParam().cancel); }});
    }};
    Command(GetParam().command, replacing);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Child(), nullptr);
}

// The host runs the command itself meanwhile: that one's dialog is through before the outer one opens.
TEST_P(EnablingTheHost, MayRunTheCommandWhenTheChildIsReplaced)
{
    int opened = 0;
    const Step step = [&] {
        opened += ChildControl(GetParam().ownControl) != nullptr ? 1 : 0;
        ClickChild(GetParam().cancel);
    };
    Command(GetParam().command, {[&] {
                host.OnEnabled([&] { Command(GetParam().command, {step}); });
                Command(GetParam().command, {step});
            }});
    EXPECT_EQ(opened, 2);
    ExpectNoChild();
}

}  // namespace
