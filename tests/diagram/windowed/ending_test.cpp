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

// The first rounds fill the system's and the framework's caches.
TEST_F(WeightDialogEnds, LeavingNothingBehind)
{
    const auto round = [this] {
        MakeDialog();
        Preselect(1);
        Run({[this] { Slide(9); }, [this] { PostRowClick(2); }, [this] { PostRowClick(3); },
             [this] { PostRowClick(0); }, [this] { Click(IDOK); }});
        dialog.reset();
        host.Forget();
        PumpUntilIdle();
        AfxGetThread()->OnIdle(0);  // the end of temporary objects
    };
    for (int i = 0; i < 3; ++i)
        round();
    const int gdiObjects = GdiObjectCount();
    const std::size_t heapBlocks = HeapBlockCount();
    for (int i = 0; i < 5; ++i)
        round();
    EXPECT_EQ(GdiObjectCount(), gdiObjects);
    EXPECT_EQ(HeapBlockCount(), heapBlocks);
}

}  // namespace
