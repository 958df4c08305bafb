// Editing the distribution of a link and of the closing link.

#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class EditingADistribution : public CalcDialogTest
{
protected:
    EditingADistribution()
    {
        OpenWith(kProbabilistic);
        AddLinks({{Dimension(L"A1", L"10", L"0.1", L"-0.1", 1, 1), &objects[0]},
                  {Dimension(L"A2", L"4", L"0.05", L"0", 0, 3), &objects[1]}});
        AddClosing(Dimension(L"closing", L"6", L"0.15", L"-0.1", 1, 3), &closingObject);
        FocusOnLink(1);
        host.Forget();
    }

    /// What the host does that keeps what the user has entered.
    void WriteLinkBack()
    {
        host.On(kDistributionAccepted, [this] {
            CVariableParams params;
            dialog->GetVariableDlgParams(params);
            dialog->SetVariableFRowData(params);
        });
    }

    /// As the user picks an entry of the law box.
    void ChooseLaw(int position) const
    {
        const HWND box = ChildControl(IDC_VARIABLE_LAW);
        ::SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(position), 0);
        ::SendMessageW(Child(), WM_COMMAND, MAKEWPARAM(IDC_VARIABLE_LAW, CBN_SELCHANGE), reinterpret_cast<LPARAM>(box));
    }
};

TEST_F(EditingADistribution, OfALinkIsFilledBeforeTheHostHearsAndOpensAfterwards)
{
    CVariableParams params;
    bool open = true;
    host.On(kLinkBegins, [&] {
        dialog->GetVariableDlgParams(params);
        open = Child() != nullptr;
    });
    Command(ID_LINK_DISTRIBUTION, {[this] { ClickChild(IDC_VARIABLE_CANCEL); }});
    EXPECT_FALSE(open);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{32, 3}));
    EXPECT_EQ(params.nominal, L"4");
    EXPECT_EQ(params.name, L"A2");
    EXPECT_EQ(params.caption, ResourceText(IDS_NOMINAL_CAPTION));
    EXPECT_EQ(params.upperDev, L"0.05");
    EXPECT_EQ(params.lowerDev, L"0");
    EXPECT_EQ(params.dimKind, 3);
    EXPECT_EQ(params.law, 1);
    EXPECT_EQ(params.mean, 4.025);
}

TEST_F(EditingADistribution, OfTheClosingLinkIsFilledBeforeTheHostHearsAndOpensAfterwards)
{
    CVariableParams params;
    bool open = true;
    host.On(kClosingBegins, [&] {
        dialog->GetVariableDlgParams(params);
        open = Child() != nullptr;
    });
    Command(ID_CLOSING_DISTRIBUTION, {[this] { ClickChild(IDC_VARIABLE_CANCEL); }});
    EXPECT_FALSE(open);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{246, 3}));
    EXPECT_EQ(params.nominal, L"6");
    EXPECT_EQ(params.name, L"X");
    EXPECT_EQ(params.caption, ResourceText(IDS_NOMINAL_CAPTION));
    EXPECT_EQ(params.upperDev, L"0.15");
    EXPECT_EQ(params.lowerDev, L"-0.1");
    EXPECT_EQ(params.dimKind, 3);
    EXPECT_EQ(params.law, 1);
    EXPECT_EQ(params.mean, 6.025);
}

TEST_F(EditingADistribution, ShowsTheLink)
{
    CString name;
    CString nominal;
    CString mean;
    Command(ID_LINK_DISTRIBUTION, {[&] {
                name = ChildText(IDC_VARIABLE_NAME);
                nominal = ChildText(IDC_VARIABLE_NOMINAL);
                mean = ChildText(IDC_VARIABLE_MEAN);
                ClickChild(IDC_VARIABLE_CANCEL);
            }});
    EXPECT_EQ(name, L"A2");
    EXPECT_EQ(nominal, L"4");
    EXPECT_EQ(mean, L"4.025");
}

TEST_F(EditingADistribution, NamesTheClosingLinkX)
{
    CString name;
    Command(ID_CLOSING_DISTRIBUTION, {[&] {
                name = ChildText(IDC_VARIABLE_NAME);
                ClickChild(IDC_VARIABLE_CANCEL);
            }});
    EXPECT_EQ(name, L"X");
}

TEST_F(EditingADistribution, WorksFromTheContextMenusAlike)
{
    Command(ID_CONTEXT_LINK_DISTRIBUTION, {[this] { ClickChild(IDC_VARIABLE_CANCEL); }});
    Command(ID_CONTEXT_CLOSING_DISTRIBUTION, {[this] { ClickChild(IDC_VARIABLE_CANCEL); }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{32, 3, 246, 3}));
}

TEST_F(EditingADistribution, IsWrittenBackByTheHost)
{
    WriteLinkBack();
    const std::vector<CString> texts = Links().Texts(2);
    Command(ID_LINK_DISTRIBUTION, {[this] {
                ChooseLaw(2);
                WriteChild(IDC_VARIABLE_MEAN, L"4.05");
                ClickChild(IDC_VARIABLE_OK);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{32, 35}));
    EXPECT_EQ(Links().Record(2)->law, 3);
    EXPECT_EQ(Links().Record(2)->mean, 4.05);
    EXPECT_EQ(Links().Texts(2), texts) << "no cell changes";
    EXPECT_EQ(Links().Record(1)->law, 1) << "the other link stays";
}

TEST_F(EditingADistribution, IsNotWrittenByItself)
{
    Command(ID_LINK_DISTRIBUTION, {[this] {
                ChooseLaw(1);
                WriteChild(IDC_VARIABLE_MEAN, L"4.05");
                ClickChild(IDC_VARIABLE_OK);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{32, 35}));
    EXPECT_EQ(Links().Record(2)->law, 1);
    EXPECT_EQ(Links().Record(2)->mean, 4.025);
}

TEST_F(EditingADistribution, ShowsTheStoredLawTheNextTime)
{
    WriteLinkBack();
    Command(ID_LINK_DISTRIBUTION, {[this] {
                ChooseLaw(1);
                ClickChild(IDC_VARIABLE_OK);
            }});
    LRESULT position = -1;
    Command(ID_LINK_DISTRIBUTION, {[&] {
                position = ::SendMessageW(ChildControl(IDC_VARIABLE_LAW), CB_GETCURSEL, 0, 0);
                ClickChild(IDC_VARIABLE_CANCEL);
            }});
    EXPECT_EQ(position, 1);
    EXPECT_EQ(Links().Record(2)->law, 2);
}

TEST_F(EditingADistribution, OfTheClosingLinkIsWrittenBackByTheHost)
{
    host.On(kDistributionAccepted, [this] {
        CVariableParams params;
        dialog->GetVariableDlgParams(params);
        dialog->SetVariableCloseFRowData(params);
    });
    Command(ID_CLOSING_DISTRIBUTION, {[this] {
                ChooseLaw(2);
                WriteChild(IDC_VARIABLE_MEAN, L"5.9");
                ClickChild(IDC_VARIABLE_OK);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{246, 35}));
    EXPECT_EQ(Closing().Record(0)->law, 3);
    EXPECT_EQ(Closing().Record(0)->mean, 5.9);
    EXPECT_EQ(Links().Record(2)->law, 1) << "no link changes";
}

TEST_F(EditingADistribution, StoresWhateverTheHostGives)
{
    CVariableParams params;
    params.law = 77;
    params.mean = -1.5;
    params.name = L"ignored";
    params.nominal = L"ignored";
    dialog->SetVariableFRowData(params);
    dialog->SetVariableCloseFRowData(params);
    EXPECT_EQ(Links().Record(2)->law, 77);
    EXPECT_EQ(Links().Record(2)->mean, -1.5);
    EXPECT_EQ(Closing().Record(0)->law, 77);
    EXPECT_EQ(Closing().Record(0)->mean, -1.5);
    EXPECT_EQ(Links().Text(2, 0), L"A2");
    EXPECT_EQ(Links().Text(2, 1), L"4");
}

TEST_F(EditingADistribution, StoresNothingWithTheFocusOnTheChainRow)
{
    FocusOnChain();
    CVariableParams params;
    params.law = 2;
    dialog->SetVariableFRowData(params);
    EXPECT_EQ(Links().Record(1)->law, 1);
    EXPECT_EQ(Links().Record(2)->law, 1);
}

TEST_F(EditingADistribution, StoresNothingWithoutAClosingLink)
{
    Command(ID_CLOSING_DELETE);
    CVariableParams params;
    params.law = 2;
    dialog->SetVariableCloseFRowData(params);
    EXPECT_EQ(Closing().Record(0), nullptr);
}

TEST_F(EditingADistribution, OfTheClosingLinkNeedsARecord)
{
    Command(ID_CLOSING_DELETE);
    ExpectNoRepaintBy([this] { Command(ID_CLOSING_DISTRIBUTION); });
    EXPECT_TRUE(Codes().empty());
    EXPECT_EQ(Child(), nullptr);
}

TEST_F(EditingADistribution, DoesNotRepaintInTheWriteBack)
{
    ExpectNoRepaintBy([this] {
        CVariableParams params;
        params.law = 2;
        dialog->SetVariableFRowData(params);
        dialog->SetVariableCloseFRowData(params);
    });
}

}  // namespace
