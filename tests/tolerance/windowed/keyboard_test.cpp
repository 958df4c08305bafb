#include "tolerance_dialog_test.h"

namespace
{

template <class Controls>
class Keyboard : public ToleranceDialogTest<Controls>
{
protected:
    std::vector<int> TabOrderLoaded(int first, std::size_t count)
    {
        return this->TabOrder(first, count, {[this] { this->Load(FreeDimension()); }});
    }

    bool IsDropped(int box) const { return ::SendMessageW(this->Window(box), CB_GETDROPPEDSTATE, 0, 0) != 0; }
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(Keyboard, Dialogs, );
using LinkKeyboard = Keyboard<LinkDialog>;
using ClosingKeyboard = Keyboard<ClosingDialog>;

TYPED_TEST(Keyboard, AcceptsByEnterInADeviation)
{
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] {
                                                                 this->FocusOn(TypeParam::kUpper);
                                                                 PostKey(::GetFocus(), VK_RETURN);
                                                             },
                                                             [] {}});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{TypeParam::kAccepted}));
}

TYPED_TEST(Keyboard, AcceptsByEnterInTheFieldBox)
{
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] {
                                                                 ::SetFocus(this->FieldEdit());
                                                                 PostKey(::GetFocus(), VK_RETURN);
                                                             },
                                                             [] {}});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{TypeParam::kAccepted}));
}

TYPED_TEST(Keyboard, CancelsByEscInADeviation)
{
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] {
                                                                 this->FocusOn(TypeParam::kLower);
                                                                 PostKey(::GetFocus(), VK_ESCAPE);
                                                             },
                                                             [] {}});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(this->Codes(), (std::vector<WPARAM>{kChildCancelled}));
}

TYPED_TEST(Keyboard, CancelsByEnterOnTheCancelButton)
{
    const INT_PTR result = this->RunLoaded(FreeDimension(), {[this] {
                                                                 this->FocusOn(TypeParam::kCancel);
                                                                 PostKey(::GetFocus(), VK_RETURN);
                                                             },
                                                             [] {}});
    EXPECT_EQ(result, IDCANCEL);
}

TYPED_TEST(Keyboard, LeavesTheListOfFieldsByEscAndStays)
{
    this->RunLoaded(FreeDimension(), {[this] {
                                          ::SetFocus(this->FieldEdit());
                                          this->DropDown();
                                      },
                                      [this] {
                                          ASSERT_TRUE(this->IsDropped(TypeParam::kField));
                                          PostKey(::GetFocus(), VK_ESCAPE);
                                      },
                                      [this] {
                                          EXPECT_FALSE(this->IsDropped(TypeParam::kField));
                                          EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
                                          EXPECT_TRUE(this->Codes().empty());
                                      }});
}

// Which of the fields is in the box then is the system's choice; record and deviations follow it.
TYPED_TEST(Keyboard, AgreesWithTheBoxWhenTheListIsLeftByEscAfterArrows)
{
    for (const CDimParams& params : {FreeDimension(), FittedDimension()})
    {
        this->RunLoaded(params, {[this] {
                                     ::SetFocus(this->FieldEdit());
                                     this->DropDown();
                                     PostKey(::GetFocus(), VK_DOWN);
                                     PostKey(::GetFocus(), VK_DOWN);
                                     PostKey(::GetFocus(), VK_ESCAPE);
                                 },
                                 [this] {
                                     EXPECT_FALSE(this->IsDropped(TypeParam::kField));
                                     const CString field = this->Text(TypeParam::kField);
                                     EXPECT_FALSE(field.IsEmpty());
                                     EXPECT_EQ(this->Record().tolField, field);
                                     const bool known = field == L"H7" || field == L"k6";
                                     EXPECT_EQ(this->IsEnabled(TypeParam::kUpper), !known);
                                     EXPECT_EQ(this->IsEnabled(TypeParam::kLower), !known);
                                 }});
    }
}

TYPED_TEST(Keyboard, TakesAFieldOfTheListByEnterAndStays)
{
    this->RunLoaded(FreeDimension(), {[this] {
                                          ::SetFocus(this->FieldEdit());
                                          this->DropDown();
                                          PostKey(::GetFocus(), VK_DOWN);
                                          PostKey(::GetFocus(), VK_DOWN);
                                          PostKey(::GetFocus(), VK_RETURN);
                                      },
                                      [this] {
                                          EXPECT_FALSE(this->IsDropped(TypeParam::kField));
                                          EXPECT_EQ(this->Text(TypeParam::kField), L"H7");
                                          EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.021");
                                          EXPECT_TRUE(this->Codes().empty());
                                      }});
}

TEST_F(LinkKeyboard, LeavesTheListOfDirectionsByEscAndStays)
{
    RunLoaded(FreeDimension(), {[this] {
                                    FocusOn(IDC_LINK_DIRECTION);
                                    ::SendMessageW(Window(IDC_LINK_DIRECTION), CB_SHOWDROPDOWN, TRUE, 0);
                                },
                                [this] {
                                    ASSERT_TRUE(IsDropped(IDC_LINK_DIRECTION));
                                    PostKey(::GetFocus(), VK_ESCAPE);
                                },
                                [this] {
                                    EXPECT_FALSE(IsDropped(IDC_LINK_DIRECTION));
                                    EXPECT_TRUE(Codes().empty());
                                }});
}

TEST_F(LinkKeyboard, WalksTheControlsAsTheyStand)
{
    EXPECT_EQ(
        TabOrderLoaded(IDC_LINK_NAME, 10),
        (std::vector<int>{IDC_LINK_NAME, IDC_LINK_DIRECTION, IDC_LINK_FIELD, IDC_LINK_FILTER, IDC_LINK_UPPER_DEV,
                          IDC_LINK_LOWER_DEV, IDC_LINK_WEIGHT_FIXED, IDC_LINK_OK, IDC_LINK_CANCEL, IDC_LINK_APPLY}));
}

TEST_F(ClosingKeyboard, WalksTheControlsAsTheyStand)
{
    EXPECT_EQ(TabOrderLoaded(IDC_CLOSING_FIELD, 6),
              (std::vector<int>{IDC_CLOSING_FIELD, IDC_CLOSING_FILTER, IDC_CLOSING_UPPER_DEV, IDC_CLOSING_LOWER_DEV,
                                IDC_CLOSING_OK, IDC_CLOSING_CANCEL}));
}

// The button that was pressed is disabled: without another focus no key would reach the dialog.
TEST_F(LinkKeyboard, KeepsTheKeyboardInTheDialogAfterApply)
{
    RunLoaded(FreeDimension(), {[this] {
                  FocusOn(IDC_LINK_APPLY);
                  Click(IDC_LINK_APPLY);
                  EXPECT_EQ(Focused(), IDC_LINK_OK);
              }});
}

TYPED_TEST(Keyboard, KeepsTheKeyboardInTheDialogWhenKindTwoDisablesTheFocusedControl)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        ::SetFocus(this->FieldEdit());
                        CDimParams params = FreeDimension();
                        params.dimKind = 2;
                        this->Load(params);
                        EXPECT_EQ(this->Focused(), TypeParam::kOk);
                    }});
}

TYPED_TEST(Keyboard, LeavesTheFocusWhereItIsWhenADimensionIsLoaded)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        this->FocusOn(TypeParam::kLower);
                        this->Load(FreeDimension());
                        EXPECT_EQ(this->Focused(), TypeParam::kLower);
                    }});
}

TYPED_TEST(Keyboard, DoesNotTakeTheFocusFromTheHost)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        ::SetActiveWindow(this->host.m_hWnd);
                        ::SetFocus(this->host.m_hWnd);
                        this->Load(FittedDimension());
                        EXPECT_EQ(::GetFocus(), this->host.m_hWnd);
                    }});
}

}  // namespace
