#include "host/player/picture.h"

#include <algorithm>
#include <unordered_map>

#include "host/player/step_failure.h"

namespace
{

constexpr std::uint32_t kRgbMask = 0xFFFFFF;

// True where the system keeps no picture of its own for each window: there the window's DC reads what is shown.
bool IsEmulated()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

// A window's DC of the cache, which neither children nor neighbours cut; none where Windows has none to give.
class CachedDc : public CDC
{
public:
    CachedDc(HWND window, DWORD flags) : m_window(window) { Attach(GetDCEx(window, nullptr, DCX_CACHE | flags)); }
    ~CachedDc() override { ReleaseDC(m_window, Detach()); }

private:
    HWND m_window;
};

// The window with its children.
Picture FromWindow(HWND window, int width, int height, DWORD whichDc)
{
    DrawnPicture picture(width, height, 0);
    CachedDc source(window, whichDc);
    picture.Dc().BitBlt(0, 0, width, height, &source, 0, 0, SRCCOPY);
    return picture.Take();
}

}  // namespace

Picture Picture::Part(const RECT& area) const
{
    const RECT cut{std::max<LONG>(area.left, 0), std::max<LONG>(area.top, 0), std::min<LONG>(area.right, width),
                   std::min<LONG>(area.bottom, height)};
    Picture part;
    if (cut.left >= cut.right || cut.top >= cut.bottom)
        return part;
    part.width = cut.right - cut.left;
    part.height = cut.bottom - cut.top;
    for (int y = cut.top; y < cut.bottom; ++y)
    {
        for (int x = cut.left; x < cut.right; ++x)
            part.pixels.push_back(At(x, y));
    }
    return part;
}

std::uint32_t Picture::CommonColour() const
{
    std::unordered_map<std::uint32_t, int> counts;
    std::uint32_t common = 0;
    int most = 0;
    for (const std::uint32_t pixel : pixels)
    {
        const int count = ++counts[pixel];
        if (count > most)
        {
            most = count;
            common = pixel;
        }
    }
    return common;
}

DrawnPicture::DrawnPicture(int width, int height, std::uint32_t colour)
    : m_width(std::max(width, 1)), m_height(std::max(height, 1))
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = m_width;
    info.bmiHeader.biHeight = -m_height;  // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    if (!m_bitmap.Attach(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)))
        throw StepFailure("Windows has no memory for a picture");
    m_bits = static_cast<const std::uint32_t*>(bits);
    m_dc.CreateCompatibleDC(nullptr);
    m_selected.emplace(m_dc, m_bitmap);

    CBrush brush(ToColorRef(colour));
    const RECT area{0, 0, m_width, m_height};
    m_dc.FillRect(&area, &brush);
}

Picture DrawnPicture::Take() const
{
    GdiFlush();
    Picture picture{m_width, m_height, {}};
    const std::size_t count = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    picture.pixels.assign(m_bits, m_bits + count);
    for (std::uint32_t& pixel : picture.pixels)
        pixel &= kRgbMask;
    return picture;
}

std::uint32_t ToRgb(COLORREF colour)
{
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 | static_cast<std::uint32_t>(GetGValue(colour)) << 8 |
           static_cast<std::uint32_t>(GetBValue(colour));
}

COLORREF ToColorRef(std::uint32_t rgb)
{
    return RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF);
}

Picture ClientPicture(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    return FromWindow(window, client.right, client.bottom, 0);
}

Picture WholePicture(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    if (IsEmulated())
        return FromWindow(window, width, height, DCX_WINDOW);
    // The frame is composed by the system: it alone has the whole picture.
    DrawnPicture picture(width, height, 0);
    PrintWindow(window, picture.Dc(), PW_RENDERFULLCONTENT);
    return picture.Take();
}

Picture BitmapPicture(HBITMAP bitmap)
{
    BITMAP size = {};
    if (bitmap == nullptr || GetObjectW(bitmap, sizeof(size), &size) == 0)
        return {};
    DrawnPicture picture(size.bmWidth, size.bmHeight, 0);
    CDC source;
    source.CreateCompatibleDC(nullptr);
    const ScopedSelect selected(source, bitmap);
    picture.Dc().BitBlt(0, 0, size.bmWidth, size.bmHeight, &source, 0, 0, SRCCOPY);
    return picture.Take();
}

Picture ResourcePicture(HMODULE library, int id)
{
    CBitmap bitmap;
    bitmap.Attach(LoadImageW(library, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    return BitmapPicture(bitmap);
}
