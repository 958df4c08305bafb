#include "weight_dialog_test.h"

namespace
{

using WeightKeyboard = WeightDialogTest;

TEST_F(WeightKeyboard, ClosesByEnterInTheListAndOnTheSlider)
{
    Preselect(1);
    for (const int control : {IDC_WEIGHT_LIST, IDC_WEIGHT_SLIDER})
    {
        SCOPED_TRACE(control);
        const INT_PTR result = Run({[&] {
                                        FocusOn(control);
                                        PostKey(::GetFocus(), VK_RETURN);
                                    },
                                    [] {}});
        EXPECT_EQ(result, IDOK);
    }
}

TEST_F(WeightKeyboard, ClosesByEscInTheListAndOnTheSlider)
{
    Preselect(1);
    for (const int control : {IDC_WEIGHT_LIST, IDC_WEIGHT_SLIDER})
    {
        SCOPED_TRACE(control);
        const INT_PTR result = Run({[&] {
                                        FocusOn(control);
                                        PostKey(::GetFocus(), VK_ESCAPE);
                                    },
                                    [] {}});
        EXPECT_EQ(result, IDCANCEL);
    }
}

TEST_F(WeightKeyboard, WalksTheControlsAsTheyStand)
{
    Preselect(1);
    EXPECT_EQ(TabOrder(IDC_WEIGHT_LIST, 5),
              (std::vector<int>{IDC_WEIGHT_LIST, IDC_WEIGHT_SLIDER, IDOK, IDCANCEL, IDC_WEIGHT_LIST}));
}

TEST_F(WeightKeyboard, PassesOverADisabledSlider)
{
    Preselect(2);
    EXPECT_EQ(TabOrder(IDC_WEIGHT_LIST, 3), (std::vector<int>{IDC_WEIGHT_LIST, IDOK, IDCANCEL}));
}

TEST_F(WeightKeyboard, SetsTheWeightsOfTwoLinksWithoutTheMouse)
{
    Run({[this] { PostKey(List().m_hWnd, VK_DOWN); }, [] { PostKey(::GetFocus(), VK_TAB); },
         [] { PostKey(::GetFocus(), VK_RIGHT); }, [this] { FocusOn(IDC_WEIGHT_LIST); },
         [] { PostKey(::GetFocus(), VK_DOWN); }, [] { PostKey(::GetFocus(), VK_DOWN); },
         [] { PostKey(::GetFocus(), VK_TAB); }, [] { PostKey(::GetFocus(), VK_LEFT); },
         [] { PostKey(::GetFocus(), VK_RETURN); }, [] {}});
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{5, 7, 9}));
}

}  // namespace
