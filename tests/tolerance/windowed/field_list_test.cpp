#include "tolerance_dialog_test.h"

namespace
{

/// As long as one is alive, a field box that is disabled takes its second entry and tells it, as some systems do when
/// the list is open then.
class EntryTakenWhenDisabled
{
public:
    explicit EntryTakenWhenDisabled(HWND box)
        : m_box(box),
          m_former(reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(box, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Proc))))
    {
        s_current = this;
    }
    ~EntryTakenWhenDisabled()
    {
        ::SetWindowLongPtrW(m_box, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_former));
        s_current = nullptr;
    }
    EntryTakenWhenDisabled(const EntryTakenWhenDisabled&) = delete;
    EntryTakenWhenDisabled& operator=(const EntryTakenWhenDisabled&) = delete;

    bool HasTaken() const { return m_hasTaken; }

private:
    static LRESULT CALLBACK Proc(HWND box, UINT message, WPARAM wParam, LPARAM lParam)
    {
        EntryTakenWhenDisabled& current = *s_current;
        if (message == WM_ENABLE && wParam == FALSE)
        {
            current.m_hasTaken = true;
            ::SendMessageW(box, CB_SETCURSEL, 1, 0);
            for (const int code : {CBN_EDITCHANGE, CBN_SELCHANGE, CBN_CLOSEUP})
                ::SendMessageW(::GetParent(box), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(box), code),
                               reinterpret_cast<LPARAM>(box));
        }
        return ::CallWindowProcW(current.m_former, box, message, wParam, lParam);
    }

    static inline EntryTakenWhenDisabled* s_current = nullptr;
    HWND m_box;
    WNDPROC m_former;
    bool m_hasTaken = false;
};

/// The list of the field box, opened by the user, while the program loads or resets. Entries: H6, H7, k6, k7.
template <class Controls>
class FieldList : public ToleranceDialogTest<Controls>
{
protected:
    /// Posts a click on the arrow, which opens the list.
    void PostArrowClick() const
    {
        const HWND inner = this->FieldCombo();
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(inner, &info);
        PostClick(inner,
                  {(info.rcButton.left + info.rcButton.right) / 2, (info.rcButton.top + info.rcButton.bottom) / 2});
    }

    /// Leaves the open list without a pick.
    void PostEscape() const
    {
        ASSERT_TRUE(IsListOpen());
        PostKey(::GetFocus(), VK_ESCAPE);
    }

    void OpenListAndGoDown(int steps) const
    {
        ::SetFocus(this->FieldEdit());
        this->DropDown();
        for (int i = 0; i < steps; ++i)
            PostKey(::GetFocus(), VK_DOWN);
    }

    bool IsListOpen() const { return ::SendMessageW(this->Window(Controls::kField), CB_GETDROPPEDSTATE, 0, 0) != 0; }

    /// Nothing came of a list that was opened and left.
    void ExpectFreeDimension() const
    {
        EXPECT_FALSE(IsListOpen());
        EXPECT_EQ(this->Text(Controls::kField), L"zz");
        EXPECT_EQ(this->Record(), FreeDimension());
        EXPECT_TRUE(this->Calls().empty());
        EXPECT_EQ(this->Text(Controls::kUpper), L"0.2");
        EXPECT_EQ(this->Text(Controls::kLower), L"-0.1");
        EXPECT_TRUE(this->IsEnabled(Controls::kUpper));
        EXPECT_TRUE(this->IsEnabled(Controls::kLower));
    }
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(FieldList, Dialogs, );
using LinkFieldList = FieldList<LinkDialog>;

// The list would open on the entry of the dimension before and put it into the box when it is left.
TYPED_TEST(FieldList, LeavesALoadedUnknownFieldAfterAPickForTheDimensionBefore)
{
    this->RunLoaded(FreeDimension(), {[this] { this->DropDown(); }, [this] { this->PostPick(1); },
                                      [this] {
                                          ASSERT_EQ(this->Selected(), 1);
                                          this->Load(FreeDimension());
                                          EXPECT_EQ(this->Selected(), CB_ERR);
                                          this->Calls().clear();
                                          this->PostArrowClick();
                                      },
                                      [this] { this->PostEscape(); }, [this] { this->ExpectFreeDimension(); }});
}

TYPED_TEST(FieldList, LeavesALoadedListedFieldAfterAPickForTheDimensionBefore)
{
    CDimParams next = FittedDimension();
    next.tolField = L"k6";
    this->RunLoaded(FreeDimension(), {[this] { this->DropDown(); }, [this] { this->PostPick(1); },
                                      [this, next] {
                                          ASSERT_EQ(this->Selected(), 1);
                                          this->Load(next);
                                          this->PostArrowClick();
                                      },
                                      [this] { this->PostEscape(); },
                                      [this, next] {
                                          EXPECT_EQ(this->Text(TypeParam::kField), L"k6");
                                          EXPECT_EQ(this->Record(), next);
                                          EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.015");
                                          EXPECT_EQ(this->Text(TypeParam::kLower), L"+0.002");
                                      }});
}

TYPED_TEST(FieldList, KeepsTheSelectionOfTheFieldThatIsLoadedAgain)
{
    this->RunLoaded(FreeDimension(), {[this] { this->DropDown(); }, [this] { this->PostPick(1); },
                                      [this] {
                                          this->Load(FittedDimension());
                                          EXPECT_EQ(this->Selected(), 1);
                                          EXPECT_EQ(this->Text(TypeParam::kField), L"H7");
                                      }});
}

TEST_F(LinkFieldList, LeavesTheFieldOfTheNextDimensionAfterAPickAndApply)
{
    RunLoaded(FreeDimension(), {[this] { DropDown(); }, [this] { PostPick(1); },
                                [this] {
                                    ASSERT_EQ(Selected(), 1);
                                    Click(IDC_LINK_APPLY);
                                    ASSERT_EQ(Codes(), (std::vector<WPARAM>{kLinkApplied}));
                                    EXPECT_EQ(Selected(), CB_ERR);
                                    EXPECT_EQ(Text(IDC_LINK_FIELD), L"");
                                    Load(FreeDimension());
                                    Calls().clear();
                                    PostArrowClick();
                                },
                                [this] { PostEscape(); }, [this] { ExpectFreeDimension(); }});
}

// The box loses the keyboard with its list, and the entry that the arrow has reached comes into it.
TYPED_TEST(FieldList, GivesNothingWhenALoadOfKindTwoClosesIt)
{
    CDimParams second = FreeDimension();
    second.dimKind = 2;
    second.upperDev = L"0.5";
    second.lowerDev = L"0.4";
    std::vector<CDimParams> told;
    this->OnNotification([this, &told](UINT) { told.push_back(this->Record()); });
    this->RunLoaded(FreeDimension(), {[this] { this->OpenListAndGoDown(2); },
                                      [this, second] {
                                          ASSERT_TRUE(this->IsListOpen());
                                          ASSERT_EQ(this->Selected(), 1);
                                          this->Calls().clear();
                                          this->Load(second);
                                          EXPECT_TRUE(this->Calls().empty());
                                      },
                                      [this] {
                                          EXPECT_FALSE(this->IsListOpen());
                                          EXPECT_EQ(this->Record().tolField, L"");
                                          EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
                                          EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.5");
                                          EXPECT_EQ(this->Text(TypeParam::kLower), L"0.4");
                                          EXPECT_TRUE(this->Calls().empty());
                                          this->Click(TypeParam::kOk);
                                      }});
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].tolField, L"zz");
    EXPECT_EQ(told[0].upperDev, L"0.5");
    EXPECT_EQ(told[0].lowerDev, L"0.4");
    EXPECT_TRUE(this->Calls().empty());
}

// The list that was open for the dimension before gives nothing to this one when it is left.
TYPED_TEST(FieldList, GivesNothingWhenItIsOpenDuringALoadAndThenLeft)
{
    this->RunLoaded(FittedDimension(), {[this] { this->OpenListAndGoDown(2); },
                                        [this] {
                                            ASSERT_TRUE(this->IsListOpen());
                                            ASSERT_NE(this->Selected(), CB_ERR);
                                            this->Load(FreeDimension());
                                            this->Calls().clear();
                                            PostKey(::GetFocus(), VK_ESCAPE);
                                        },
                                        [this] { this->ExpectFreeDimension(); }});
}

TYPED_TEST(FieldList, GivesNothingWhenTheResetClosesIt)
{
    CDimParams told = FreeDimension();
    CString field = L"zz";
    CString upper = L"0.2";
    bool enabled = true;
    this->OnNotification([&](UINT) {
        told = this->Record();
        field = this->Text(TypeParam::kField);
        upper = this->Text(TypeParam::kUpper);
        enabled = this->IsEnabled(TypeParam::kUpper);
    });
    this->RunLoaded(FreeDimension(), {[this] { this->OpenListAndGoDown(2); },
                                      [this] {
                                          ASSERT_TRUE(this->IsListOpen());
                                          this->Calls().clear();
                                          this->Command(TypeParam::kCancel);
                                      }});
    EXPECT_EQ(told, EmptyRecord());
    EXPECT_EQ(field, L"");
    EXPECT_EQ(upper, L"");
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(this->Calls().empty());
}

TEST_F(LinkFieldList, GivesNothingWhenApplyClosesIt)
{
    RunLoaded(FreeDimension(), {[this] { OpenListAndGoDown(2); },
                                [this] {
                                    ASSERT_TRUE(IsListOpen());
                                    Calls().clear();
                                    Command(IDC_LINK_APPLY);
                                    ASSERT_EQ(Codes(), (std::vector<WPARAM>{kLinkApplied}));
                                },
                                [this] {
                                    EXPECT_FALSE(IsListOpen());
                                    EXPECT_EQ(Record(), EmptyRecord());
                                    EXPECT_EQ(Text(IDC_LINK_FIELD), L"");
                                    EXPECT_EQ(Text(IDC_LINK_UPPER_DEV), L"");
                                    EXPECT_FALSE(IsEnabled(IDC_LINK_UPPER_DEV));
                                    EXPECT_TRUE(Calls().empty());
                                }});
}

TYPED_TEST(FieldList, GivesNothingThatTheBoxTakesWhileALoadOfKindTwoDisablesIt)
{
    CDimParams params = FreeDimension();
    params.dimKind = 2;
    this->Run({[this, params] {
        const EntryTakenWhenDisabled box(this->Window(TypeParam::kField));
        this->Calls().clear();
        this->Load(params);
        ASSERT_TRUE(box.HasTaken());
        EXPECT_EQ(this->Record().tolField, L"");
        EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.2");
        EXPECT_EQ(this->Text(TypeParam::kLower), L"-0.1");
        EXPECT_TRUE(this->Calls().empty());
    }});
}

TYPED_TEST(FieldList, GivesNothingThatTheBoxTakesWhileTheResetDisablesIt)
{
    CDimParams told = FreeDimension();
    CString field = L"zz";
    CString upper = L"0.2";
    this->OnNotification([&](UINT) {
        told = this->Record();
        field = this->Text(TypeParam::kField);
        upper = this->Text(TypeParam::kUpper);
    });
    this->RunLoaded(FreeDimension(), {[this] {
                        const EntryTakenWhenDisabled box(this->Window(TypeParam::kField));
                        this->Calls().clear();
                        this->Click(TypeParam::kCancel);
                        ASSERT_TRUE(box.HasTaken());
                    }});
    EXPECT_EQ(told, EmptyRecord());
    EXPECT_EQ(field, L"");
    EXPECT_EQ(upper, L"");
    EXPECT_TRUE(this->Calls().empty());
}

}  // namespace
