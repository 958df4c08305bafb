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

TEST(Edit, SelectionIsReplaced)
{
    RecordingWindow window;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 80, 20), &window, 7));
    edit.SetWindowText(L"25.000");
    edit.SetSel(3, 6);
    edit.ReplaceSel(L"4");
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, CString(L"25.4"));
    edit.SetSel(0, -1);
    int start = -1;
    int end = -1;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 4);
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
    CString text;
    combo.GetLBText(1, text);
    EXPECT_EQ(text, CString(L"uniform"));
    combo.GetLBText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(combo.FindStringExact(-1, L"normal"), 0);
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
    EXPECT_EQ(combo.DeleteItem(0), 0);
}

TEST(ComboBoxEx, HoldsAComboBoxAndAnEdit)
{
    RecordingWindow window;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 100, 200), &window, 7));
    ASSERT_NE(combo.GetComboBoxCtrl(), nullptr);
    ASSERT_NE(combo.GetEditCtrl(), nullptr);
    EXPECT_TRUE(::IsChild(combo, combo.GetComboBoxCtrl()->m_hWnd));
    EXPECT_TRUE(::IsChild(combo, combo.GetEditCtrl()->m_hWnd));
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
    int lowest = 0;
    int highest = 0;
    slider.GetRange(lowest, highest);
    EXPECT_EQ(lowest, 1);
    EXPECT_EQ(highest, 10);
}

TEST(ListBox, EntriesAndSelection)
{
    RecordingWindow window;
    CListBox list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_NOTIFY, CRect(0, 0, 100, 100), &window, 7));
    list.AddString(L"first");
    list.InsertString(0, L"zeroth");
    CString text;
    list.GetText(1, text);
    EXPECT_EQ(text, CString(L"first"));
    list.SetCurSel(1);
    EXPECT_EQ(list.GetCurSel(), 1);
    list.GetText(5, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(Static, ShowsABitmapThatStaysItsOwners)
{
    RecordingWindow window;
    CStatic picture;
    ASSERT_TRUE(picture.Create(nullptr, WS_VISIBLE | SS_BITMAP, CRect(0, 0, 20, 20), &window));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
    EXPECT_EQ(picture.SetBitmap(bitmap), nullptr);
    EXPECT_NE(picture.GetBitmap(), nullptr);
    picture.SetBitmap(nullptr);
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
