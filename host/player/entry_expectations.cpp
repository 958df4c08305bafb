#include <optional>
#include <string>
#include <vector>

#include "host/player/picture.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"
#include "platform/gdi/scoped_select.h"

#include <commctrl.h>

namespace
{

constexpr std::size_t kLongestEntry = 4096;
constexpr int kPictureWidth = 600;
constexpr int kPictureHeight = 40;

bool IsExtended(HWND combo)
{
    return WindowClass(combo) == WC_COMBOBOXEXW;
}

std::string EntryText(HWND combo, int entry)
{
    std::vector<wchar_t> text(kLongestEntry);
    if (IsExtended(combo))
    {
        COMBOBOXEXITEMW item = {};
        item.mask = CBEIF_TEXT;
        item.iItem = entry;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        SendMessageW(combo, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return ToUtf8(item.pszText);
    }
    const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(entry), 0);
    if (length < 0 || static_cast<std::size_t>(length) >= text.size())
        throw StepFailure("the entry's text can't be read");
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(text.data()));
    return ToUtf8(text.data());
}

// What is drawn of a text, without the empty ground around it: true is ink.
struct Ink
{
    int width = 0;
    int height = 0;
    std::vector<bool> pixels;

    bool operator==(const Ink&) const = default;
};

Ink InkOf(const Picture& picture)
{
    const std::uint32_t ground = picture.CommonColour();
    RECT bounds{picture.width, picture.height, 0, 0};
    for (int y = 0; y < picture.height; ++y)
    {
        for (int x = 0; x < picture.width; ++x)
        {
            if (picture.At(x, y) == ground)
                continue;
            const RECT pixel{x, y, x + 1, y + 1};
            bounds = {std::min(bounds.left, pixel.left), std::min(bounds.top, pixel.top),
                      std::max(bounds.right, pixel.right), std::max(bounds.bottom, pixel.bottom)};
        }
    }
    const Picture part = picture.Part(bounds);
    Ink ink{part.width, part.height, {}};
    for (const std::uint32_t pixel : part.pixels)
        ink.pixels.push_back(pixel != ground);
    return ink;
}

LOGFONTW FontOf(HWND combo)
{
    auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(combo, WM_GETFONT, 0, 0));
    if (font == nullptr)
        font = GetStockObject(SYSTEM_FONT);
    LOGFONTW description = {};
    GetObjectW(font, sizeof(description), &description);
    return description;
}

Ink TextInk(LOGFONTW description, LONG weight, const std::wstring& text)
{
    description.lfWeight = weight;
    DrawnPicture picture(kPictureWidth, kPictureHeight, ToRgb(GetSysColor(COLOR_WINDOW)));
    CDC& dc = picture.Dc();
    CFont font;
    font.CreateFontIndirect(&description);
    const ScopedSelect selected(dc, font);
    dc.SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
    dc.SetBkColor(GetSysColor(COLOR_WINDOW));
    dc.ExtTextOut(0, 0, 0, nullptr, text.c_str(), static_cast<UINT>(text.size()), nullptr);
    return InkOf(picture.Take());
}

// The entry as the combo box's owner draws it when it is asked to, into a picture instead of the list.
Ink OwnerDrawnInk(HWND combo, HWND inner, int entry)
{
    DrawnPicture picture(kPictureWidth, kPictureHeight, ToRgb(GetSysColor(COLOR_WINDOW)));
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(combo, WM_GETFONT, 0, 0));
    const ScopedSelect selected(picture.Dc(), font);
    DRAWITEMSTRUCT request = {};
    request.CtlType = ODT_COMBOBOX;
    request.CtlID = static_cast<UINT>(GetDlgCtrlID(inner));
    request.itemID = static_cast<UINT>(entry);
    request.itemAction = ODA_DRAWENTIRE;
    request.hwndItem = inner;
    request.hDC = picture.Dc();
    request.rcItem = {0, 0, kPictureWidth, kPictureHeight};
    request.itemData = static_cast<ULONG_PTR>(SendMessageW(inner, CB_GETITEMDATA, static_cast<WPARAM>(entry), 0));
    SendMessageW(GetParent(inner), WM_DRAWITEM, request.CtlID, reinterpret_cast<LPARAM>(&request));
    return InkOf(picture.Take());
}

std::string MannerOf(HWND combo, int entry)
{
    const LOGFONTW font = FontOf(combo);
    const HWND inner =
        IsExtended(combo) ? reinterpret_cast<HWND>(SendMessageW(combo, CBEM_GETCOMBOCONTROL, 0, 0)) : combo;
    if ((GetWindowLongPtrW(inner, GWL_STYLE) & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) == 0)
        return font.lfWeight >= FW_BOLD ? "bold" : "plain";
    const std::wstring text = ToWide(EntryText(combo, entry));
    const Ink drawn = OwnerDrawnInk(combo, inner, entry);
    if (drawn == TextInk(font, FW_BOLD, text))
        return "bold";
    return drawn == TextInk(font, font.lfWeight, text) ? "plain" : "neither bold nor plain";
}

void ExpectEntry(const StepContext& context)
{
    const Step& step = context.step;
    const HWND combo = RequireControl(context.window, step.control);
    if (!IsExtended(combo) && WindowClass(combo) != WC_COMBOBOXW)
        throw StepFailure("the control is no combo box but a " + ToUtf8(WindowClass(combo)));
    const LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
    if (*step.number < 0 || *step.number >= count)
        throw StepFailure("entry " + std::to_string(*step.number), std::to_string(count) + " entries");

    const int entry = static_cast<int>(*step.number);
    std::string expected = Quoted(ResolveText(*step.text));
    std::string found = Quoted(EntryText(combo, entry));
    if (step.second)
    {
        expected += " " + std::to_string(*step.second);
        found += " " + std::to_string(SendMessageW(combo, CB_GETITEMDATA, static_cast<WPARAM>(entry), 0));
    }
    if (!step.choices.empty())
    {
        expected += " " + step.choices.front();
        found += " " + MannerOf(combo, entry);
    }
    if (expected != found)
        throw StepFailure(expected, found);
}

constexpr StepHandler kEntryExpectations[] = {
    {.name = "expect-entry", .atOnce = ExpectEntry},
};

}  // namespace

std::span<const StepHandler> EntryExpectations()
{
    return kEntryExpectations;
}
