// Editing the tolerance of a link and of the closing link: what the child dialog gets, and what the host writes back.

#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

// What is the same for both.
class EditingATolerance : public EachChild
{
protected:
    static bool IsClosing() { return GetParam().ownControl == IDC_CLOSING_FIELD; }
    static ChildKind NewOne() { return IsClosing() ? kNewClosingChild : kNewLinkChild; }

    CString NominalOfTheRecord() const
    {
        CDimParams params;
        IsClosing() ? dialog->GetCloseDimDlgParams(params) : dialog->GetDimDlgParams(params);
        return params.nominal;
    }
};

INSTANTIATE_TEST_SUITE_P(Of, EditingATolerance, testing::Values(kLinkChild, kClosingChild),
                         testing::PrintToStringParamName());

TEST_P(EditingATolerance, TellsTheHostBeforeItsDialogOpens)
{
    bool open = true;
    host.On(kEditBegins, [&] { open = Child() != nullptr; });
    Command(GetParam().command, {[this] { ClickChild(GetParam().cancel); }});
    EXPECT_FALSE(open);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{30, 3}));
}

TEST_P(EditingATolerance, TellsTheHostWhileTheLastDialogsRecordCanBeRead)
{
    Command(NewOne().command, {[this] {
                const CDimParams picked = Dimension(L"B", L"25", L"0.2", L"-0.1");
                IsClosing() ? LoadClosing(picked) : Load(picked);
                dialog->EndModal();
            }});
    CString inside;
    CString afterwards;
    host.On(kEditBegins, [&] { inside = NominalOfTheRecord(); });
    Command(GetParam().command, {[&] {
                afterwards = NominalOfTheRecord();
                ClickChild(GetParam().cancel);
            }});
    EXPECT_EQ(inside, L"25") << "the next one has not taken its place yet";
    EXPECT_EQ(afterwards, IsClosing() ? L"6" : L"10") << "the row's";
}

using EditingWithoutAMethod = CalcDialogTest;

// The context menus offer it then, too.
TEST_F(EditingWithoutAMethod, OpensTheToleranceDialogs)
{
    Open();
    FillChain();
    FocusOnLink(0);
    for (const auto& [command, child] :
         {std::pair(ID_CONTEXT_LINK_EDIT, kLinkChild), std::pair(ID_CONTEXT_CLOSING_EDIT, kClosingChild)})
    {
        bool rightKind = false;
        host.Forget();
        Command(command, {[&, &kind = child] {
                    rightKind = ChildControl(kind.ownControl) != nullptr;
                    ClickChild(kind.cancel);
                }});
        EXPECT_TRUE(rightKind) << child.name;
        EXPECT_EQ(Codes(), (std::vector<WPARAM>{30, 3})) << child.name;
    }
}

class EditingALink : public CalcDialogTest
{
protected:
    EditingALink()
    {
        OpenWith(kAnalytic);
        CDimParams second = Dimension(L"A2", L"4", L"0.05", L"0", 0, 3);
        second.tolField = L"zz";
        second.weightFixed = 1;
        AddLinks({{Dimension(L"A1", L"10", L"0.1", L"-0.1"), &objects[0]}, {second, &objects[1]}});
        FocusOnLink(1);
        host.Forget();
    }

    void ExpectLinkUntouched() const
    {
        EXPECT_EQ(Links().Texts(2),
                  (std::vector<CString>{L"A2", L"4", L"zz", L"0.05", L"0", ResourceText(IDS_WEIGHT_FIXED_YES)}));
        EXPECT_EQ(Links().Record(2)->mean, 4.025);
        EXPECT_EQ(Links().Record(2)->increasing, 0);
    }
};

TEST_F(EditingALink, FillsTheRecordFromTheRow)
{
    CDimParams params;
    Command(ID_LINK_EDIT, {[&] {
                dialog->GetDimDlgParams(params);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(params.name, L"A2");
    EXPECT_EQ(params.nominal, L"4");
    EXPECT_EQ(params.tolField, L"zz");
    EXPECT_EQ(params.upperDev, L"0.05");
    EXPECT_EQ(params.lowerDev, L"0");
    EXPECT_EQ(params.caption, ResourceText(IDS_NOMINAL_CAPTION));
    EXPECT_EQ(params.weightFixed, 1);
    EXPECT_EQ(params.increasing, 0);
    EXPECT_EQ(params.dimKind, 3);
}

TEST_F(EditingALink, ShowsTheRow)
{
    CString name;
    CString nominal;
    CString caption;
    CString field;
    CString upper;
    CString lower;
    bool fixed = false;
    LRESULT direction = -1;
    Command(ID_LINK_EDIT, {[&] {
                name = ChildText(IDC_LINK_NAME);
                nominal = ChildText(IDC_LINK_NOMINAL);
                caption = ChildText(IDC_LINK_CAPTION);
                field = ChildText(IDC_LINK_FIELD);
                upper = ChildText(IDC_LINK_UPPER_DEV);
                lower = ChildText(IDC_LINK_LOWER_DEV);
                fixed = IsChildChecked(IDC_LINK_WEIGHT_FIXED);
                direction = ::SendMessageW(ChildControl(IDC_LINK_DIRECTION), CB_GETCURSEL, 0, 0);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(name, L"A2");
    EXPECT_EQ(nominal, L"4");
    EXPECT_EQ(caption, ResourceText(IDS_NOMINAL_CAPTION));
    EXPECT_EQ(field, L"zz");
    EXPECT_EQ(upper, L"0.05");
    EXPECT_EQ(lower, L"0");
    EXPECT_TRUE(fixed);
    EXPECT_EQ(direction, 1) << "decreasing";
}

TEST_F(EditingALink, ShowsWhatTheHostWritesInsideTheNotification)
{
    host.On(kEditBegins, [this] {
        CDimParams params = Dimension(L"fresh", L"4", L"0.3", L"0", 1);
        dialog->SetCurrentFRowData(params);
    });
    CString name;
    CString upper;
    LRESULT direction = -1;
    CDimParams record;
    Command(ID_LINK_EDIT, {[&] {
                name = ChildText(IDC_LINK_NAME);
                upper = ChildText(IDC_LINK_UPPER_DEV);
                direction = ::SendMessageW(ChildControl(IDC_LINK_DIRECTION), CB_GETCURSEL, 0, 0);
                dialog->GetDimDlgParams(record);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(name, L"fresh");
    EXPECT_EQ(upper, L"0.3");
    EXPECT_EQ(direction, 0) << "increasing";
    EXPECT_EQ(record.increasing, 1);
}

TEST_F(EditingALink, FillsKind0ForALinkWithoutAnImage)
{
    AddLink(Dimension(L"K7", L"1", L"0.1", L"0", 1, 7), &objects[2]);
    FocusOnLink(2);
    CDimParams params;
    params.dimKind = 9;
    Command(ID_LINK_EDIT, {[&] {
                dialog->GetDimDlgParams(params);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(params.dimKind, 0);
}

TEST_F(EditingALink, TakesTheHostsValuesInsteadWhenItLoadsThem)
{
    CString nominal;
    Command(ID_LINK_EDIT, {[&] {
                Load(Dimension(L"B", L"99", L"1", L"0"));
                nominal = ChildText(IDC_LINK_NOMINAL);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(nominal, L"99");
    ExpectLinkUntouched();
}

TEST_F(EditingALink, NeverWritesTheRowByItself)
{
    Command(ID_LINK_EDIT, {[this] {
                WriteChild(IDC_LINK_NAME, L"changed");
                WriteChild(IDC_LINK_UPPER_DEV, L"0.5");
                ClickChild(IDC_LINK_OK);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{30, 1}));
    ExpectLinkUntouched();
}

TEST_F(EditingALink, IsWrittenBackByTheHost)
{
    host.On(kLinkAccepted, [this] {
        CDimParams params;
        dialog->GetDimDlgParams(params);
        dialog->SetCurrentFRowData(params);
    });
    Command(ID_LINK_EDIT, {[this] {
                WriteChild(IDC_LINK_NAME, L"B2");
                WriteChild(IDC_LINK_UPPER_DEV, L"0.5");
                WriteChild(IDC_LINK_LOWER_DEV, L"-0.5");
                ClickChild(IDC_LINK_WEIGHT_FIXED);
                ::SendMessageW(ChildControl(IDC_LINK_DIRECTION), CB_SETCURSEL, 0, 0);
                ClickChild(IDC_LINK_OK);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{30, 1}));
    EXPECT_EQ(Links().Texts(2),
              (std::vector<CString>{L"B2", L"4", L"zz", L"0.5", L"-0.5", ResourceText(IDS_WEIGHT_FIXED_NO)}));
    EXPECT_EQ(Links().Record(2)->mean, 4.0);
    EXPECT_EQ(Links().Record(2)->increasing, 1);
    EXPECT_EQ(Links().Record(2)->hostObject, &objects[1]);
    EXPECT_EQ(Links().Texts(1)[0], L"A1") << "the other link stays";
}

TEST_F(EditingALink, IsWrittenBackInsideApplyToo)
{
    host.On(kLinkApplied, [this] {
        CDimParams params;
        dialog->GetDimDlgParams(params);
        dialog->SetCurrentFRowData(params);
    });
    Command(ID_LINK_EDIT, {[this] {
                Load(Dimension(L"B2", L"8", L"0.5", L"-0.5"));
                ClickChild(IDC_LINK_APPLY);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{30, 107, 3}));
    EXPECT_EQ(Links().Text(2, 0), L"B2");
}

TEST_F(EditingALink, LeavesTheNominalColumnButMovesTheMean)
{
    CDimParams params = Dimension(L"A2", L"50", L"1", L"0");
    dialog->SetCurrentFRowData(params);
    EXPECT_EQ(Links().Text(2, 1), L"4");
    EXPECT_EQ(Links().Record(2)->mean, 50.5);
}

TEST_F(EditingALink, LeavesKindLawAndWeight)
{
    CVariableParams distribution;
    distribution.law = 3;
    distribution.mean = 4.01;
    dialog->SetVariableFRowData(distribution);
    CDimParams params = Dimension(L"A2", L"4", L"1", L"0", 1, 1);
    dialog->SetCurrentFRowData(params);
    EXPECT_EQ(Links().Row(2).Image(0), 11);
    EXPECT_EQ(Links().Record(2)->law, 3);
    EXPECT_EQ(Links().Record(2)->weight, 1);
    EXPECT_EQ(Links().Record(2)->mean, 4.5) << "overwritten again from the tolerance";
}

TEST_F(EditingALink, TakesEveryValueButZeroForAFixedWeight)
{
    CDimParams params = Dimension(L"A2", L"4", L"1", L"0");
    params.weightFixed = -7;
    dialog->SetCurrentFRowData(params);
    EXPECT_EQ(Links().Text(2, 5), ResourceText(IDS_WEIGHT_FIXED_YES));
    params.weightFixed = 0;
    dialog->SetCurrentFRowData(params);
    EXPECT_EQ(Links().Text(2, 5), ResourceText(IDS_WEIGHT_FIXED_NO));
}

TEST_F(EditingALink, DoesNotRepaintInTheWriteBack)
{
    ExpectNoRepaintBy([this] {
        CDimParams params = Dimension(L"A2", L"4", L"1", L"0");
        dialog->SetCurrentFRowData(params);
    });
}

TEST_F(EditingALink, WritesNothingBackWithTheFocusOnTheChainRow)
{
    FocusOnChain();
    CDimParams params = Dimension(L"changed", L"1", L"1", L"0");
    dialog->SetCurrentFRowData(params);
    EXPECT_EQ(Links().Text(0, 0), L"Shaft");
    ExpectLinkUntouched();
    EXPECT_EQ(Links().Text(1, 0), L"A1");
}

// The focus row moves by the keyboard as well.
TEST_F(EditingALink, FollowsTheFocusRowByKeyboard)
{
    PostKey(Links().Window(), VK_UP);
    PumpUntilIdle();
    CString name;
    Command(ID_LINK_EDIT, {[&] {
                name = ChildText(IDC_LINK_NAME);
                ClickChild(IDC_LINK_CANCEL);
            }});
    EXPECT_EQ(name, L"A1");
}

class EditingTheClosingLink : public CalcDialogTest
{
protected:
    EditingTheClosingLink()
    {
        OpenWith(kAnalytic);
        CDimParams closing = Dimension(L"closing", L"6", L"0.15", L"-0.15", 1, 3);
        closing.tolField = L"zz";
        closing.weightFixed = 1;
        AddClosing(closing, &closingObject);
    }
};

TEST_F(EditingTheClosingLink, FillsTheRecordFromTheRow)
{
    CDimParams params;
    params.weightFixed = 9;
    params.increasing = 9;
    Command(ID_CLOSING_EDIT, {[&] {
                dialog->GetCloseDimDlgParams(params);
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    EXPECT_EQ(params.name, L"");
    EXPECT_EQ(params.nominal, L"6");
    EXPECT_EQ(params.tolField, L"zz");
    EXPECT_EQ(params.upperDev, L"0.15");
    EXPECT_EQ(params.lowerDev, L"-0.15");
    EXPECT_EQ(params.caption, ResourceText(IDS_NOMINAL_CAPTION));
    EXPECT_EQ(params.weightFixed, 0);
    EXPECT_EQ(params.increasing, 0);
    EXPECT_EQ(params.dimKind, 3);
}

TEST_F(EditingTheClosingLink, ShowsTheRow)
{
    CString nominal;
    CString caption;
    CString field;
    CString upper;
    CString lower;
    Command(ID_CLOSING_EDIT, {[&] {
                nominal = ChildText(IDC_CLOSING_NOMINAL);
                caption = ChildText(IDC_CLOSING_CAPTION);
                field = ChildText(IDC_CLOSING_FIELD);
                upper = ChildText(IDC_CLOSING_UPPER_DEV);
                lower = ChildText(IDC_CLOSING_LOWER_DEV);
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    EXPECT_EQ(nominal, L"6");
    EXPECT_EQ(caption, ResourceText(IDS_NOMINAL_CAPTION));
    EXPECT_EQ(field, L"zz");
    EXPECT_EQ(upper, L"0.15");
    EXPECT_EQ(lower, L"-0.15");
}

TEST_F(EditingTheClosingLink, NeverWritesTheRowByItself)
{
    Command(ID_CLOSING_EDIT, {[this] {
                WriteChild(IDC_CLOSING_UPPER_DEV, L"0.5");
                ClickChild(IDC_CLOSING_OK);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{30, 93}));
    EXPECT_EQ(Closing().Text(0, 3), L"0.15");
}

TEST_F(EditingTheClosingLink, IsWrittenBackByTheHostWithItsNominal)
{
    const CDimLink* const record = Closing().Record(0);
    host.On(kClosingAccepted, [this] {
        CDimParams params;
        dialog->GetCloseDimDlgParams(params);
        params.nominal = L"8";
        params.dimKind = 2;
        dialog->SetCloseFRowData(params);
    });
    Command(ID_CLOSING_EDIT, {[this] {
                WriteChild(IDC_CLOSING_UPPER_DEV, L"0.5");
                WriteChild(IDC_CLOSING_LOWER_DEV, L"0");
                ClickChild(IDC_CLOSING_OK);
            }});
    EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"8", L"zz", L"0.5", L"0"}));
    EXPECT_EQ(Closing().Row(0).Item(0).value, 2);
    EXPECT_EQ(Closing().Record(0), record) << "changed in place";
    EXPECT_EQ(record->mean, 8.25);
    EXPECT_EQ(record->hostObject, &closingObject);
    EXPECT_EQ(record->law, 1);
}

TEST_F(EditingTheClosingLink, DoesNotRepaintInTheWriteBack)
{
    ExpectNoRepaintBy([this] {
        CDimParams params = Dimension(L"", L"4", L"1", L"0");
        dialog->SetCloseFRowData(params);
    });
}

TEST_F(EditingTheClosingLink, OpensEmptyAfterItWasDeleted)
{
    Command(ID_CLOSING_DELETE);
    CDimParams params;
    Command(ID_CLOSING_EDIT, {[&] {
                dialog->GetCloseDimDlgParams(params);
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    EXPECT_EQ(params.nominal, L"");
    EXPECT_EQ(Closing().Record(0), nullptr);
}

// A host's error that does no harm: the row never shows a closing link that isn't there.
TEST_F(EditingTheClosingLink, WritesNothingBackWhenThereIsNone)
{
    Command(ID_CLOSING_DELETE);
    CDimParams params = Dimension(L"", L"4", L"1", L"0");
    dialog->SetCloseFRowData(params);
    EXPECT_EQ(Closing().Texts(0), (std::vector<CString>{L"      X", L"", L"", L"", L""}));
    EXPECT_EQ(Closing().Row(0).Item(0).value, 3) << "the kind of the deleted one";
    EXPECT_EQ(Closing().Record(0), nullptr);
    EXPECT_EQ(dialog->GetCloseObject(), nullptr);
}

}  // namespace
