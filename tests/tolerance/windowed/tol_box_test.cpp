#include "tolerance/tol_box.h"

#include <string>

#include <gtest/gtest.h>

#include "box_in_window.h"
#include "tests/drawing/windowed/white_canvas.h"
#include "tests/support/framework_printers.h"
#include "tests/support/resource_count.h"

namespace
{

constexpr int kWidth = 100;
constexpr int kHeight = 24;
const RECT kItem{4, 3, 90, 20};

/// Counts what the box is asked to draw as an entry, and what it leaves to the system.
class CountingBox : public CTolBox
{
public:
    void DrawItem(LPDRAWITEMSTRUCT request) override
    {
        ++drawn;
        CTolBox::DrawItem(request);
    }

    int drawn = 0;
    int leftToTheSystem = 0;
    std::wstring ownText;  // of every entry, when there is one

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DRAWITEM)
            ++leftToTheSystem;
        if (message == CBEM_GETITEMW && !ownText.empty())
        {
            reinterpret_cast<COMBOBOXEXITEMW*>(lParam)->pszText = ownText.data();
            return TRUE;
        }
        return CTolBox::DefWindowProc(message, wParam, lParam);
    }
};

DRAWITEMSTRUCT Request(HDC dc, UINT index, UINT state)
{
    DRAWITEMSTRUCT request{};
    request.CtlType = ODT_COMBOBOX;
    request.itemID = index;
    request.itemAction = ODA_DRAWENTIRE;
    request.itemState = state;
    request.hDC = dc;
    request.rcItem = kItem;
    return request;
}

/// The entry as the box draws it.
void DrawEntry(CTolBox& box, WhiteCanvas& canvas, UINT index, UINT state)
{
    DRAWITEMSTRUCT request = Request(canvas.Dc().GetSafeHdc(), index, state);
    box.DrawItem(&request);
}

LOGFONTW DialogFont()
{
    LOGFONTW description{};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof description, &description);
    return description;
}

/// Another face and another size.
LOGFONTW OtherFont(LONG weight)
{
    LOGFONTW description{};
    description.lfHeight = -15;
    description.lfWeight = weight;
    description.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    ::wcscpy(description.lfFaceName, L"Courier New");
    return description;
}

/// The same by hand.
void DrawText(WhiteCanvas& canvas, const CString& text, LOGFONTW description, LONG weight, int background,
              int textColor)
{
    const HDC dc = canvas.Dc().GetSafeHdc();
    description.lfWeight = weight;
    const HFONT font = ::CreateFontIndirectW(&description);
    {
        const ScopedSelect selected(canvas.Dc(), font);
        ::SetBkColor(dc, ::GetSysColor(background));
        ::SetTextColor(dc, ::GetSysColor(textColor));
        ::ExtTextOutW(dc, kItem.left, kItem.top, ETO_OPAQUE, &kItem, text, static_cast<UINT>(text.GetLength()),
                      nullptr);
    }
    ::DeleteObject(font);
}

/// In the default font of dialogs.
void DrawText(WhiteCanvas& canvas, const CString& text, LONG weight, int background, int textColor)
{
    DrawText(canvas, text, DialogFont(), weight, background, textColor);
}

bool Same(const WhiteCanvas& left, const WhiteCanvas& right)
{
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            if (left.At(x, y) != right.At(x, y))
                return false;
    return true;
}

/// While one is alive, a box has a font of its own.
class OwnFont
{
public:
    OwnFont(CTolBox& box, const LOGFONTW& description)
        : m_box(box), m_before(box.GetFont()), m_font(::CreateFontIndirectW(&description))
    {
        m_box.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
    }
    ~OwnFont()
    {
        m_box.SetFont(m_before);
        ::DeleteObject(m_font);
    }
    OwnFont(const OwnFont&) = delete;
    OwnFont& operator=(const OwnFont&) = delete;

private:
    CTolBox& m_box;
    CFont* m_before;
    HFONT m_font;
};

class TolBox : public testing::Test
{
protected:
    TolBox()
    {
        m_box->Insert(0, L"H6", false);
        m_box->Insert(1, L"H7", true);
    }

    BoxInWindow<CountingBox> m_box;
    WhiteCanvas m_canvas{kWidth, kHeight};
    WhiteCanvas m_expected{kWidth, kHeight};
};

TEST_F(TolBox, DrawsAListedFieldBold)
{
    DrawEntry(*m_box, m_canvas, 1, 0);
    DrawText(m_expected, L"H7", FW_BOLD, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
}

TEST_F(TolBox, DrawsAnyOtherFieldInTheWeightOfTheBoxesFont)
{
    DrawEntry(*m_box, m_canvas, 0, 0);
    DrawText(m_expected, L"H6", FW_NORMAL, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
    WhiteCanvas bold(kWidth, kHeight);
    DrawText(bold, L"H6", FW_BOLD, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_FALSE(Same(m_canvas, bold)) << "the font shows no difference between the weights";
}

TEST_F(TolBox, DrawsInTheFaceAndSizeThatItIsGiven)
{
    const OwnFont font(*m_box, OtherFont(FW_NORMAL));
    DrawEntry(*m_box, m_canvas, 0, 0);
    DrawText(m_expected, L"H6", OtherFont(FW_NORMAL), FW_NORMAL, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
    for (LOGFONTW other : {DialogFont(), OtherFont(FW_NORMAL)})
    {
        other.lfHeight = other.lfHeight == -15 ? -12 : -15;  // of the one the face, of the other the size differs
        WhiteCanvas different(kWidth, kHeight);
        DrawText(different, L"H6", other, FW_NORMAL, COLOR_WINDOW, COLOR_WINDOWTEXT);
        EXPECT_FALSE(Same(m_canvas, different)) << "the fonts show no difference";
    }
}

TEST_F(TolBox, DrawsAListedFieldBoldInTheFaceAndSizeThatItIsGiven)
{
    const OwnFont font(*m_box, OtherFont(FW_NORMAL));
    DrawEntry(*m_box, m_canvas, 1, 0);
    DrawText(m_expected, L"H7", OtherFont(FW_NORMAL), FW_BOLD, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
}

TEST_F(TolBox, DrawsEveryFieldBoldInABoldFont)
{
    const OwnFont font(*m_box, OtherFont(FW_BOLD));
    DrawEntry(*m_box, m_canvas, 0, 0);
    DrawText(m_expected, L"H6", OtherFont(FW_BOLD), FW_BOLD, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
    DrawEntry(*m_box, m_canvas, 1, 0);
    DrawText(m_expected, L"H7", OtherFont(FW_BOLD), FW_BOLD, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
}

TEST_F(TolBox, KeepsNoGraphicsObjectOfAnEntry)
{
    DrawEntry(*m_box, m_canvas, 0, 0);
    const int before = GdiObjectCount();
    for (UINT entry = 0; entry < 50; ++entry)
        DrawEntry(*m_box, m_canvas, entry % 2, entry % 3 == 0 ? ODS_SELECTED : 0);
    EXPECT_EQ(GdiObjectCount(), before);
}

TEST_F(TolBox, DrawsASelectedEntryInHighlightColours)
{
    DrawEntry(*m_box, m_canvas, 1, ODS_SELECTED);
    DrawText(m_expected, L"H7", FW_BOLD, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
    EXPECT_EQ(m_canvas.At(kItem.right - 1, kItem.bottom - 1), ::GetSysColor(COLOR_HIGHLIGHT));
}

// Systems add further bits to the state of an entry.
TEST_F(TolBox, LooksAtTheSelectedBitAlone)
{
    DrawEntry(*m_box, m_canvas, 0, ODS_SELECTED | 0x4000);
    EXPECT_EQ(m_canvas.At(kItem.right - 1, kItem.bottom - 1), ::GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(TolBox, FillsTheWholeRectangleOfAnEntry)
{
    ::PatBlt(m_canvas.Dc().GetSafeHdc(), 0, 0, kWidth, kHeight, BLACKNESS);
    DrawEntry(*m_box, m_canvas, 0, 0);
    EXPECT_EQ(m_canvas.At(kItem.right - 1, kItem.bottom - 1), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(m_canvas.At(kItem.right, kItem.bottom - 1), RGB(0, 0, 0));
    EXPECT_EQ(m_canvas.At(kItem.right - 1, kItem.bottom), RGB(0, 0, 0));
}

TEST_F(TolBox, DoesNotClipTheTextOfAnEntryToItsRectangle)
{
    const CString wide(L"MMMMMMMMMMMMMMMMMMMM");
    m_box->Insert(2, wide, false);
    DrawEntry(*m_box, m_canvas, 2, 0);
    DrawText(m_expected, wide, FW_NORMAL, COLOR_WINDOW, COLOR_WINDOWTEXT);
    EXPECT_TRUE(Same(m_canvas, m_expected));
    bool ink = false;
    for (int y = kItem.top; y < kItem.bottom; ++y)
        for (int x = kItem.right; x < kWidth; ++x)
            ink |= m_canvas.At(x, y) != RGB(255, 255, 255);
    EXPECT_TRUE(ink) << "right of the rectangle";
}

TEST_F(TolBox, PutsTheFontOfTheContextBack)
{
    const HGDIOBJ before = ::GetCurrentObject(m_canvas.Dc().GetSafeHdc(), OBJ_FONT);
    DrawEntry(*m_box, m_canvas, 1, 0);
    EXPECT_EQ(::GetCurrentObject(m_canvas.Dc().GetSafeHdc(), OBJ_FONT), before);
}

TEST_F(TolBox, DrawsTheEntryOfADrawingMessage)
{
    DRAWITEMSTRUCT request = Request(m_canvas.Dc().GetSafeHdc(), 1, 0);
    m_box->SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(m_box->drawn, 1);
    EXPECT_EQ(m_box->leftToTheSystem, 0);
}

TEST_F(TolBox, LeavesTheEditPartToTheSystem)
{
    DRAWITEMSTRUCT request = Request(m_canvas.Dc().GetSafeHdc(), 1, ODS_COMBOBOXEDIT | ODS_SELECTED);
    request.hwndItem = m_box->GetComboBoxCtrl()->m_hWnd;
    m_box->SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(m_box->drawn, 0);
    EXPECT_EQ(m_box->leftToTheSystem, 1);
}

TEST_F(TolBox, DrawsTheEntriesOfItsListThatAreSeen)
{
    m_box->ShowDropDown();
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(m_box->GetComboBoxCtrl()->m_hWnd, &info);
    ::UpdateWindow(info.hwndList);
    EXPECT_GE(m_box->drawn, 2);
    m_box->ShowDropDown(FALSE);
}

TEST_F(TolBox, ReadsTheCodeOfAnEntry)
{
    EXPECT_EQ(m_box->Code(0), L"H6");
    EXPECT_EQ(m_box->Code(1), L"H7");
    EXPECT_EQ(m_box->Code(2), L"");
}

// The control may name its own text instead of filling the buffer that it is given.
TEST_F(TolBox, ReadsACodeThatTheControlKeepsElsewhere)
{
    m_box->ownText = L"js7";
    EXPECT_EQ(m_box->Code(0), L"js7");
    m_box->ownText.assign(300, L'x');
    EXPECT_EQ(m_box->Code(0).GetLength(), 255);
}

TEST_F(TolBox, ReadsAtMost255CharactersOfACode)
{
    m_box->Insert(2, CString(L'A', 300), false);
    EXPECT_EQ(m_box->Code(2), CString(L'A', 255));
}

TEST_F(TolBox, InsertsAnEntryBehindTheLastOne)
{
    EXPECT_EQ(m_box->Insert(2, L"H5", false), 2);
    EXPECT_EQ(m_box.Codes(), (std::vector<CString>{L"H6", L"H7", L"H5"}));
}

TEST_F(TolBox, KeepsOneAsTheDataOfAListedEntryAndZeroOfAnyOther)
{
    EXPECT_EQ(m_box->GetItemData(0), 0U);
    EXPECT_EQ(m_box->GetItemData(1), 1U);
}

TEST_F(TolBox, WritesAndReadsItsEditPart)
{
    m_box->SetEditText(L"g6");
    EXPECT_EQ(m_box->EditText(), L"g6");
    m_box->SetEditText(L"");
    EXPECT_EQ(m_box->EditText(), L"");
}

}  // namespace
