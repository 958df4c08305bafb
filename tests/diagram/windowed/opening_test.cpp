#include <functional>
#include <utility>

#include "platform/moduleskin/resource.h"
#include "tests/support/pixels.h"
#include "weight_dialog_test.h"

namespace
{

using WeightOpening = WeightDialogTest;

/// A window that has the focus and does something when it loses it.
class FocusedWindow : public RecordingWindow
{
public:
    explicit FocusedWindow(std::function<void()> action) : RecordingWindow(200, 100), m_action(std::move(action))
    {
        SetFocus();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = RecordingWindow::WindowProc(message, wParam, lParam);
        if (message == WM_KILLFOCUS && m_action)
            std::exchange(m_action, nullptr)();
        return result;
    }

private:
    std::function<void()> m_action;
};

TEST_F(WeightOpening, ListsFiveColumns)
{
    struct Expected
    {
        UINT headingId;
        int format;
        int width;
    };
    const std::vector<Expected> expected{{IDS_COLUMN_LINK, LVCFMT_LEFT, 130},
                                         {IDS_COLUMN_NOMINAL, LVCFMT_CENTER, 60},
                                         {IDS_COLUMN_FIELD, LVCFMT_CENTER, 60},
                                         {IDS_COLUMN_WEIGHT_FIXED, LVCFMT_CENTER, 60},
                                         {IDS_COLUMN_WEIGHT, LVCFMT_CENTER, 60}};
    Run({[&] {
        ASSERT_EQ(List().ColumnCount(), 5);
        for (int index = 0; index < 5; ++index)
        {
            SCOPED_TRACE(index);
            wchar_t heading[100] = L"";
            LVCOLUMNW column{};
            column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
            column.pszText = heading;
            column.cchTextMax = 100;
            ASSERT_TRUE(::SendMessageW(List().m_hWnd, LVM_GETCOLUMNW, static_cast<WPARAM>(index),
                                       reinterpret_cast<LPARAM>(&column)));
            const Expected& wanted = expected[static_cast<std::size_t>(index)];
            EXPECT_EQ(CString(heading), ResourceText(wanted.headingId));
            EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, wanted.format);
            EXPECT_EQ(column.cx, wanted.width);
        }
        EXPECT_EQ(List().TreeColumn(), 0);
    }});
}

TEST_F(WeightOpening, GivesTheListItsStylesAndImages)
{
    Run({[this] {
        EXPECT_EQ(List().GetExtendedStyle() & 0xB1U, 0xB1U);
        CImageList* const images = List().GetImageList(LVSIL_SMALL);
        ASSERT_NE(images, nullptr);
        EXPECT_GE(images->GetImageCount(), 12);
        int width = 0;
        int height = 0;
        ::ImageList_GetIconSize(images->GetSafeHandle(), &width, &height);
        EXPECT_EQ(width, 16);
        EXPECT_EQ(height, 16);
        IMAGEINFO first{};
        ASSERT_TRUE(ImageList_GetImageInfo(images->GetSafeHandle(), 0, &first));
        BITMAP bitmap{};
        ASSERT_NE(::GetObjectW(first.hbmImage, sizeof bitmap, &bitmap), 0);
        EXPECT_EQ(bitmap.bmBitsPixel, 16);
        EXPECT_NE(first.hbmMask, nullptr);
        EXPECT_TRUE(List().RowMode());
    }});
}

// Drawn on two grounds: where they differ, the image is transparent.
TEST_F(WeightOpening, MakesMagentaTransparent)
{
    Run({[this] {
        const HIMAGELIST images = List().GetImageList(LVSIL_SMALL)->GetSafeHandle();
        const auto on = [images](COLORREF ground) {
            return PaintedPixels(16, 16, [&](CDC& dc) {
                dc.FillSolidRect(CRect(0, 0, 16, 16), ground);
                ImageList_Draw(images, 2, dc.GetSafeHdc(), 0, 0, ILD_TRANSPARENT);
            });
        };
        const int transparent = DifferentPixels(on(RGB(0, 0, 0)), on(RGB(255, 255, 255)));
        EXPECT_GT(transparent, 0);
        EXPECT_LT(transparent, 16 * 16);
        EXPECT_EQ(on(RGB(0, 0, 0)).Count(0xFF00FF), 0);
    }});
}

TEST_F(WeightOpening, HangsTheLinksBelowTheExpandedChainRow)
{
    Run({[this] {
        EXPECT_EQ(ChainRow().Text(0), L"Gear box");
        EXPECT_EQ(ChainRow().Image(0), 2);
        EXPECT_TRUE(ChainRow().IsExpanded());
        EXPECT_EQ(ChainRow().ChildCount(), 3);
        EXPECT_EQ(List().RowCount(), 4);
        EXPECT_EQ(List().GetItemCount(), 4);
    }});
}

TEST_F(WeightOpening, CopiesTheColumnsOfEachLink)
{
    Run({[this] {
        const std::vector<std::vector<CString>> expected{
            {L"A1", L"N1", L"F1", ResourceText(IDS_WEIGHT_FIXED_NO), L"4"},
            {L"A2", L"N2", L"F2", ResourceText(IDS_WEIGHT_FIXED_YES), L"7"},
            {L"A3", L"N3", L"F3", ResourceText(IDS_WEIGHT_FIXED_NO), L"10"}};
        for (int link = 1; link <= 3; ++link)
        {
            SCOPED_TRACE(link);
            for (int column = 0; column < 5; ++column)
            {
                const CString& text = expected[static_cast<std::size_t>(link - 1)][static_cast<std::size_t>(column)];
                EXPECT_EQ(LinkRow(link).Text(column), text);
                EXPECT_EQ(List().GetItemText(link, column), text) << "in the control";
            }
            EXPECT_EQ(LinkRow(link).Image(0), 8 + link);
        }
    }});
}

TEST_F(WeightOpening, SharesTheRecords)
{
    Run({[this] {
        for (int link = 1; link <= 3; ++link)
            EXPECT_EQ(LinkRow(link).UserData(), &chain.records[static_cast<std::size_t>(link - 1)]) << link;
        EXPECT_EQ(ChainRow().UserData(), nullptr);
    }});
}

TEST_F(WeightOpening, SelectsTheChainWithoutALinkToSelect)
{
    Run({[this] {
        EXPECT_EQ(Selected(), 0);
        EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"");
        EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"");
        EXPECT_FALSE(IsShown(IDC_WEIGHT_PICTURE));
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
    }});
}

TEST_F(WeightOpening, SetsTheSliderFromOneToTen)
{
    Run({[this] {
        EXPECT_EQ(::SendMessageW(Window(IDC_WEIGHT_SLIDER), TBM_GETRANGEMIN, 0, 0), 1);
        EXPECT_EQ(::SendMessageW(Window(IDC_WEIGHT_SLIDER), TBM_GETRANGEMAX, 0, 0), 10);
        EXPECT_EQ(SliderPosition(), 1);
    }});
}

TEST_F(WeightOpening, GivesTheListTheFocus)
{
    Run({[] {}, [this] { EXPECT_EQ(Focused(), IDC_WEIGHT_LIST); }});
}

TEST_F(WeightOpening, MayBeDeletedByTheWindowThatItTakesTheFocusFrom)
{
    Preselect(1);
    const FocusedWindow other([this] { dialog.reset(); });
    const CModuleSkin skin(kModuleCalcTol);
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(WeightOpening, MayBeDestroyedByTheWindowThatItTakesTheFocusFrom)
{
    Preselect(1);
    const FocusedWindow other([this] { dialog->DestroyWindow(); });
    const CModuleSkin skin(kModuleCalcTol);
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_EQ(dialog->m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(WeightOpening, SelectsALinkByItsHostObject)
{
    Preselect(3);
    Run({[] {},
         [this] {
             EXPECT_EQ(Selected(), 3);
             EXPECT_EQ(Text(IDC_WEIGHT_NAME), L"A3");
             EXPECT_EQ(Text(IDC_WEIGHT_VALUE), L"10");
             EXPECT_EQ(SliderPosition(), 10);
             EXPECT_TRUE(IsEnabled(IDC_WEIGHT_SLIDER));
             EXPECT_EQ(DifferenceFrom(1002), 0);
         }});
}

TEST_F(WeightOpening, SelectsTheFirstOfTwoLinksWithOneHostObject)
{
    chain.records[2].hostObject = chain.records[1].hostObject;
    Preselect(2);
    Run({[this] { EXPECT_EQ(Selected(), 2); }});
}

TEST_F(WeightOpening, SelectsTheChainForAHostObjectThatIsNotInIt)
{
    Preselect(200);
    Run({[this] {
        EXPECT_EQ(Selected(), 0);
        EXPECT_FALSE(IsShown(IDC_WEIGHT_PICTURE));
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
    }});
}

// Null means the whole chain.
TEST_F(WeightOpening, DoesNotSelectALinkWithoutAHostObject)
{
    chain.records[1].hostObject = nullptr;
    dialog->SetHostObject(nullptr);
    Run({[this] { EXPECT_EQ(Selected(), 0); }});
}

TEST_F(WeightOpening, ScrollsToTheSelectedLinkOfALongChain)
{
    while (chain.links.size() < 200)
        chain.Add(1, ResourceText(IDS_WEIGHT_FIXED_NO), 1);
    Preselect(200);
    Run({[] {},
         [this] {
             EXPECT_EQ(Selected(), 200);
             RECT row{};
             row.left = LVIR_BOUNDS;
             ::SendMessageW(List().m_hWnd, LVM_GETITEMRECT, 200, reinterpret_cast<LPARAM>(&row));
             CRect list;
             List().GetClientRect(&list);
             EXPECT_GE(row.top, 0);
             EXPECT_LE(row.bottom, list.bottom);
         }});
}

TEST_F(WeightOpening, ListsOnlyTheChainRowWithoutLinks)
{
    chain.links.clear();
    Run({[this] {
        EXPECT_EQ(List().RowCount(), 1);
        EXPECT_EQ(Selected(), 0);
        EXPECT_FALSE(IsEnabled(IDC_WEIGHT_SLIDER));
    }});
}

TEST_F(WeightOpening, OpensWithoutAChainWhenMadeByItsRunTimeClass)
{
    dialog.reset(static_cast<CWeightDlg*>(RUNTIME_CLASS(CWeightDlg)->CreateObject()));
    ASSERT_NE(dialog, nullptr);
    dialog->SetHostObject(this);
    const INT_PTR result = Run({[this] {
                                    EXPECT_EQ(List().RowCount(), 1);
                                    EXPECT_EQ(ChainRow().Text(0), L"");
                                    Slide(5);
                                },
                                [this] { Click(IDOK); }});
    EXPECT_EQ(result, IDOK);
}

TEST_F(WeightOpening, LeavesTheMainWindowDisabledAsLongAsItIsOpen)
{
    Run({[] {}, [this] { EXPECT_FALSE(::IsWindowEnabled(host.m_hWnd)); }});
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(WeightOpening, TellsTheHostNothing)
{
    Run({[this] { Click(IDOK); }});
    EXPECT_TRUE(Codes().empty());
}

TEST_F(WeightOpening, OpensASecondTimeLikeTheFirst)
{
    Preselect(1);
    for (int time = 0; time < 2; ++time)
    {
        SCOPED_TRACE(time);
        const INT_PTR result = Run({[] {},
                                    [this] {
                                        EXPECT_EQ(List().ColumnCount(), 5);
                                        EXPECT_EQ(List().RowCount(), 4);
                                        EXPECT_EQ(LinkRow(1).ItemCount(), 5);
                                        EXPECT_EQ(Selected(), 1);
                                        EXPECT_EQ(DifferenceFrom(1003), 0);
                                    }});
        EXPECT_EQ(result, ModalScript::kStepsDone);
    }
}

/// A dialog that lists its links in its own way.
class DerivedWeightDialog : public CWeightDlg
{
public:
    using CWeightDlg::CWeightDlg;
    int filled = 0;

protected:
    void FillRows() override { ++filled; }
};

TEST_F(WeightOpening, AsksADerivedDialogForTheRows)
{
    auto derived = std::make_unique<DerivedWeightDialog>(&host, &chain);
    const DerivedWeightDialog& asked = *derived;
    dialog = std::move(derived);
    Run({[this] { EXPECT_EQ(List().RowCount(), 1); }});
    EXPECT_EQ(asked.filled, 1);
}

}  // namespace
