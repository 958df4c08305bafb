#include "weight_dialog_test.h"

namespace
{

class WeightSlider : public WeightDialogTest
{
protected:
    HWND Slider() const { return Window(IDC_WEIGHT_SLIDER); }

    void PostSliderKey(UINT key) const
    {
        FocusOn(IDC_WEIGHT_SLIDER);
        PostKey(Slider(), key);
    }
};

TEST_F(WeightSlider, WritesEveryMoveAtOnce)
{
    Preselect(1);
    Run({[this] {
        for (const int weight : {5, 10, 1})
        {
            SCOPED_TRACE(weight);
            Slide(weight);
            CString text;
            text.Format(L"%d", weight);
            EXPECT_EQ(Text(IDC_WEIGHT_VALUE), text);
            EXPECT_EQ(LinkRow(1).Text(4), text);
            EXPECT_EQ(List().GetItemText(1, 4), text);
            EXPECT_EQ(chain.records[0].weight, weight);
        }
    }});
}

TEST_F(WeightSlider, WritesNothingButTheWeightOfTheSelectedLink)
{
    Preselect(3);
    Run({[this] { Slide(2); }});
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{4, 7, 2}));
    const CDimLink& record = chain.records[2];
    EXPECT_EQ(record.hostObject, &chain.hostObjects[2]);
    EXPECT_EQ(record.increasing, 1);
    EXPECT_EQ(record.mean, 25.0);
    EXPECT_EQ(record.law, 1);
}

TEST_F(WeightSlider, MovesByKeys)
{
    Preselect(1);
    Run({[this] { PostSliderKey(VK_RIGHT); }, [this] { EXPECT_EQ(chain.records[0].weight, 5); },
         [this] { PostSliderKey(VK_LEFT); }, [this] { PostSliderKey(VK_LEFT); },
         [this] { EXPECT_EQ(chain.records[0].weight, 3); }, [this] { PostSliderKey(VK_END); },
         [this] { EXPECT_EQ(chain.records[0].weight, 10); }, [this] { PostSliderKey(VK_RIGHT); },
         [this] { EXPECT_EQ(chain.records[0].weight, 10); }, [this] { PostSliderKey(VK_HOME); },
         [this] {
             EXPECT_EQ(chain.records[0].weight, 1);
             EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"1");
         }});
}

TEST_F(WeightSlider, IsDraggedWithTheMouse)
{
    Preselect(1);
    Run({[this] {
             RECT thumb{};
             RECT channel{};
             ::SendMessageW(Slider(), TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
             ::SendMessageW(Slider(), TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(&channel));
             const int y = (thumb.top + thumb.bottom) / 2;
             ::PostMessageW(Slider(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM((thumb.left + thumb.right) / 2, y));
             ::PostMessageW(Slider(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(channel.right, y));
             ::PostMessageW(Slider(), WM_LBUTTONUP, 0, MAKELPARAM(channel.right, y));
         },
         [this] {
             EXPECT_EQ(SliderPosition(), 10);
             EXPECT_EQ(chain.records[0].weight, 10);
         }});
}

TEST_F(WeightSlider, WritesNothingWithoutALinkSelected)
{
    Run({[this] {
        Slide(6);
        EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"");
        EXPECT_EQ(ChainRow().Text(4), L"");
    }});
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{4, 7, 10}));
}

TEST_F(WeightSlider, CannotBeMovedForAFixedLink)
{
    Preselect(2);
    Run({[this] { PostClick(Slider(), {5, 10}); }, [this] { EXPECT_EQ(SliderPosition(), 7); }});
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{4, 7, 10}));
}

TEST_F(WeightSlider, IgnoresTheScrollingOfAnythingElse)
{
    Preselect(1);
    Run({[this] {
        ::SendMessageW(Slider(), TBM_SETPOS, TRUE, 9);
        ::SendMessageW(dialog->m_hWnd, WM_HSCROLL, SB_LINERIGHT, 0);
        ::SendMessageW(dialog->m_hWnd, WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(List().m_hWnd));
    }});
    EXPECT_EQ(chain.records[0].weight, 4);
}

TEST_F(WeightSlider, ShowsTheWrittenWeightWhenTheLinkIsSelectedAgain)
{
    Preselect(1);
    Run({[this] { Slide(8); }, [this] { PostRowClick(3); }, [this] { EXPECT_EQ(SliderPosition(), 10); },
         [this] { PostRowClick(1); },
         [this] {
             EXPECT_EQ(SliderPosition(), 8);
             EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"8");
         }});
}

TEST_F(WeightSlider, WritesTheNewWeightToTheScreen)
{
    Preselect(1);
    Run({[] {},
         [this] {
             const Pixels former = ShownPixels(List().m_hWnd);
             Slide(8);
             ::UpdateWindow(List().m_hWnd);
             EXPECT_GT(DifferentPixels(ShownPixels(List().m_hWnd), former), 0);
         }});
}

}  // namespace
