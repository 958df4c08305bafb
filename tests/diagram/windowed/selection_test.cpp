#include "platform/moduleskin/resource.h"
#include "weight_dialog_test.h"

namespace
{

constexpr int kExpandImage = 12;  // pixels from the left, in the chain row

class WeightSelection : public WeightDialogTest
{
protected:
    void ExpectFreeLinkOne() const
    {
        EXPECT_EQ(Selected(), 1);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A1");
        EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"4");
        EXPECT_EQ(SliderPosition(), 4);
        EXPECT_TRUE(IsEnabled(IDC_WEIGHT_SLIDER));
        EXPECT_TRUE(IsShown(IDC_WEIGHT_PICTURE));
        EXPECT_EQ(DifferenceFrom(1003), 0);
    }

    void ExpectFixedLinkTwo() const
    {
        EXPECT_EQ(Selected(), 2);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A2");
        EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"7");
        EXPECT_EQ(SliderPosition(), 7);
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
        EXPECT_TRUE(IsShown(IDC_WEIGHT_PICTURE));
        EXPECT_EQ(DifferenceFrom(1000), 0);
    }

    void ExpectChain() const
    {
        EXPECT_EQ(Selected(), 0);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"");
        EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"");
        EXPECT_EQ(SliderPosition(), 1);
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
        EXPECT_FALSE(IsShown(IDC_WEIGHT_PICTURE));
    }
};

TEST_F(WeightSelection, FollowsTheMouse)
{
    Run({[this] { PostRowClick(1); }, [this] { ExpectFreeLinkOne(); }, [this] { PostRowClick(2); },
         [this] { ExpectFixedLinkTwo(); }, [this] { PostRowClick(0); }, [this] { ExpectChain(); }});
}

TEST_F(WeightSelection, FollowsTheKeyboard)
{
    Run({[this] { PostKey(List().m_hWnd, VK_DOWN); }, [this] { ExpectFreeLinkOne(); },
         [this] { PostKey(List().m_hWnd, VK_DOWN); }, [this] { ExpectFixedLinkTwo(); },
         [this] { PostKey(List().m_hWnd, VK_PRIOR); }, [this] { ExpectChain(); }});
}

TEST_F(WeightSelection, GoesToTheChainWhenItIsCollapsed)
{
    Preselect(1);
    Run({[this] { PostRowClick(0, kExpandImage); }, [this] { ExpectChain(); }});
}

TEST_F(WeightSelection, ShowsTheSecondAndTheThirdPictureInTurn)
{
    Run({[this] { PostRowClick(3); }, [this] { EXPECT_EQ(DifferenceFrom(1002), 0); }, [this] { PostRowClick(2); },
         [this] { EXPECT_EQ(DifferenceFrom(1000), 0); }});
}

TEST_F(WeightSelection, KeepsThePictureWhenItWasCovered)
{
    Preselect(3);
    Run({[] {},
         [this] {
             const HWND frame = Window(IDC_WEIGHT_PICTURE);
             MakeDirty(frame);
             ::RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
             EXPECT_EQ(DifferenceFrom(1002), 0);
         }});
}

TEST_F(WeightSelection, ShowsAnEmptyFrameForAnUnknownImage)
{
    chain.links[1].image = 4;
    Run({[this] { PostRowClick(1); }, [this] { PostRowClick(2); },
         [this] {
             EXPECT_TRUE(IsShown(IDC_WEIGHT_PICTURE));
             const Pixels shown = ShownPixels(Window(IDC_WEIGHT_PICTURE));
             EXPECT_EQ(shown.Count(shown.At(0, 0)), shown.width * shown.height);
         }});
}

// Neither of the two texts: the slider stays as the link before left it.
TEST_F(WeightSelection, LeavesTheSliderAloneForAnotherTextOfTheState)
{
    for (const CString& text :
         {CString(L""), CString(L"perhaps"), CString(ResourceText(IDS_WEIGHT_FIXED_YES)).MakeUpper(),
          ResourceText(IDS_WEIGHT_FIXED_YES) + L" "})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        chain.links[2].weightFixed = text;
        Run({[this] { PostRowClick(1); }, [this] { PostRowClick(3); },
             [this] {
                 EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A3");
                 EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"10");
                 EXPECT_EQ(SliderPosition(), 4);
                 EXPECT_TRUE(IsEnabled(IDC_WEIGHT_SLIDER));
             },
             [this] { PostRowClick(2); }, [this] { PostRowClick(3); },
             [this] {
                 EXPECT_EQ(SliderPosition(), 7);
                 EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
             }});
    }
}

TEST_F(WeightSelection, ShowsAWeightOutsideTheRangeAtTheNearestEnd)
{
    chain.records[0].weight = 0;
    chain.records[2].weight = 99;
    Run({[this] { PostRowClick(1); },
         [this] {
             EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"0");
             EXPECT_EQ(SliderPosition(), 1);
         },
         [this] { PostRowClick(3); },
         [this] {
             EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"99");
             EXPECT_EQ(SliderPosition(), 10);
         }});
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{0, 7, 99})) << "looking changes nothing";
}

TEST_F(WeightSelection, IgnoresOtherGridsAndUnknownRows)
{
    Preselect(1);
    Run({[] {},
         [this] {
             dialog->OnSelectionChanged(IDC_WEIGHT_LIST + 1, LinkRow(2).Key());
             dialog->OnSelectionChanged(IDC_WEIGHT_LIST, this);
             dialog->OnSelectionChanged(IDC_WEIGHT_LIST, nullptr);
             ExpectFreeLinkOne();
         }});
}

// The names of links may contain the mark of a mnemonic.
TEST_F(WeightSelection, ShowsAnAmpersandInANameAsItIs)
{
    chain.links[0].name = L"A&B";
    Preselect(1);
    Run({[this] {
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A&B");
        EXPECT_TRUE(::GetWindowLongPtrW(Window(IDC_WEIGHT_NAME), GWL_STYLE) & SS_NOPREFIX);
    }});
}

}  // namespace
