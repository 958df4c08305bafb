#include "tolerance/tol_box.h"

#include <array>

#include "platform/gdi/scoped_select.h"

BEGIN_MESSAGE_MAP(CTolBox, CComboBoxEx)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

namespace
{

constexpr int kLongestCode = 255;  // characters that are read back of an entry

/// The box's font, bold for a listed field.
LOGFONTW EntryFont(CFont* boxFont, bool listed)
{
    LOGFONTW description{};
    if (boxFont != nullptr)
        boxFont->GetLogFont(&description);
    if (listed)
        description.lfWeight = FW_BOLD;
    return description;
}

}  // namespace

CTolBox::~CTolBox() = default;

void CTolBox::SetFieldStyles()
{
    constexpr DWORD styles = CBES_EX_NOEDITIMAGE | CBES_EX_NOEDITIMAGEINDENT | CBES_EX_CASESENSITIVE;
    SetExtendedStyle(styles, styles);
}

int CTolBox::Insert(int index, const CString& code, bool listed)
{
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_TEXT | CBEIF_LPARAM;
    item.iItem = index;
    item.pszText = const_cast<LPWSTR>(code.GetString());  // only read: the structure serves both directions
    item.lParam = listed ? 1 : 0;
    return InsertItem(&item);
}

CString CTolBox::Code(int index) const
{
    std::array<wchar_t, kLongestCode + 1> text{};
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_TEXT | CBEIF_LPARAM;
    item.iItem = index;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    GetItem(&item);
    return CString(item.pszText).Left(kLongestCode);
}

bool CTolBox::IsListed(int index) const
{
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_LPARAM;
    item.iItem = index;
    GetItem(&item);
    return item.lParam != 0;
}

CString CTolBox::EditText() const
{
    CString text;
    GetWindowText(text);
    return text;
}

void CTolBox::SetEditText(const CString& text)
{
    if (EditText() != text)
        SetWindowText(text);
}

// The inner combo box asks the box for both of its parts. The edit part is the system's, so it is never bold.
void CTolBox::OnDrawItem(int /*controlId*/, LPDRAWITEMSTRUCT request)
{
    if ((request->itemState & ODS_COMBOBOXEDIT) == 0)
        DrawItem(request);
    else
        Default();
}

void CTolBox::DrawItem(LPDRAWITEMSTRUCT request)
{
    CDC& dc = *CDC::FromHandle(request->hDC);
    const bool selected = (request->itemState & ODS_SELECTED) != 0;
    dc.SetBkColor(::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    dc.SetTextColor(::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));

    const int index = static_cast<int>(request->itemID);
    const LOGFONTW description = EntryFont(GetFont(), IsListed(index));
    CFont font;
    font.CreateFontIndirect(&description);
    const ScopedSelect selectedFont(dc, font);
    dc.ExtTextOut(request->rcItem.left, request->rcItem.top, ETO_OPAQUE, &request->rcItem, Code(index), nullptr);
}
