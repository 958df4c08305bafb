#include "tests/drawing/windowed/gdi_exhaustion.h"
#include "tolerance_dialog_test.h"

namespace
{

template <class Controls>
class FieldBoxEvents : public ToleranceDialogTest<Controls>
{
protected:
    /// A notification of the box, as some system sends it.
    void Notify(int code) const
    {
        ::SendMessageW(this->dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(Controls::kField, code),
                       reinterpret_cast<LPARAM>(this->Window(Controls::kField)));
    }

    /// Writes into the box, which doesn't tell the dialog.
    void WriteSilently(const wchar_t* text) const
    {
        Silently([&] { this->Write(Controls::kField, text); });
    }

    /// Selects an entry, which doesn't tell the dialog.
    void SelectSilently(int index) const
    {
        Silently([&] { ::SendMessageW(this->Window(Controls::kField), CB_SETCURSEL, static_cast<WPARAM>(index), 0); });
    }

    /// An entry is picked, then the list is left by Esc on a system that puts text and selection back untold.
    void PickAndLeave(int picked, int former, const wchar_t* formerText) const
    {
        ::SendMessageW(this->Window(Controls::kField), CB_SETCURSEL, static_cast<WPARAM>(picked), 0);
        Notify(CBN_SELCHANGE);
        SelectSilently(former);
        ASSERT_EQ(this->Text(Controls::kField), formerText);
        ASSERT_EQ(this->Selected(), former);
        Notify(CBN_CLOSEUP);
        ASSERT_EQ(this->Record().tolField, formerText);
    }

private:
    template <class Change>
    void Silently(const Change& change) const
    {
        const LONG_PTR procedure =
            ::SetWindowLongPtrW(this->dialog->m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&::DefWindowProcW));
        change();
        ::SetWindowLongPtrW(this->dialog->m_hWnd, GWLP_WNDPROC, procedure);
    }
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(FieldBoxEvents, Dialogs, );

TYPED_TEST(FieldBoxEvents, AskTheLibraryForEveryTypedCharacter)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        this->Calls().clear();
                        this->TypeField(L"k6");
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "k"}, {25.0F, "k6"}}));
                        EXPECT_EQ(this->Record().tolField, L"k6");
                    }});
}

TYPED_TEST(FieldBoxEvents, ShowAndLockTheDeviationsOfATypedKnownField)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        this->TypeField(L"k6");
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.015");
                        EXPECT_EQ(this->Text(TypeParam::kLower), L"+0.002");
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kLower));
                    }});
}

TYPED_TEST(FieldBoxEvents, UnlockTheDeviationsOfATypedUnknownFieldAndKeepTheirTexts)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        this->TypeField(L"k6");
                        this->TypeField(L"k66");
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.015");
                        EXPECT_EQ(this->Text(TypeParam::kLower), L"+0.002");
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kUpper));
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kLower));
                    }});
}

TYPED_TEST(FieldBoxEvents, TellCodesApartByCase)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        this->Calls().clear();
                        this->TypeField(L"h7");
                        EXPECT_EQ(this->Calls().back(), (DimTolCall{25.0F, "h7"}));
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kUpper));
                    }});
}

// Entries: H6, H7, k6, k7.
TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceForAnEntryPickedWithTheMouse)
{
    this->RunLoaded(FreeDimension(), {[this] { this->DropDown(); },
                                      [this] {
                                          this->Calls().clear();
                                          this->PostPick(1);
                                      },
                                      [this] {
                                          EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}}));
                                          EXPECT_EQ(this->Record().tolField, L"H7");
                                          EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.021");
                                          EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                                      }});
}

TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceForEachOfTwoPicks)
{
    this->RunLoaded(FreeDimension(),
                    {[this] { this->DropDown(); },
                     [this] {
                         this->Calls().clear();
                         this->PostPick(1);
                     },
                     [this] { this->DropDown(); }, [this] { this->PostPick(2); },
                     [this] {
                         EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}, {25.0F, "k6"}}));
                     }});
}

TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceForThePickOfTheEntryThatIsShown)
{
    this->RunLoaded(FittedDimension(), {[this] { this->DropDown(); },
                                        [this] {
                                            this->Calls().clear();
                                            this->PostPick(1);
                                        },
                                        [this] {
                                            EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}}));
                                        }});
}

TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceForThePickOfTheEntryThatWasTyped)
{
    this->RunLoaded(FreeDimension(), {[this] { this->TypeField(L"k6"); }, [this] { this->DropDown(); },
                                      [this] {
                                          this->Calls().clear();
                                          this->PostPick(2);
                                      },
                                      [this] {
                                          EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "k6"}}));
                                      }});
}

// Some systems send the edit change after the selection change.
TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceWhenTheEditChangeComesLast)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        const HWND box = this->Window(TypeParam::kField);
                        this->Calls().clear();
                        ::SendMessageW(box, CB_SETCURSEL, 2, 0);
                        for (const int code : {CBN_SELCHANGE, CBN_EDITCHANGE})
                            ::SendMessageW(this->dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(TypeParam::kField, code),
                                           reinterpret_cast<LPARAM>(box));
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "k6"}}));
                    }});
}

// Some systems send a selection change alone.
TYPED_TEST(FieldBoxEvents, TakeTheEntryOfALoneSelectionChange)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        const HWND box = this->Window(TypeParam::kField);
                        ::SendMessageW(box, CB_SETCURSEL, 2, 0);
                        ::SendMessageW(this->dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(TypeParam::kField, CBN_SELCHANGE),
                                       reinterpret_cast<LPARAM>(box));
                        EXPECT_EQ(this->Record().tolField, L"k6");
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.015");
                    }});
}

TYPED_TEST(FieldBoxEvents, IgnoreASelectionChangeWithoutASelection)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        const HWND box = this->Window(TypeParam::kField);
                        this->Calls().clear();
                        ASSERT_EQ(this->Selected(), CB_ERR);
                        ::SendMessageW(this->dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(TypeParam::kField, CBN_SELCHANGE),
                                       reinterpret_cast<LPARAM>(box));
                        EXPECT_EQ(this->Record().tolField, L"zz");
                        EXPECT_TRUE(this->Calls().empty());
                    }});
}

// Some systems put the text back when the list is left by Esc, and tell only that it closes.
TYPED_TEST(FieldBoxEvents, GoBackToTheTextThatTheClosedListLeaves)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        ::SendMessageW(this->Window(TypeParam::kField), CB_SETCURSEL, 2, 0);
                        this->Notify(CBN_SELCHANGE);
                        ASSERT_FALSE(this->IsEnabled(TypeParam::kUpper));
                        this->WriteSilently(L"zz");
                        ASSERT_EQ(this->Record().tolField, L"k6");
                        this->Calls().clear();
                        this->Notify(CBN_CLOSEUP);
                        EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
                        EXPECT_EQ(this->Record().tolField, L"zz");
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "zz"}}));
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kUpper));
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kLower));
                    }});
}

TYPED_TEST(FieldBoxEvents, DoNotAskWhenTheListClosesOnTheSameText)
{
    this->RunLoaded(FittedDimension(), {[this] {
                        this->Calls().clear();
                        this->Notify(CBN_CLOSEUP);
                        EXPECT_TRUE(this->Calls().empty());
                        EXPECT_EQ(this->Record().tolField, L"H7");
                    }});
}

// The selection is put back, too, but its change is not told.
TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceForAPickAfterAListThatWasLeft)
{
    this->RunLoaded(FreeDimension(), {[this] {
                                          ::SendMessageW(this->Window(TypeParam::kField), CB_SETCURSEL, 2, 0);
                                          this->Notify(CBN_SELCHANGE);
                                          this->WriteSilently(L"zz");
                                          this->Notify(CBN_CLOSEUP);
                                          this->DropDown();
                                      },
                                      [this] {
                                          this->Calls().clear();
                                          this->PostPick(2);
                                      },
                                      [this] {
                                          EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "k6"}}));
                                          EXPECT_EQ(this->Record().tolField, L"k6");
                                          EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                                      }});
}

// Entry 1 is H7 again, and the text that came back was answered; the pick that follows is a new one all the same.
TYPED_TEST(FieldBoxEvents, AskTheLibraryOnceForAPickOfTheEntryThatALeftListPutBack)
{
    this->RunLoaded(FittedDimension(), {[this] {
                                            this->PickAndLeave(2, 1, L"H7");
                                            this->DropDown();
                                        },
                                        [this] {
                                            this->Calls().clear();
                                            this->PostPick(1);
                                        },
                                        [this] {
                                            EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}}));
                                        }});
}

// A load that ends early shows other texts, but the record still has the field that was answered.
TYPED_TEST(FieldBoxEvents, AskTheLibraryForAPickOfTheFormerEntryAfterALoadThatEndedEarly)
{
    CDimParams known = FittedDimension();
    known.dimKind = 0;  // no picture, whose end would leave a graphics object to the next one
    this->RunLoaded(known, {[this] {
                        this->PickAndLeave(2, 1, L"H7");
                        {
                            const GdiExhaustion exhaustion;
                            this->Load(FreeDimension());
                        }
                        ASSERT_EQ(this->Record().tolField, L"H7");
                        ASSERT_TRUE(this->IsEnabled(TypeParam::kUpper));
                        this->SelectSilently(1);
                        this->Calls().clear();
                        this->Notify(CBN_SELCHANGE);
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}}));
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                    }});
}

// A selection is what the entry says, whatever stands in the edit part.
TYPED_TEST(FieldBoxEvents, TakeTheEntrysTextOfASelectionChangeNotTheEdits)
{
    this->RunLoaded(FreeDimension(), {[this] {
                        this->SelectSilently(2);
                        this->WriteSilently(L"zz");
                        ASSERT_EQ(this->Selected(), 2);
                        this->Calls().clear();
                        this->Notify(CBN_SELCHANGE);
                        EXPECT_EQ(this->Record().tolField, L"k6");
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "k6"}}));
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.015");
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kLower));
                    }});
}

// The texts of a load that ended early are not those of the record.
TYPED_TEST(FieldBoxEvents, DoNotAskWhenTheListClosesAfterALoadThatEndedEarly)
{
    CDimParams known = FittedDimension();
    known.dimKind = 0;
    this->RunLoaded(known, {[this] {
                        {
                            const GdiExhaustion exhaustion;
                            this->Load(FreeDimension());
                        }
                        ASSERT_EQ(this->Text(TypeParam::kField), L"zz");
                        this->Calls().clear();
                        this->Notify(CBN_CLOSEUP);
                        EXPECT_TRUE(this->Calls().empty());
                        EXPECT_EQ(this->Record().tolField, L"H7");
                        EXPECT_EQ(this->Text(TypeParam::kUpper), L"0.2");
                    }});
}

TYPED_TEST(FieldBoxEvents, DoNotAskWhenTheListClosesOnADimensionWithoutTolerance)
{
    CDimParams params = FreeDimension();
    params.dimKind = 2;
    this->RunLoaded(params, {[this] {
                        this->Calls().clear();
                        this->Notify(CBN_CLOSEUP);
                        EXPECT_TRUE(this->Calls().empty());
                        EXPECT_TRUE(this->Record().tolField.IsEmpty());
                        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
                    }});
}

TYPED_TEST(FieldBoxEvents, ShowOnlyTheListedFieldsWithTheFilter)
{
    this->RunLoaded(FittedDimension(), {[this] {
                        this->Click(TypeParam::kFilter);
                        EXPECT_TRUE(this->IsChecked(TypeParam::kFilter));
                        EXPECT_EQ(this->EntryCount(), 2);
                        this->Click(TypeParam::kFilter);
                        EXPECT_EQ(this->EntryCount(), 4);
                    }});
}

TYPED_TEST(FieldBoxEvents, SelectTheTextAgainWhenTheFilterListsItAndAskOnce)
{
    this->RunLoaded(FittedDimension(), {[this] {
                        this->Calls().clear();
                        this->Click(TypeParam::kFilter);
                        EXPECT_EQ(this->Selected(), 0);
                        EXPECT_EQ(this->Record().tolField, L"H7");
                        EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}}));
                    }});
}

TYPED_TEST(FieldBoxEvents, KeepATextThatTheFilterDoesNotListAndDoNotAsk)
{
    CDimParams params = FreeDimension();
    params.tolField = L"k7";
    this->RunLoaded(params, {[this] {
                        this->Calls().clear();
                        this->Click(TypeParam::kFilter);
                        EXPECT_EQ(this->Selected(), CB_ERR);
                        EXPECT_EQ(this->Text(TypeParam::kField), L"k7");
                        EXPECT_EQ(this->Record().tolField, L"k7");
                        EXPECT_TRUE(this->Calls().empty());
                    }});
}

TYPED_TEST(FieldBoxEvents, DropTheSelectionOfAnEntryThatTheFilterDoesNotList)
{
    this->RunLoaded(FreeDimension(), {[this] { this->DropDown(); }, [this] { this->PostPick(3); },
                                      [this] {
                                          ASSERT_EQ(this->Selected(), 3);
                                          this->Click(TypeParam::kFilter);
                                          EXPECT_EQ(this->Selected(), CB_ERR);
                                          EXPECT_EQ(this->Text(TypeParam::kField), L"k7");
                                          EXPECT_EQ(this->Record().tolField, L"k7");
                                      }});
}

TYPED_TEST(FieldBoxEvents, LiveOnWhenTheFilterIsLiftedWithoutAShortList)
{
    const ExpectMessageBox report;
    this->RunLoaded(FittedDimension(), {[this] { this->Click(TypeParam::kFilter); },
                                        [this] {
                                            TheGaugeBase().shortList.clear();
                                            this->Click(TypeParam::kFilter);
                                            EXPECT_EQ(this->EntryCount(), 0);
                                            EXPECT_EQ(this->Text(TypeParam::kField), L"H7");
                                            EXPECT_TRUE(::IsWindow(this->dialog->m_hWnd));
                                        }});
    EXPECT_TRUE(report.WasShown()) << "the framework reports the exception";
}

}  // namespace
