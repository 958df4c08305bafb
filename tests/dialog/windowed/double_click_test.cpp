// Double clicks on the rows of the two lists.

#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/planned_actions.h"

namespace
{

class DoubleClick : public CalcDialogTest
{
protected:
    /// The codes of the notifications that a double click leads to; the child dialog that opens is cancelled.
    std::vector<WPARAM> CodesOf(const ListView& list, CPoint point, int cancelButton)
    {
        host.Forget();
        bool opened = false;
        host.On(kEditBegins, [&] {
            opened = true;
            DoWhen([this] { return Child() != nullptr; }, [this, cancelButton] { ClickChild(cancelButton); });
        });
        PostDoubleClick(list.Window(), point);
        PumpUntilIdle();
        return Codes();
    }
    std::vector<WPARAM> CodesOfLink(int link) { return CodesOf(Links(), Links().NamePoint(link + 1), IDC_LINK_CANCEL); }
    std::vector<WPARAM> CodesOfClosingLink()
    {
        return CodesOf(Closing(), Closing().CellCentre(0, 1), IDC_CLOSING_CANCEL);
    }
};

const std::vector<WPARAM> kEdited{kEditBegins, kChildCancelled};
const std::vector<WPARAM> kNothing;

TEST_F(DoubleClick, EditsALinkUnderBothMethods)
{
    OpenWith(kAnalytic);
    FillChain();
    EXPECT_EQ(CodesOfLink(1), kEdited);
    ChooseMethod(kProbabilistic);
    EXPECT_EQ(CodesOfLink(0), kEdited);
}

TEST_F(DoubleClick, EditsTheLinkThatIsClicked)
{
    OpenWith(kAnalytic);
    FillChain();
    FocusOnLink(0);
    CString name;
    host.On(kEditBegins, [&] {
        DoWhen([this] { return Child() != nullptr; },
               [&] {
                   name = ChildText(IDC_LINK_NAME);
                   ClickChild(IDC_LINK_CANCEL);
               });
    });
    PostDoubleClick(Links().Window(), Links().CellCentre(2, 1));
    PumpUntilIdle();
    EXPECT_EQ(name, L"A2");
}

TEST_F(DoubleClick, DoesNothingToALinkWithoutAMethod)
{
    Open();
    FillChain();
    EXPECT_EQ(CodesOfLink(0), kNothing);
}

TEST_F(DoubleClick, DoesNothingOnTheChainRow)
{
    OpenWith(kAnalytic);
    EXPECT_EQ(CodesOf(Links(), Links().NamePoint(0), IDC_LINK_CANCEL), kNothing) << "without links";
    FillChain();
    EXPECT_EQ(CodesOf(Links(), Links().NamePoint(0), IDC_LINK_CANCEL), kNothing) << "with links";
}

TEST_F(DoubleClick, ChoosesTheTextInColumn5)
{
    OpenWith(kAnalytic);
    FillChain();
    EXPECT_EQ(CodesOf(Links(), Links().CellCentre(1, 5), IDC_LINK_CANCEL), kNothing);
    EXPECT_TRUE(Links().Grid().HasEditor());
}

TEST_F(DoubleClick, EditsTheClosingLinkUnderBothMethods)
{
    OpenWith(kAnalytic);
    FillChain();
    EXPECT_EQ(CodesOfClosingLink(), kEdited);
    ChooseMethod(kProbabilistic);
    EXPECT_EQ(CodesOfClosingLink(), kEdited);
}

TEST_F(DoubleClick, EditsTheClosingLinkOfAnEmptyChain)
{
    OpenWith(kAnalytic);
    AddClosing(Dimension(L"", L"6", L"0.1", L"0"), &closingObject);
    EXPECT_EQ(CodesOfClosingLink(), kEdited);
}

TEST_F(DoubleClick, DoesNothingToTheClosingLinkWithoutAMethod)
{
    Open();
    FillChain();
    EXPECT_EQ(CodesOfClosingLink(), kNothing);
}

TEST_F(DoubleClick, DoesNothingWithoutAClosingLink)
{
    OpenWith(kAnalytic);
    EXPECT_EQ(CodesOfClosingLink(), kNothing);
    AddClosing(Dimension(L"", L"6", L"0.1", L"0"), nullptr);
    EXPECT_EQ(CodesOfClosingLink(), kNothing) << "without a host object";
}

// The grid is inside its own message then, and goes with the dialog.
TEST_F(DoubleClick, OnALinkMayDeleteTheDialog)
{
    OpenWith(kAnalytic);
    FillChain();
    host.On(kEditBegins, [this] { dialog.reset(); });
    PostDoubleClick(Links().Window(), Links().NamePoint(1));
    PumpUntilIdle();
    EXPECT_EQ(dialog, nullptr);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kEditBegins}));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(DoubleClick, OnTheClosingRowMayDeleteTheDialog)
{
    OpenWith(kAnalytic);
    FillChain();
    host.On(kEditBegins, [this] { dialog.reset(); });
    PostDoubleClick(Closing().Window(), Closing().CellCentre(0, 1));
    PumpUntilIdle();
    EXPECT_EQ(dialog, nullptr);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kEditBegins}));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

}  // namespace
