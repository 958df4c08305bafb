#include "weight_dialog_test.h"

namespace
{

class ForgottenLink : public WeightDialogTest
{
protected:
    std::vector<CString> Names() const
    {
        std::vector<CString> names;
        for (const CFListCtrl::CFListRow* row = ChainRow().FirstChild(); row != nullptr; row = row->NextSibling())
            names.push_back(row->Text(0));
        return names;
    }

    /// The chain deletes a link.
    void Forget(std::size_t link) { dialog->ForgetLink(&chain.records[link - 1]); }
};

TEST_F(ForgottenLink, LeavesTheList)
{
    Run({[this] {
        Forget(2);
        EXPECT_EQ(Names(), (std::vector<CString>{L"A1", L"A3"}));
    }});
}

TEST_F(ForgottenLink, IsNotWrittenAnyMore)
{
    Preselect(1);
    Run({[this] {
        Forget(1);
        Slide(9);
        EXPECT_EQ(chain.records[0].weight, 4);
    }});
}

TEST_F(ForgottenLink, HandsTheSelectionToItsNeighbour)
{
    Preselect(1);
    Run({[this] {
        Forget(1);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A2");
        EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"7");
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER)) << "the neighbour's weight is fixed";
    }});
}

TEST_F(ForgottenLink, LeavesTheSelectionOfAnotherLinkAlone)
{
    Preselect(3);
    Run({[this] {
        Forget(1);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A3");
        Slide(5);
        EXPECT_EQ(Weights(), (std::vector<std::int32_t>{4, 7, 5}));
    }});
}

TEST_F(ForgottenLink, HandsTheSelectionToTheChainWhenItWasTheLast)
{
    Preselect(3);
    Run({[this] {
        for (const std::size_t link : {1U, 2U, 3U})
            Forget(link);
        EXPECT_TRUE(Names().empty());
        EXPECT_EQ(Selected(), 0);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"");
        EXPECT_FALSE(IsShown(IDC_WEIGHT_PICTURE));
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
        Slide(9);
    }});
    EXPECT_EQ(Weights(), (std::vector<std::int32_t>{4, 7, 10}));
}

TEST_F(ForgottenLink, MayBeAnotherChains)
{
    CDimLink other{};
    Run({[&] {
        dialog->ForgetLink(&other);
        dialog->ForgetLink(nullptr);
        EXPECT_EQ(Names().size(), 3U);
    }});
}

TEST_F(ForgottenLink, MayComeBeforeAndAfterTheDialogIsOpen)
{
    Forget(1);
    Run({[this] { EXPECT_EQ(Names().size(), 3U); }});
    Forget(1);
    EXPECT_EQ(dialog->m_hWnd, nullptr);
}

// A disabled control keeps no focus: no key would reach the dialog.
TEST_F(ForgottenLink, TakesTheKeyboardFromTheSliderToTheListWhenNoneCanBeMoved)
{
    Preselect(1);
    Run({[this] {
        FocusOn(IDC_WEIGHT_SLIDER);
        Forget(1);
        EXPECT_EQ(Focused(), IDC_WEIGHT_LIST);
    }});
}

}  // namespace
