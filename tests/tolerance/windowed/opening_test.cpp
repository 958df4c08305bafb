#include <functional>
#include <utility>

#include "tolerance_dialog_test.h"

namespace
{

using LinkOpening = ToleranceDialogTest<LinkDialog>;
using ClosingOpening = ToleranceDialogTest<ClosingDialog>;

template <class Controls>
class Opening : public ToleranceDialogTest<Controls>
{
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(Opening, Dialogs, );

/// A disabled main window that does something when it is enabled.
class MainWindow : public RecordingWindow
{
public:
    explicit MainWindow(std::function<void()> action = nullptr) : RecordingWindow(200, 100), m_action(std::move(action))
    {
        EnableWindow(FALSE);
        AfxGetThread()->m_pMainWnd = this;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = RecordingWindow::WindowProc(message, wParam, lParam);
        if (message == WM_ENABLE && wParam != FALSE && m_action)
            std::exchange(m_action, nullptr)();
        return result;
    }

private:
    std::function<void()> m_action;
};

const std::vector<int> kLinkControls{IDC_LINK_APPLY,     IDC_LINK_OK,        IDC_LINK_CANCEL, IDC_LINK_DIRECTION,
                                     IDC_LINK_UPPER_DEV, IDC_LINK_LOWER_DEV, IDC_LINK_NAME,   IDC_LINK_WEIGHT_FIXED,
                                     IDC_LINK_FILTER,    IDC_LINK_FIELD};
const std::vector<int> kClosingControls{IDC_CLOSING_FIELD,     IDC_CLOSING_FILTER, IDC_CLOSING_UPPER_DEV,
                                        IDC_CLOSING_LOWER_DEV, IDC_CLOSING_OK,     IDC_CLOSING_CANCEL};

TEST_F(LinkOpening, EnablesOnlyOkAndCancelWithoutADimension)
{
    Run({[this] { EXPECT_EQ(Enabled(kLinkControls), (std::vector<int>{IDC_LINK_OK, IDC_LINK_CANCEL})); }});
}

TEST_F(ClosingOpening, EnablesOnlyOkAndCancelWithoutADimension)
{
    Run({[this] { EXPECT_EQ(Enabled(kClosingControls), (std::vector<int>{IDC_CLOSING_OK, IDC_CLOSING_CANCEL})); }});
}

TEST_F(LinkOpening, OffersIncreasingAndDecreasingWithTheirStringsAsData)
{
    Run({[this] {
        const HWND direction = Window(IDC_LINK_DIRECTION);
        EXPECT_EQ(::SendMessageW(direction, CB_GETCOUNT, 0, 0), 2);
        EXPECT_EQ(::SendMessageW(direction, CB_GETITEMDATA, 0, 0), 52718);
        EXPECT_EQ(::SendMessageW(direction, CB_GETITEMDATA, 1, 0), 52719);
        EXPECT_EQ(::SendMessageW(direction, CB_GETCURSEL, 0, 0), 0);
        EXPECT_FALSE(Text(IDC_LINK_DIRECTION).IsEmpty());
    }});
}

TEST_F(LinkOpening, KeepsApplyDisabledForADimensionThatItOpensWith)
{
    dialog->Params() = FreeDimension();
    Run({[this] {
        std::vector<int> expected = kLinkControls;
        std::erase(expected, IDC_LINK_APPLY);
        EXPECT_EQ(Enabled(kLinkControls), expected);
    }});
}

TEST_F(LinkOpening, ShowsTheDimensionThatItOpensWith)
{
    dialog->Params() = FreeDimension();
    Run({[this] {
        EXPECT_EQ(Text(IDC_LINK_NAME), L"A1");
        EXPECT_EQ(Text(IDC_LINK_NOMINAL), L"25");
        EXPECT_EQ(Text(IDC_LINK_CAPTION), L"Size:");
        EXPECT_EQ(Text(IDC_LINK_FIELD), L"zz");
        EXPECT_EQ(Text(IDC_LINK_UPPER_DEV), L"0.2");
        EXPECT_EQ(Text(IDC_LINK_LOWER_DEV), L"-0.1");
        EXPECT_TRUE(IsChecked(IDC_LINK_WEIGHT_FIXED));
        EXPECT_EQ(::SendMessageW(Window(IDC_LINK_DIRECTION), CB_GETCURSEL, 0, 0), 1);
        EXPECT_EQ(Record(), FreeDimension());
    }});
}

TEST_F(ClosingOpening, ShowsTheDimensionThatItOpensWith)
{
    dialog->Params() = FreeDimension();
    Run({[this] {
        EXPECT_EQ(Enabled(kClosingControls), kClosingControls);
        EXPECT_EQ(Text(IDC_CLOSING_NOMINAL), L"25");
        EXPECT_EQ(Text(IDC_CLOSING_CAPTION), L"Size:");
        EXPECT_EQ(Text(IDC_CLOSING_FIELD), L"zz");
        EXPECT_EQ(Text(IDC_CLOSING_UPPER_DEV), L"0.2");
        EXPECT_EQ(Text(IDC_CLOSING_LOWER_DEV), L"-0.1");
        EXPECT_EQ(Record(), FreeDimension());
    }});
}

TYPED_TEST(Opening, HidesThePictureWithoutADimension)
{
    this->Run({[this] { EXPECT_FALSE(this->IsShown(TypeParam::kPicture)); }});
}

TYPED_TEST(Opening, ShowsThePictureOfTheDimensionThatItOpensWith)
{
    this->dialog->Params() = FreeDimension();
    this->Run({[this] { EXPECT_TRUE(this->IsShown(TypeParam::kPicture)); }});
}

// The modal loop disables the owner; the user has to pick dimensions there.
TYPED_TEST(Opening, MakesTheMainWindowUsable)
{
    this->Run({[this] { EXPECT_TRUE(::IsWindowEnabled(this->host.m_hWnd)); }});
}

TYPED_TEST(Opening, LeavesTheHostsWindowDisabledWhenAnotherIsTheMainWindow)
{
    const MainWindow mainWindow;
    this->Run({[&] {
        EXPECT_TRUE(::IsWindowEnabled(mainWindow.m_hWnd));
        EXPECT_FALSE(::IsWindowEnabled(this->host.m_hWnd));
    }});
}

TYPED_TEST(Opening, ShowsADimensionThatIsLoadedWhenTheMainWindowIsEnabled)
{
    CDimParams params = FittedDimension();
    params.dimKind = 3;
    const MainWindow mainWindow([&] { this->Load(params); });
    this->Run({[&] {
        EXPECT_EQ(this->Record(), params);
        EXPECT_EQ(this->Text(TypeParam::kNominal), L"25");
        EXPECT_EQ(this->Text(TypeParam::kField), L"H7");
        EXPECT_EQ(this->Selected(), 1);
        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.021");
        EXPECT_TRUE(this->IsEnabled(TypeParam::kField));
        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
        EXPECT_EQ(DifferentPixels(ShownPixels(this->Window(TypeParam::kPicture)), ResourcePicture(IDB_KIND_3)), 0);
    }});
}

TYPED_TEST(Opening, MayBeDeletedWhenTheMainWindowIsEnabled)
{
    const MainWindow mainWindow([this] { this->dialog.reset(); });
    const CModuleSkin skin(kModuleCalcTol);
    EXPECT_EQ(this->dialog->DoModal(), -1);
    EXPECT_EQ(this->dialog, nullptr);
    EXPECT_TRUE(this->Calls().empty());
    EXPECT_TRUE(::IsWindowEnabled(this->host.m_hWnd));
}

TYPED_TEST(Opening, MayBeDestroyedWhenTheMainWindowIsEnabled)
{
    const MainWindow mainWindow([this] { this->dialog->DestroyWindow(); });
    const CModuleSkin skin(kModuleCalcTol);
    EXPECT_EQ(this->dialog->DoModal(), -1);
    EXPECT_EQ(this->dialog->m_hWnd, nullptr);
    EXPECT_TRUE(this->Calls().empty());
    EXPECT_TRUE(::IsWindowEnabled(this->host.m_hWnd));
}

TYPED_TEST(Opening, MayBeEndedWhenTheMainWindowIsEnabled)
{
    constexpr int kResult = 5;
    const MainWindow mainWindow([this] { this->dialog->EndDialog(kResult); });
    const CModuleSkin skin(kModuleCalcTol);
    EXPECT_EQ(this->dialog->DoModal(), kResult);
    EXPECT_TRUE(this->Codes().empty());
    EXPECT_TRUE(::IsWindowEnabled(this->host.m_hWnd));
}

TYPED_TEST(Opening, FillsTheBoxWithEveryFieldUnfiltered)
{
    this->Run({[this] {
        EXPECT_FALSE(this->IsChecked(TypeParam::kFilter));
        EXPECT_EQ(this->EntryCount(), 4);
        EXPECT_EQ(this->Selected(), CB_ERR);
    }});
}

TYPED_TEST(Opening, GivesTheBoxItsExtendedStyles)
{
    this->Run(
        {[this] { EXPECT_EQ(::SendMessageW(this->Window(TypeParam::kField), CBEM_GETEXTENDEDSTYLE, 0, 0), 0x13); }});
}

TYPED_TEST(Opening, AsksTheLibraryOnceForAnEmptyRecord)
{
    this->Run({[this] { EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{0.0F, ""}})); }});
    EXPECT_EQ(TheGaugeBase().listCalls, 1);
}

// Once on opening, once more because a dimension is loaded.
TYPED_TEST(Opening, AsksTheLibraryForTheRecordsFieldAndNominal)
{
    this->dialog->Params() = FittedDimension();
    this->Run({[this] { EXPECT_EQ(this->Calls(), (std::vector<DimTolCall>{{25.0F, "H7"}, {25.0F, "H7"}})); }});
}

TYPED_TEST(Opening, LocksTheDeviationsOfAKnownField)
{
    this->dialog->Params() = FittedDimension();
    this->Run({[this] {
        EXPECT_EQ(this->Text(TypeParam::kUpper), L"+0.021");
        EXPECT_EQ(this->Text(TypeParam::kLower), L"");
        EXPECT_FALSE(this->IsEnabled(TypeParam::kUpper));
        EXPECT_FALSE(this->IsEnabled(TypeParam::kLower));
    }});
}

TYPED_TEST(Opening, OpensASecondTimeLikeTheFirst)
{
    for (int time = 0; time < 2; ++time)
    {
        SCOPED_TRACE(time);
        this->dialog->Params() = FreeDimension();
        const INT_PTR result = this->Run({[this] {
            EXPECT_EQ(this->Text(TypeParam::kNominal), L"25");
            EXPECT_EQ(this->EntryCount(), 4);
            EXPECT_TRUE(this->IsShown(TypeParam::kPicture));
        }});
        EXPECT_EQ(result, ModalScript::kStepsDone);
    }
}

TYPED_TEST(Opening, IsUsableWhenTheLibraryHasNoList)
{
    TheGaugeBase().listResult = 0;
    this->RunLoaded(FreeDimension(), {[this] {
                        EXPECT_EQ(this->EntryCount(), 0);
                        EXPECT_EQ(this->Text(TypeParam::kField), L"zz");
                        EXPECT_TRUE(this->IsEnabled(TypeParam::kField));
                    }});
}

// The library's fields can't be marked without a short list. The dialog is told by the framework and goes on.
TYPED_TEST(Opening, LivesOnAfterTheExceptionOfAnEmptyShortList)
{
    const ExpectMessageBox report;
    TheGaugeBase().shortList.clear();
    this->Run({[this] {
        EXPECT_EQ(this->EntryCount(), 0);
        EXPECT_TRUE(::IsWindow(this->dialog->m_hWnd));
    }});
    EXPECT_TRUE(report.WasShown()) << "the framework reports the exception";
}

}  // namespace
