// Column 5: the choice between the two texts in the list.

#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class WeightFixedChoice : public CalcDialogTest
{
protected:
    WeightFixedChoice()
    {
        OpenWith(kAnalytic);
        CDimParams fixed = Dimension(L"B", L"2", L"0.1", L"0");
        fixed.weightFixed = 1;
        AddLinks({{Dimension(L"A", L"1", L"0.1", L"0"), &objects[0]}, {fixed, &objects[1]}});
    }

    /// The entries that the dialog gives for a cell with that text, and the one that it selects.
    struct Answer
    {
        std::vector<CString> texts;
        std::vector<std::int32_t> values;
        std::int32_t selected;
    };
    Answer Ask(const wchar_t* text, std::int32_t selectedByGrid = -1) const
    {
        InPlaceComboItems items;
        NMFLISTCOMBO request;
        request.hdr = {Links().Window(), IDC_CHAIN_LIST, kGridListContents};
        request.text = text;
        request.items = &items;
        request.selected = selectedByGrid;
        EXPECT_EQ(::SendMessageW(Window(), WM_NOTIFY, IDC_CHAIN_LIST, reinterpret_cast<LPARAM>(&request)), 0);
        Answer answer{.texts = {}, .values = {}, .selected = request.selected};
        for (int i = 0; i < items.GetSize(); ++i)
        {
            answer.texts.push_back(items[i].text);
            answer.values.push_back(items[i].value);
        }
        return answer;
    }

    /// Drops the open editor's list down, moves in it and takes the entry.
    void Choose(UINT key) const
    {
        for (const UINT pressed : {static_cast<UINT>(VK_RETURN), key, static_cast<UINT>(VK_RETURN)})
        {
            PostKey(::GetFocus(), pressed);
            PumpUntilIdle();
        }
    }

    /// The list that is open on a cell.
    HWND OpenList() const { return ::FindWindowExW(Links().Window(), nullptr, L"ComboBox", nullptr); }
};

TEST_F(WeightFixedChoice, OffersBothTextsTheFixedOneFirst)
{
    const Answer answer = Ask(L"anything");
    EXPECT_EQ(answer.texts,
              (std::vector<CString>{ResourceText(IDS_WEIGHT_FIXED_YES), ResourceText(IDS_WEIGHT_FIXED_NO)}));
    EXPECT_EQ(answer.values, (std::vector<std::int32_t>{0, 0}));
}

TEST_F(WeightFixedChoice, SelectsTheCellsText)
{
    EXPECT_EQ(Ask(ResourceText(IDS_WEIGHT_FIXED_YES)).selected, 0);
    EXPECT_EQ(Ask(ResourceText(IDS_WEIGHT_FIXED_NO)).selected, 1);
    EXPECT_EQ(Ask(ResourceText(IDS_WEIGHT_FIXED_NO), 0).selected, 1) << "whatever the grid had set";
}

TEST_F(WeightFixedChoice, LeavesTheSelectionToTheGridWhenNoTextIsTheCells)
{
    EXPECT_EQ(Ask(L"maybe").selected, -1);
    EXPECT_EQ(Ask(L"maybe", 7).selected, 7);
    EXPECT_EQ(Ask(L"").selected, -1);
}

TEST_F(WeightFixedChoice, ComparesExactly)
{
    CString upperCase = ResourceText(IDS_WEIGHT_FIXED_YES);
    upperCase.MakeUpper();
    ASSERT_NE(upperCase, ResourceText(IDS_WEIGHT_FIXED_YES));
    EXPECT_EQ(Ask(upperCase).selected, -1);
    EXPECT_EQ(Ask(ResourceText(IDS_WEIGHT_FIXED_YES) + L" ").selected, -1);
}

TEST_F(WeightFixedChoice, OpensByAClickWithTheCellsTextSelected)
{
    ClickCell(Links(), 1, 5);
    const HWND list = OpenList();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(::SendMessageW(list, CB_GETCOUNT, 0, 0), 2);
    EXPECT_EQ(::SendMessageW(list, CB_GETCURSEL, 0, 0), 1);
    ClickCell(Links(), 2, 5);
    ASSERT_NE(OpenList(), nullptr);
    EXPECT_EQ(::SendMessageW(OpenList(), CB_GETCURSEL, 0, 0), 0);
}

TEST_F(WeightFixedChoice, ChangesTheTextAlone)
{
    const CDimLink before = *Links().Record(1);
    ClickCell(Links(), 1, 5);
    ASSERT_NE(OpenList(), nullptr);
    Choose(VK_UP);
    EXPECT_EQ(Links().Text(1, 5), ResourceText(IDS_WEIGHT_FIXED_YES));
    const CDimLink& after = *Links().Record(1);
    EXPECT_EQ(after.increasing, before.increasing);
    EXPECT_EQ(after.weight, before.weight);
    EXPECT_EQ(after.law, before.law);
    EXPECT_EQ(after.mean, before.mean);
    EXPECT_EQ(Links().Text(1, 0), L"A");
    EXPECT_TRUE(Codes().empty());
}

TEST_F(WeightFixedChoice, LeavesEscToTheOpenList)
{
    ClickCell(Links(), 1, 5);
    ASSERT_NE(OpenList(), nullptr);
    ::SendMessageW(OpenList(), CB_SHOWDROPDOWN, FALSE, 0);
    PostKey(OpenList(), VK_ESCAPE);
    PumpUntilIdle();
    EXPECT_TRUE(Codes().empty()) << "the dialog was not cancelled";
    EXPECT_EQ(Objects().size(), 2U);
    EXPECT_EQ(Links().Text(1, 5), ResourceText(IDS_WEIGHT_FIXED_NO));
}

TEST_F(WeightFixedChoice, IsNotOfferedOnTheChainRow)
{
    ClickCell(Links(), 0, 5);
    EXPECT_EQ(OpenList(), nullptr);
    EXPECT_EQ(Links().Text(0, 5), L"");
}

// What the tolerance dialog then shows, and what it stores.
TEST_F(WeightFixedChoice, DecidesWhatTheToleranceDialogShows)
{
    ClickCell(Links(), 2, 5);
    ASSERT_NE(OpenList(), nullptr);
    Choose(VK_DOWN);
    ASSERT_EQ(Links().Text(2, 5), ResourceText(IDS_WEIGHT_FIXED_NO));
    bool isChecked = true;
    CDimParams params;
    params.weightFixed = 1;
    Command(ID_LINK_EDIT, {[&] {
                isChecked = IsChildChecked(IDC_LINK_WEIGHT_FIXED);
                dialog->GetDimDlgParams(params);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_FALSE(isChecked);
    EXPECT_EQ(params.weightFixed, 0);
}

// A host's library may show anything in the cell: only the very text stands for a fixed weight.
TEST_F(WeightFixedChoice, StandsForAFixedWeightByTheExactTextAlone)
{
    const CString fixed = ResourceText(IDS_WEIGHT_FIXED_YES);
    CString upperCase = fixed;
    upperCase.MakeUpper();
    ASSERT_NE(upperCase, fixed);
    FocusOnLink(1);
    for (const CString& text : {upperCase, fixed + L" ", CString(), fixed})
    {
        Links().Row(2).Item(5).text = text;
        bool isChecked = false;
        CDimParams params;
        params.weightFixed = 9;
        Command(ID_LINK_EDIT, {[&] {
                    isChecked = IsChildChecked(IDC_LINK_WEIGHT_FIXED);
                    dialog->GetDimDlgParams(params);
                    ClickChild(IDC_LINK_CANCEL);
                }});
        EXPECT_EQ(isChecked, text == fixed) << testing::PrintToString(text);
        EXPECT_EQ(params.weightFixed, text == fixed ? 1 : 0) << testing::PrintToString(text);
    }
}

}  // namespace
