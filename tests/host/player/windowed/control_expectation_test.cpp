#include <string>

#include <gtest/gtest.h>

#include "test_play.h"
#include "test_windows.h"

namespace
{

/// A dialog that scripts call `closing`: the box 1027 with entries, one of them drawn bold by its owner, a plain box
/// 1006 without an owner's drawing, an edit, a check box, a static and a grid.
class ShownDialog : public TestDialog
{
public:
    explicit ShownDialog(HWND owner) : TestDialog(owner, L"Closing \"link\"")
    {
        const HWND drawn =
            Add(WC_COMBOBOXW, 1027, L"", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, {10, 10, 110, 100});
        AddEntry(drawn, L"H7", 1);
        AddEntry(drawn, L"zz9", 0);
        const HWND plain = Add(WC_COMBOBOXW, 1006, L"", CBS_DROPDOWN, {10, 40, 110, 140});
        AddEntry(plain, L"increasing", 52718);
        const HWND extended = Add(WC_COMBOBOXEXW, 1008, L"", CBS_DROPDOWN, {10, 130, 110, 230});
        COMBOBOXEXITEMW item = {};
        item.mask = CBEIF_TEXT | CBEIF_LPARAM;
        item.iItem = -1;
        item.pszText = const_cast<wchar_t*>(L"k6");
        item.lParam = 5;
        SendMessageW(extended, CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        SendMessageW(extended, CBEM_SETEXTENDEDSTYLE, 0x13, 0x13);
        SetWindowSubclass(extended, DrawBold, 1, 0);

        Add(WC_EDITW, 1029, L"0.1", ES_AUTOHSCROLL | WS_TABSTOP, {10, 70, 110, 90}, WS_EX_CLIENTEDGE);
        Add(WC_BUTTONW, 1028, L"Filter", BS_AUTOCHECKBOX | WS_TABSTOP, {120, 70, 200, 90});
        Add(WC_STATICW, 1026, L"First\nsecond", 0, {120, 10, 200, 40});
        const HWND grid = Add(WC_LISTVIEWW, 1002, L"", LVS_REPORT, {210, 10, 430, 100});
        SendMessageW(grid, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES);
        AddColumn(grid, 0, L"Link", LVCFMT_LEFT, 130);
        AddColumn(grid, 1, L"Nominal", LVCFMT_CENTER, 60);
        LVITEMW row = {};
        row.mask = LVIF_TEXT;
        row.pszText = const_cast<wchar_t*>(L"      X");
        SendMessageW(grid, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row));
        row.iSubItem = 1;
        row.pszText = const_cast<wchar_t*>(L"40.5");
        SendMessageW(grid, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&row));
        OnMessage(Handle);
        Show();
    }

private:
    static void AddEntry(HWND combo, const wchar_t* text, LPARAM data)
    {
        const auto index = static_cast<WPARAM>(SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
        SendMessageW(combo, CB_SETITEMDATA, index, data);
    }

    static void AddColumn(HWND grid, int index, const wchar_t* title, int format, int width)
    {
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
        column.pszText = const_cast<wchar_t*>(title);
        column.fmt = format;
        column.cx = width;
        SendMessageW(grid, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    }

    static void Draw(const DRAWITEMSTRUCT& request, const wchar_t* text, bool bold)
    {
        LOGFONTW description = {};
        GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(request.hwndItem, WM_GETFONT, 0, 0)), sizeof(description),
                   &description);
        if (bold)
            description.lfWeight = FW_BOLD;
        const HFONT font = CreateFontIndirectW(&description);
        const HGDIOBJ former = SelectObject(request.hDC, font);
        ExtTextOutW(request.hDC, request.rcItem.left + 3, request.rcItem.top + 1, ETO_OPAQUE, &request.rcItem, text,
                    static_cast<UINT>(wcslen(text)), nullptr);
        SelectObject(request.hDC, former);
        DeleteObject(font);
    }

    // Entries of the box 1027 with item data 1 are drawn bold.
    static bool Handle(TestDialog&, UINT message, WPARAM, LPARAM lParam)
    {
        if (message != WM_DRAWITEM)
            return false;
        const auto& request = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        if (request.itemID == static_cast<UINT>(-1))
            return true;
        wchar_t text[32] = {};
        SendMessageW(request.hwndItem, CB_GETLBTEXT, request.itemID, reinterpret_cast<LPARAM>(text));
        Draw(request, text, request.itemData == 1);
        return true;
    }

    // An extended box is asked to draw its entries itself; this one draws all of them bold.
    static LRESULT CALLBACK DrawBold(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
    {
        if (message != WM_DRAWITEM)
            return DefSubclassProc(box, message, wParam, lParam);
        Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam), L"k6", true);
        return TRUE;
    }
};

class PlayedExpectation : public testing::Test
{
protected:
    TestHost host;
    ShownDialog dialog{host.MainWindow()};
};

}  // namespace

TEST_F(PlayedExpectation, ATextIsComparedExactly)
{
    ExpectHolds(host, R"(expect-text closing window "Closing \"link\""
expect-text closing 1026 "First\nsecond"
expect-text closing 1029 "0.1"
)");
    ExpectFails(host, "expect-text closing 1029 \"0.10\"\n", 1, "expected \"0.10\", found \"0.1\"");
    ExpectFails(host, "expect-text closing 1029/7 \"\"\n", 1, "there is no control 1029/7");
}

TEST_F(PlayedExpectation, AStringOfTheResourceLibraryStandsForAText)
{
    const TestResources resources;
    SetWindowTextW(dialog.Control(1026), L"Link");
    ExpectHolds(host, "expect-text closing 1026 @1083\nexpect-column closing 1002 0 @1083 left 130\n");
    ExpectFails(host, "expect-text closing 1026 @99\n", 1, "the resource library has no string 99");
}

TEST_F(PlayedExpectation, AMessageIsComparedWithAString)
{
    const TestResources resources;
    dialog.OnMessage([](TestDialog& box, UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_COMMAND && LOWORD(wParam) == 7)
            MessageBoxW(box.Window(), L"The name is missing: \u201EA\u201C.", L"Link", MB_OK);
        return false;
    });
    ExpectHolds(host, "command closing 7\nexpect-message 52703\npress message ok\n");
    ExpectFails(host, "command closing 7\nexpect-message 1083\n", 2, "expected \"Link\", found \"The name is missing");
}

TEST_F(PlayedExpectation, StatesAreYesOrNo)
{
    EnableWindow(dialog.Control(1029), FALSE);
    ShowWindow(dialog.Control(1026), SW_HIDE);
    SendMessageW(dialog.Control(1028), BM_SETCHECK, BST_CHECKED, 0);
    ExpectHolds(host,
                "expect-enabled closing 1029 no\nexpect-enabled closing 1028 yes\nexpect-visible closing 1026 no\n"
                "expect-visible closing 1029 yes\nexpect-checked closing 1028 yes\n");
    ExpectFails(host, "expect-enabled closing 1029 yes\n", 1, "expected yes, found no");
    ExpectFails(host, "expect-visible closing 1026 yes\n", 1, "expected yes, found no");
    ExpectFails(host, "expect-checked closing 1028 no\n", 1, "expected no, found yes");
    ExpectFails(host, "expect-checked closing 1029 no\n", 1, "the control is no check box");
}

TEST_F(PlayedExpectation, ABoxHasSelectionCountAndEntries)
{
    SendMessageW(dialog.Control(1027), CB_SETCURSEL, 1, 0);
    ExpectHolds(host, "expect-selected closing 1027 1\nexpect-selected closing 1006 -1\nexpect-count closing 1027 2\n"
                      "expect-count closing 1002 2\nexpect-entry closing 1006 0 \"increasing\" 52718 plain\n"
                      "expect-entry closing 1008 0 \"k6\" 5 bold\n");
    ExpectFails(host, "expect-selected closing 1027 0\n", 1, "expected 0, found 1");
    ExpectFails(host, "expect-count closing 1027 3\n", 1, "expected 3, found 2");
    ExpectFails(host, "expect-count closing 1029 3\n", 1, "neither combo box nor grid");
    ExpectFails(host, "expect-entry closing 1027 2 \"x\"\n", 1, "expected entry 2, found 2 entries");
    ExpectFails(host, "expect-entry closing 1006 0 \"increasing\" 1\n", 1, "found \"increasing\" 52718");
    ExpectFails(host, "expect-entry closing 1008 0 \"k7\"\n", 1, "expected \"k7\", found \"k6\"");
}

TEST_F(PlayedExpectation, AnEntrysWeightIsReadOffItsDrawing)
{
    ExpectHolds(host, "expect-entry closing 1027 0 \"H7\" 1 bold\nexpect-entry closing 1027 1 \"zz9\" plain\n");
    ExpectFails(host, "expect-entry closing 1027 0 \"H7\" plain\n", 1, "expected \"H7\" plain, found \"H7\" bold");
    ExpectFails(host, "expect-entry closing 1027 1 \"zz9\" bold\n", 1, "expected \"zz9\" bold, found \"zz9\" plain");
}

TEST_F(PlayedExpectation, StylesAreComparedUnderAMask)
{
    ExpectHolds(host, "expect-style closing 1002 list 0xB1 1\nexpect-style closing 1008 box 0x13 0x13\n"
                      "expect-style closing 1029 style 0x80 0x80\nexpect-style closing 1029 exstyle 0x200 0x200\n");
    ExpectFails(host, "expect-style closing 1002 list 0xB1 0xB1\n", 1, "expected 0xB1, found 0x1");
    ExpectFails(host, "expect-style closing 1027 box 1 1\n", 1, "has no extended combo box style");
    ExpectFails(host, "expect-style closing 1027 list 1 1\n", 1, "the control is no grid");
}

TEST_F(PlayedExpectation, APlaceIsMeasuredInTheParent)
{
    RECT client = {};
    GetClientRect(dialog.Window(), &client);
    MoveWindow(dialog.Control(1026), client.right / 2, 10, 80, client.bottom - 20, FALSE);
    ExpectHolds(host, "expect-rect closing 1029 10 70 100 20\nexpect-rect closing 1026 w/2 * 80 h-20\n");
    ExpectFails(host, "expect-rect closing 1029 10 70 101 *\n", 1, "expected 10 70 101 *, found 10 70 100 20");
}

TEST_F(PlayedExpectation, APlaceInACellIsMeasuredInTheCell)
{
    const HWND grid = dialog.Control(1002);
    RECT row = {};
    ListView_GetItemRect(grid, 0, &row, LVIR_BOUNDS);
    // Column 1 begins 130 pixels from the left and is 60 wide.
    CreateWindowW(WC_EDITW, L"", WS_CHILD | WS_VISIBLE, 132, row.top, 58, row.bottom - row.top, grid,
                  reinterpret_cast<HMENU>(301), nullptr, nullptr);
    ExpectHolds(host, "expect-rect closing 1002/301 2 0 w-2 h at 0 1\n");
    ExpectFails(host, "expect-rect closing 1002/301 0 0 w h at 0 1\n", 1, "found 2 0 58");
}

TEST_F(PlayedExpectation, TheKeyboardsPlaceIsNamed)
{
    SetFocus(dialog.Control(1029));
    ExpectHolds(host, "expect-focused closing 1029\nexpect-focused host none\n");
    ExpectFails(host, "expect-focused closing 1028\n", 1, "expected the keyboard at closing 1028, found closing 1029");
    ExpectFails(host, "expect-focused none\n", 1, "expected the keyboard at none, found closing 1029");
    ExpectFails(host, "expect-focused closing none\n", 1, "found closing 1029");
    SetFocus(nullptr);
    ExpectHolds(host, "expect-focused none\nexpect-focused closing none\n");
}

TEST_F(PlayedExpectation, AGridIsReadCellByCell)
{
    ExpectHolds(host, "expect-rows closing 1002 1\nexpect-cell closing 1002 0 0 \"      X\"\n"
                      "expect-cell closing 1002 0 1 \"40.5\"\nexpect-column closing 1002 1 \"Nominal\" center 60\n");
    ExpectFails(host, "expect-rows closing 1002 2\n", 1, "expected 2, found 1");
    ExpectFails(host, "expect-cell closing 1002 0 1 \"40\"\n", 1, "expected \"40\", found \"40.5\"");
    ExpectFails(host, "expect-cell closing 1002 1 0 \"\"\n", 1, "expected row 1, found 1 rows");
    ExpectFails(host, "expect-column closing 1002 1 \"Nominal\" right 60\n", 1, "found \"Nominal\" center 60");
    ExpectFails(host, "expect-column closing 1002 2 \"\" right 60\n", 1, "expected column 2, found 2 columns");
    ExpectFails(host, "expect-rows closing 1029 0\n", 1, "the control is no grid");
}

TEST_F(PlayedExpectation, ALongCellTextIsReadWhole)
{
    std::wstring text(5000, L'x');
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.pszText = text.data();
    SendMessageW(dialog.Control(1002), LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    ExpectHolds(host, "expect-cell closing 1002 0 0 \"" + std::string(5000, 'x') + "\"\n");
}

TEST_F(PlayedExpectation, ResourcesThatStayAreCounted)
{
    ExpectHolds(host, "mark\nexpect-steady\nexpect-cell closing 1002 0 0 \"      X\"\nexpect-steady\n");
    static HGDIOBJ left;
    static HMENU menu;
    dialog.OnMessage([](TestDialog& box, UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_COMMAND && LOWORD(wParam) == 7)
            left = CreateSolidBrush(RGB(1, 2, 3));
        if (message == WM_COMMAND && LOWORD(wParam) == 8)
            menu = CreatePopupMenu();
        if (message == WM_COMMAND && LOWORD(wParam) == 9)
            box.Add(WC_STATICW, 900, L"", 0, {0, 0, 1, 1});
        return false;
    });
    for (const char* leak : {"7", "8", "9"})
    {
        SCOPED_TRACE(leak);
        ExpectFails(host, "mark\ncommand closing " + std::string(leak) + "\nexpect-steady\n", 3, "GDI objects, found ");
    }
    DeleteObject(left);
    DestroyMenu(menu);
}
