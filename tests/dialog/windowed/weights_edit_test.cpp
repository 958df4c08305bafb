// The two commands that open the weight dialog.

#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class EditingWeights : public CalcDialogTest
{
protected:
    EditingWeights()
    {
        OpenWith(kAnalytic);
        CDimParams fixed = Dimension(L"C", L"3", L"0.1", L"0", 1, 3);
        fixed.weightFixed = 1;
        AddLinks({{Dimension(L"A", L"1", L"0.1", L"0"), &objects[0]},
                  {Dimension(L"B", L"2", L"0.1", L"0", 0, 2), &objects[1]},
                  {fixed, &objects[2]}});
        FocusOnLink(1);
        host.Forget();
    }

    ListView WeightList() const { return ListView(ChildControl(IDC_WEIGHT_LIST)); }

    /// As the user presses a key in the slider.
    void PressInSlider(UINT key) const
    {
        ::SendMessageW(ChildControl(IDC_WEIGHT_SLIDER), WM_KEYDOWN, key, 1);
        ::SendMessageW(ChildControl(IDC_WEIGHT_SLIDER), WM_KEYUP, key, 0xC0000001);
    }
};

TEST_F(EditingWeights, OfOneLinkSelectsThatLink)
{
    CString name;
    int focus = -1;
    Command(ID_CONTEXT_LINK_WEIGHT, {[&] {
                name = ChildText(IDC_WEIGHT_NAME);
                focus = WeightList().FocusRow();
                ClickChild(IDOK);
            }});
    EXPECT_EQ(name, L"B");
    EXPECT_EQ(focus, 2);
    EXPECT_TRUE(Codes().empty()) << "the host hears nothing";
}

TEST_F(EditingWeights, OfTheChainSelectsNoLink)
{
    CString name = L"?";
    int focus = -1;
    Command(ID_CHAIN_WEIGHTS, {[&] {
                name = ChildText(IDC_WEIGHT_NAME);
                focus = WeightList().FocusRow();
                ClickChild(IDOK);
            }});
    EXPECT_EQ(name, L"");
    EXPECT_EQ(focus, 0);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(EditingWeights, OfALinkWithoutAHostObjectSelectsNoLink)
{
    AddLink(Dimension(L"D", L"4", L"", L""), nullptr);
    FocusOnLink(3);
    int focus = -1;
    Command(ID_CONTEXT_LINK_WEIGHT, {[&] {
                focus = WeightList().FocusRow();
                ClickChild(IDOK);
            }});
    EXPECT_EQ(focus, 0);
}

TEST_F(EditingWeights, ListsTheChain)
{
    std::vector<CString> chain;
    std::vector<CString> first;
    std::vector<CString> last;
    std::vector<int> images;
    Command(ID_CHAIN_WEIGHTS, {[&] {
                const ListView list = WeightList();
                chain = list.Texts(0);
                first = list.Texts(1);
                last = list.Texts(3);
                for (int row = 0; row < list.Rows(); ++row)
                    images.push_back(list.Row(row).Image(0));
                ClickChild(IDCANCEL);
            }});
    EXPECT_EQ(chain[0], L"Shaft");
    EXPECT_EQ(first, (std::vector<CString>{L"A", L"1", L"", ResourceText(IDS_WEIGHT_FIXED_NO), L"1"}));
    EXPECT_EQ(last, (std::vector<CString>{L"C", L"3", L"", ResourceText(IDS_WEIGHT_FIXED_YES), L"1"}));
    EXPECT_EQ(images, (std::vector<int>{2, 9, 10, 11}));
}

TEST_F(EditingWeights, ListsACollapsedChainAllTheSame)
{
    PostClick(Links().Window(), Links().ExpandPoint(0));
    PumpUntilIdle();
    ASSERT_EQ(Links().Rows(), 1);
    int rows = 0;
    Command(ID_CHAIN_WEIGHTS, {[&] {
                rows = WeightList().Rows();
                ClickChild(IDCANCEL);
            }});
    EXPECT_EQ(rows, 4);
}

TEST_F(EditingWeights, ListsAChainWithoutLinks)
{
    Command(ID_LINK_DELETE_ALL);
    int rows = 0;
    Command(ID_CHAIN_WEIGHTS, {[&] {
                rows = WeightList().Rows();
                ClickChild(IDCANCEL);
            }});
    EXPECT_EQ(rows, 1);
}

TEST_F(EditingWeights, WritesTheLinksRecordWhateverEndsTheDialog)
{
    Command(ID_CONTEXT_LINK_WEIGHT, {[this] {
                PressInSlider(VK_RIGHT);
                PressInSlider(VK_RIGHT);
                ClickChild(IDCANCEL);
            }});
    EXPECT_EQ(Links().Record(2)->weight, 3);
    Command(ID_CONTEXT_LINK_WEIGHT, {[this] {
                PressInSlider(VK_END);
                dialog->EndModal();
            }});
    EXPECT_EQ(Links().Record(2)->weight, 10);
    EXPECT_EQ(Links().Record(1)->weight, 1);
    EXPECT_EQ(Links().Record(3)->weight, 1);
}

// The dialog ends once the message being handled is done with; until then the slider counts no more.
TEST_F(EditingWeights, WritesNothingAfterTheHostHasEndedTheDialog)
{
    Command(ID_CONTEXT_LINK_WEIGHT, {[this] {
                PressInSlider(VK_RIGHT);
                dialog->EndModal();
                PressInSlider(VK_END);
            }});
    EXPECT_EQ(Links().Record(2)->weight, 2);
}

TEST_F(EditingWeights, ShowsTheStoredWeightTheNextTime)
{
    Command(ID_CONTEXT_LINK_WEIGHT, {[this] {
                PressInSlider(VK_END);
                ClickChild(IDOK);
            }});
    CString value;
    Command(ID_CONTEXT_LINK_WEIGHT, {[&] {
                value = ChildText(IDC_WEIGHT_VALUE);
                ClickChild(IDOK);
            }});
    EXPECT_EQ(value, L"10");
}

TEST_F(EditingWeights, KeepsTheSliderOffForAFixedWeight)
{
    FocusOnLink(2);
    bool enabled = true;
    Command(ID_CONTEXT_LINK_WEIGHT, {[&] {
                enabled = ::IsWindowEnabled(ChildControl(IDC_WEIGHT_SLIDER)) != FALSE;
                ClickChild(IDOK);
            }});
    EXPECT_FALSE(enabled);
}

TEST_F(EditingWeights, KeepTheWeightWhenTheLinkIsEdited)
{
    Command(ID_CONTEXT_LINK_WEIGHT, {[this] {
                PressInSlider(VK_END);
                ClickChild(IDOK);
            }});
    CDimParams params = Dimension(L"B", L"2", L"0.3", L"0");
    dialog->SetCurrentFRowData(params);
    EXPECT_EQ(Links().Record(2)->weight, 10);
}

// A link that goes while the dialog is open can't be weighed any more.
TEST_F(EditingWeights, ForgetsALinkThatIsDeletedMeanwhile)
{
    int rows = 0;
    CString name;
    Command(ID_CONTEXT_LINK_WEIGHT, {[&] {
                Command(ID_LINK_DELETE);
                rows = WeightList().Rows();
                name = ChildText(IDC_WEIGHT_NAME);
                PressInSlider(VK_RIGHT);
                ClickChild(IDOK);
            }});
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(name, L"C") << "the next one has the focus now";
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[2]}));
    EXPECT_EQ(Links().Record(1)->weight, 1);
}

}  // namespace
