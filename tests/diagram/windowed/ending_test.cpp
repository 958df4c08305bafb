#include "weight_dialog_test.h"

#include "tests/support/message_pump.h"
#include "tests/support/resource_count.h"

namespace
{

constexpr int kEndedByHost = 5;

class WeightEnding : public WeightDialogTest, public testing::WithParamInterface<int>
{
};

TEST_P(WeightEnding, KeepsWhatWasWritten)
{
    Preselect(1);
    const INT_PTR result = Run({[this] { Slide(9); }, [this] { Click(GetParam()); }});
    EXPECT_EQ(result, GetParam());
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{9, 7, 10}));
}

INSTANTIATE_TEST_SUITE_P(Buttons, WeightEnding, testing::Values(IDOK, IDCANCEL));

using WeightDialogEnds = WeightDialogTest;

TEST_F(WeightDialogEnds, ByTheCloseBox)
{
    const INT_PTR result = Run({[this] { ::PostMessageW(dialog->m_hWnd, WM_SYSCOMMAND, SC_CLOSE, 0); }, [] {}});
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(WeightDialogEnds, WithTheResultThatIsGivenFromOutside)
{
    Preselect(1);
    const INT_PTR result = Run({[this] { Slide(9); }, [this] { dialog->EndDialog(kEndedByHost); }});
    EXPECT_EQ(result, kEndedByHost);
    EXPECT_EQ(chain.records[0].weight, 9);
}

TEST_F(WeightDialogEnds, WhenItsWindowIsDestroyed)
{
    const INT_PTR result = Run({[this] { dialog->DestroyWindow(); }});
    EXPECT_NE(result, IDOK);
    EXPECT_NE(result, kEndedByHost);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(WeightDialogEnds, WhenItIsDeleted)
{
    Run({[this] {
        dialog->DestroyWindow();
        dialog.reset();
    }});
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

class WeightDialogLeaves : public WeightDialogTest
{
protected:
    /// The first rounds fill the system's and the framework's caches.
    static void ExpectNothingAfter(const std::function<void()>& round)
    {
        const auto cleanRound = [&] {
            round();
            PumpUntilIdle();
            AfxGetThread()->OnIdle(0);  // the end of temporary objects
        };
        for (int i = 0; i < 3; ++i)
            cleanRound();
        const int gdiObjects = GdiObjectCount();
        const std::size_t heapBlocks = HeapBlockCount();
        for (int i = 0; i < 5; ++i)
            cleanRound();
        EXPECT_EQ(GdiObjectCount(), gdiObjects);
        EXPECT_EQ(HeapBlockCount(), heapBlocks);
    }

    void Use()
    {
        Run({[this] { Slide(9); }, [this] { PostRowClick(2); }, [this] { PostRowClick(3); },
             [this] { PostRowClick(0); }, [this] { Click(IDOK); }});
        host.Forget();
    }
};

TEST_F(WeightDialogLeaves, NothingBehindWhenItIsDeleted)
{
    ExpectNothingAfter([this] {
        MakeDialog();
        Preselect(1);
        Use();
        dialog.reset();
    });
}

TEST_F(WeightDialogLeaves, NothingBehindWhenItIsOpenedAgain)
{
    Preselect(1);
    ExpectNothingAfter([this] { Use(); });
}

TEST_F(WeightDialogLeaves, NoGdiObjectsBehindWhenItIsKept)
{
    for (int i = 0; i < 3; ++i)
    {
        MakeDialog();
        Use();
    }
    MakeDialog();
    const int gdiObjects = GdiObjectCount();
    Use();
    EXPECT_EQ(GdiObjectCount(), gdiObjects);
}

}  // namespace
