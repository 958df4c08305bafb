#include <gtest/gtest.h>

#include <afxext.h>

#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"

TEST(Button, CheckStateAndClickNotification)
{
    RecordingWindow window;
    CButton button;
    ASSERT_TRUE(button.Create(L"Check", WS_VISIBLE | BS_AUTOCHECKBOX, CRect(0, 0, 80, 20), &window, 7));
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    PostClick(button, {5, 5});
    PumpUntilIdle();
    EXPECT_EQ(button.GetCheck(), BST_CHECKED);
    EXPECT_EQ(window.CountOfCommand(7, BN_CLICKED), 1);
    button.SetCheck(BST_UNCHECKED);
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
}

TEST(Edit, SelectionIsSetAndRead)
{
    RecordingWindow window;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 80, 20), &window, 7));
    edit.SetWindowText(L"25.000");
    edit.SetSel(3, 5);
    int start = -1;
    int end = -1;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 3);
    EXPECT_EQ(end, 5);
    edit.SetSel(0, -1);
    edit.GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 6);
}

TEST(ComboBox, EntriesTheirDataAndTheSelection)
{
    RecordingWindow window;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 100, 200), &window, 7));
    EXPECT_EQ(combo.AddString(L"normal"), 0);
    EXPECT_EQ(combo.AddString(L"uniform"), 1);
    combo.SetItemData(1, 22);
    EXPECT_EQ(combo.GetCount(), 2);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_EQ(combo.GetItemData(combo.GetCurSel()), 22u);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST(ComboBoxEx, ItemsKeepTextAndData)
{
    RecordingWindow window;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 100, 200), &window, 7));
    wchar_t text[] = L"H7";
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT | CBEIF_LPARAM;
    item.iItem = -1;
    item.pszText = text;
    item.lParam = 1;
    EXPECT_EQ(combo.InsertItem(&item), 0);
    wchar_t buffer[255] = {};
    COMBOBOXEXITEM read = {};
    read.mask = CBEIF_TEXT | CBEIF_LPARAM;
    read.pszText = buffer;
    read.cchTextMax = 255;
    EXPECT_TRUE(combo.GetItem(&read));
    EXPECT_STREQ(buffer, L"H7");
    EXPECT_EQ(read.lParam, 1);
    EXPECT_EQ(combo.GetCount(), 1);
}

TEST(ComboBoxEx, HoldsAComboBox)
{
    RecordingWindow window;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 100, 200), &window, 7));
    ASSERT_NE(combo.GetComboBoxCtrl(), nullptr);
    EXPECT_TRUE(::IsChild(combo, combo.GetComboBoxCtrl()->m_hWnd));
}

TEST(ComboBoxEx, ExtendedStyleIsKept)
{
    constexpr DWORD kStyle = CBES_EX_NOEDITIMAGE | CBES_EX_NOEDITIMAGEINDENT | CBES_EX_CASESENSITIVE;
    RecordingWindow window;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 100, 200), &window, 7));
    combo.SetExtendedStyle(kStyle, kStyle);
    EXPECT_EQ(combo.GetExtendedStyle(), kStyle);
}

TEST(Slider, PositionStaysInItsRange)
{
    RecordingWindow window;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE | TBS_AUTOTICKS, CRect(0, 0, 200, 30), &window, 7));
    slider.SetRange(1, 10);
    slider.SetPos(5);
    EXPECT_EQ(slider.GetPos(), 5);
    slider.SetPos(99);
    EXPECT_EQ(slider.GetPos(), 10);
    slider.SetPos(-4);
    EXPECT_EQ(slider.GetPos(), 1);
}

TEST(Static, ShowsTheTextThatItIsCreatedWith)
{
    RecordingWindow window;
    CStatic caption;
    ASSERT_TRUE(caption.Create(L"Closing link", WS_VISIBLE, CRect(0, 0, 90, 20), &window));
    CString text;
    caption.GetWindowText(text);
    EXPECT_EQ(text, CString(L"Closing link"));
}

TEST(StatusBar, PartsShowTheirTexts)
{
    RecordingWindow window;
    CStatusBarCtrl bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE, CRect(), &window, 7));
    int edges[] = {100, -1};
    EXPECT_TRUE(bar.SetParts(2, edges));
    EXPECT_TRUE(bar.SetText(L"picked", 1, 0));
    EXPECT_EQ(bar.GetText(1), CString(L"picked"));
}
