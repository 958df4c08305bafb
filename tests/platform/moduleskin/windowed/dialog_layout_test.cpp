#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include <afxcmn.h>

#include "dialog_lists.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "skin_dialog.h"
#include "tests/support/framework_printers.h"
#include "texts.h"

namespace
{

using ScaledDialog = std::tuple<ExpectedDialog, int>;

class EveryScaledDialog : public testing::TestWithParam<ScaledDialog>
{
protected:
    void SetUp() override { ASSERT_NE(m_dialog.Window(), nullptr); }

    int Scaling() const { return std::get<1>(GetParam()); }
    /// Pixels of a number of dialog units.
    CSize Units(int x, int y) const
    {
        RECT rect{0, 0, x, y};
        ::MapDialogRect(m_dialog.Window(), &rect);
        return {rect.right, rect.bottom};
    }

    SkinDialog m_dialog{std::get<0>(GetParam()).id, std::get<1>(GetParam())};
};

std::string NameOfScaled(const testing::TestParamInfo<ScaledDialog>& info)
{
    return std::string(std::get<0>(info.param).name) + std::to_string(std::get<1>(info.param));
}

/// Pixels that a control of that class draws beside its text.
int BesideText(HWND control, int scaling)
{
    constexpr int kCheckBox = 13 + 6;  // box and gap at 100 %
    constexpr int kButtonEdges = 2 * 6;
    if (ClassOf(control) != L"Button")
        return 0;
    const DWORD type = ClassStyle(control) & BS_TYPEMASK;
    return (type == BS_AUTOCHECKBOX ? kCheckBox : kButtonEdges) * scaling / 100;
}

// A tenth is kept for fonts and languages that run wider.
TEST_P(EveryScaledDialog, HasRoomForEachText)
{
    int texts = 0;
    for (const HWND control : m_dialog.Controls())
    {
        const std::wstring text = TextOf(control);
        if (text.empty())
            continue;
        SCOPED_TRACE(Narrow(text));
        RECT area;
        ::GetClientRect(control, &area);
        EXPECT_GE(area.right, WidthIn(control, text) * 11 / 10 + BesideText(control, Scaling()));
        EXPECT_GE(area.bottom, Units(0, 8).cy);
        ++texts;
    }
    EXPECT_GT(texts, 0);
}

TEST_P(EveryScaledDialog, KeepsSevenUnitsFreeAtItsEdges)
{
    const CSize margin = Units(7, 7);
    CRect inside = m_dialog.ClientArea();
    // Places are rounded to whole pixels one by one.
    inside.DeflateRect(margin.cx - 1, margin.cy - 1);
    CRect all(m_dialog.Place(m_dialog.Controls().front()));
    for (const HWND control : m_dialog.Controls())
    {
        const CRect place = m_dialog.Place(control);
        SCOPED_TRACE(::GetDlgCtrlID(control));
        EXPECT_GE(place.left, inside.left);
        EXPECT_GE(place.top, inside.top);
        EXPECT_LE(place.right, inside.right);
        EXPECT_LE(place.bottom, inside.bottom);
        all.UnionRect(&all, &place);
    }
    EXPECT_NEAR(all.left, margin.cx, 1);
    EXPECT_NEAR(all.top, margin.cy, 1);
    EXPECT_NEAR(m_dialog.ClientArea().right - all.right, margin.cx, 2);
    EXPECT_NEAR(m_dialog.ClientArea().bottom - all.bottom, margin.cy, 2);
}

TEST_P(EveryScaledDialog, HasNoControlOverAnother)
{
    const std::vector<HWND> controls = m_dialog.Controls();
    for (std::size_t i = 0; i < controls.size(); ++i)
        for (std::size_t j = i + 1; j < controls.size(); ++j)
        {
            const CRect first = m_dialog.Place(controls[i]);
            const CRect second = m_dialog.Place(controls[j]);
            CRect both;
            EXPECT_FALSE(both.IntersectRect(&first, &second))
                << ::GetDlgCtrlID(controls[i]) << ' ' << testing::PrintToString(first) << " and "
                << ::GetDlgCtrlID(controls[j]) << ' ' << testing::PrintToString(second);
        }
}

INSTANTIATE_TEST_SUITE_P(Templates, EveryScaledDialog,
                         testing::Combine(testing::ValuesIn(ExpectedDialogs()), testing::Values(100, 125, 150, 200)),
                         NameOfScaled);

/// A text that is put into a control while the program runs.
struct LateText
{
    UINT dialog;
    int control;
    std::wstring text;
};

void PrintTo(const LateText& late, std::ostream* out)
{
    *out << late.control << " \"" << Narrow(late.text) << '"';
}

using ScaledText = std::tuple<LateText, int>;

class LateTexts : public testing::TestWithParam<ScaledText>
{
};

TEST_P(LateTexts, FitTheirControl)
{
    const LateText& late = std::get<0>(GetParam());
    const int scaling = std::get<1>(GetParam());
    const SkinDialog dialog(late.dialog, scaling);
    const HWND control = dialog.Item(late.control);
    ASSERT_NE(control, nullptr);
    ASSERT_FALSE(late.text.empty());
    RECT area;
    ::GetClientRect(control, &area);
    int beside = 0;
    if (ClassOf(control) == L"ComboBox")
    {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetComboBoxInfo(control, &info));
        area.right = info.rcItem.right - info.rcItem.left;
        beside = 2 * 2;
    }
    EXPECT_GE(area.right - beside, WidthIn(control, late.text));
}

const std::wstring kLongNumber = L"3149.987654321";  // the largest nominal that the standard has tolerances for

INSTANTIATE_TEST_SUITE_P(
    Templates, LateTexts,
    testing::Combine(testing::Values(LateText{IDD_EDIT_TOL, IDC_LINK_NOMINAL, kLongNumber},
                                     LateText{IDD_EDIT_TOL, IDC_LINK_CAPTION, SkinText(IDS_NOMINAL_CAPTION)},
                                     LateText{IDD_EDIT_TOL, IDC_LINK_DIRECTION, SkinText(IDS_INCREASING)},
                                     LateText{IDD_EDIT_TOL, IDC_LINK_DIRECTION, SkinText(IDS_DECREASING)},
                                     LateText{IDD_EDIT_CLOSE_TOL, IDC_CLOSING_NOMINAL, kLongNumber},
                                     LateText{IDD_EDIT_CLOSE_TOL, IDC_CLOSING_CAPTION, SkinText(IDS_NOMINAL_CAPTION)},
                                     LateText{IDD_VARIABLE, IDC_VARIABLE_NOMINAL, kLongNumber},
                                     LateText{IDD_VARIABLE, IDC_VARIABLE_CAPTION, SkinText(IDS_NOMINAL_CAPTION)},
                                     LateText{IDD_VARIABLE, IDC_VARIABLE_SIGMA, L"123.987654321"},
                                     LateText{IDD_VARIABLE, IDC_VARIABLE_LAW, SkinText(IDS_LAW_NORMAL)},
                                     LateText{IDD_VARIABLE, IDC_VARIABLE_LAW, SkinText(IDS_LAW_UNIFORM)},
                                     LateText{IDD_VARIABLE, IDC_VARIABLE_LAW, SkinText(IDS_LAW_TRIANGULAR)},
                                     LateText{IDD_WEIGHT, IDC_WEIGHT_VALUE, L"10"}),
                     testing::Values(100, 150, 200)));

struct ListColumns
{
    UINT dialog;
    int control;
    int columns;  // pixels that all columns take
};

void PrintTo(const ListColumns& list, std::ostream* out)
{
    *out << list.control;
}

class ListWidths : public testing::TestWithParam<ListColumns>
{
};

// With the base units of Windows, 6 x 13, and the scroll bar that a long chain needs.
TEST_P(ListWidths, ShowAllColumnsWithoutScrolling)
{
    const SkinDialog dialog(GetParam().dialog);
    const HWND list = dialog.Item(GetParam().control);
    RECT client;
    ::GetClientRect(list, &client);
    const CRect whole = dialog.Place(list);
    const int borders = whole.Width() - client.right;
    const int onWindows = ::MulDiv(whole.Width(), 6, dialog.BaseUnits().cx) - std::max(borders, 2 * 2);
    EXPECT_GE(std::min<int>(client.right, onWindows) - ::GetSystemMetrics(SM_CXVSCROLL), GetParam().columns);
}

INSTANTIATE_TEST_SUITE_P(Lists, ListWidths,
                         testing::Values(ListColumns{IDD_CALC_TOL, IDC_CHAIN_LIST, 130 + 4 * 60 + 50},
                                         ListColumns{IDD_CALC_TOL, IDC_CLOSING_LIST, 130 + 4 * 60},
                                         ListColumns{IDD_WEIGHT, IDC_WEIGHT_LIST, 130 + 4 * 60}));

TEST(CalculationDialogTemplate, ShowsTheClosingLinkWithoutScrolling)
{
    const SkinDialog dialog(IDD_CALC_TOL);
    const HWND list = dialog.Item(IDC_CLOSING_LIST);
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = 130;
    ::SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    const HIMAGELIST images = ::ImageList_Create(25, 16, ILC_COLOR16 | ILC_MASK, 0, 9);
    ListView_SetImageList(list, images, LVSIL_SMALL);
    wchar_t text[] = L"      X";
    LVITEMW row{};
    row.mask = LVIF_TEXT;
    row.pszText = text;
    ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row));
    RECT place;
    ASSERT_TRUE(ListView_GetItemRect(list, 0, &place, LVIR_BOUNDS));
    RECT client;
    ::GetClientRect(list, &client);
    EXPECT_LE(place.bottom, client.bottom);
    EXPECT_EQ(::GetWindowLongPtrW(list, GWL_STYLE) & WS_VSCROLL, 0);
}

TEST(CalculationDialogTemplate, HasRoomForTheDiagram)
{
    const SkinDialog dialog(IDD_CALC_TOL);
    RECT area;
    ::GetClientRect(dialog.Item(IDC_CHAIN_DIAGRAM), &area);
    const CSize units = dialog.BaseUnits();
    EXPECT_GE(::MulDiv(area.right, 6, units.cx), 420);
    EXPECT_GE(::MulDiv(area.bottom, 13, units.cy), 220);
}

// Links appear there one by one while the tolerance dialogs are open.
TEST(ToleranceDialogTemplates, OpenBelowTheListsOfTheCalculationDialog)
{
    const CModuleSkin skin(kModuleCalcTol);
    CDialog calculation;
    ASSERT_TRUE(calculation.Create(IDD_CALC_TOL));
    for (const UINT id : {IDD_EDIT_TOL, IDD_EDIT_CLOSE_TOL})
    {
        CDialog tolerance;
        ASSERT_TRUE(tolerance.Create(id, &calculation));
        CRect list;
        ::GetWindowRect(::GetDlgItem(calculation, IDC_CLOSING_LIST), &list);
        CRect place;
        tolerance.GetWindowRect(&place);
        EXPECT_GE(place.top, list.bottom) << id;
        EXPECT_GT(place.left, list.left) << id;
        tolerance.DestroyWindow();
    }
    calculation.DestroyWindow();
}

TEST(DistributionDialogTemplate, HasRoomForThePlot)
{
    const SkinDialog dialog(IDD_VARIABLE);
    RECT area;
    ::GetClientRect(dialog.Item(IDC_VARIABLE_PLOT), &area);
    const CSize units = dialog.BaseUnits();
    EXPECT_GE(::MulDiv(area.right, 6, units.cx), 420);
    EXPECT_GE(::MulDiv(area.bottom, 13, units.cy), 220);
}

}  // namespace
