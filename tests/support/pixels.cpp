#include "tests/support/pixels.h"

namespace
{

constexpr COLORREF kDirt = RGB(200, 0, 200);
constexpr std::uint32_t kColour = 0xFFFFFF;

/// A bitmap in memory with a context to paint on it.
class Canvas
{
public:
    Canvas(int width, int height) : m_width(width), m_height(height)
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc.CreateCompatibleDC(nullptr);
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        m_former = ::SelectObject(m_dc.m_hDC, m_bitmap);
        ::PatBlt(m_dc.m_hDC, 0, 0, width, height, WHITENESS);
    }
    ~Canvas()
    {
        ::SelectObject(m_dc.m_hDC, m_former);
        ::DeleteObject(m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC& Dc() { return m_dc; }

    Pixels Read() const
    {
        ::GdiFlush();
        const auto* const first = static_cast<const std::uint32_t*>(m_bits);
        Pixels pixels{.width = m_width, .height = m_height, .colours = {first, first + m_width * m_height}};
        for (std::uint32_t& colour : pixels.colours)
            colour &= kColour;
        return pixels;
    }

private:
    int m_width;
    int m_height;
    CDC m_dc;
    void* m_bits = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_former = nullptr;
};

}  // namespace

Pixels ShownPixels(HWND window)
{
    RECT area{};
    ::GetClientRect(window, &area);
    Canvas canvas(area.right, area.bottom);
    const HDC source = ::GetDC(window);
    ::BitBlt(canvas.Dc().m_hDC, 0, 0, area.right, area.bottom, source, 0, 0, SRCCOPY);
    ::ReleaseDC(window, source);
    return canvas.Read();
}

Pixels PaintedPixels(int width, int height, const std::function<void(CDC&)>& paint)
{
    Canvas canvas(width, height);
    paint(canvas.Dc());
    return canvas.Read();
}

Pixels PaintedLike(HWND window, const std::function<void(CDC&)>& paint)
{
    RECT area{};
    ::GetClientRect(window, &area);
    return PaintedPixels(area.right, area.bottom, [&](CDC& dc) {
        const auto font = reinterpret_cast<HGDIOBJ>(::SendMessageW(window, WM_GETFONT, 0, 0));
        const HGDIOBJ former = ::SelectObject(dc.m_hDC, font != nullptr ? font : ::GetStockObject(SYSTEM_FONT));
        paint(dc);
        ::SelectObject(dc.m_hDC, former);
    });
}

Pixels BitmapPixels(UINT id)
{
    CBitmap bitmap;
    bitmap.LoadBitmap(id);
    BITMAP size{};
    bitmap.GetBitmap(&size);
    return PaintedPixels(size.bmWidth, size.bmHeight, [&](CDC& dc) {
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        const HGDIOBJ former = ::SelectObject(memory.m_hDC, bitmap.m_hObject);
        dc.BitBlt(0, 0, size.bmWidth, size.bmHeight, &memory, 0, 0, SRCCOPY);
        ::SelectObject(memory.m_hDC, former);
    });
}

int DifferentPixels(const Pixels& left, const Pixels& right)
{
    int count = 0;
    for (int y = 0; y < std::min(left.height, right.height); ++y)
        for (int x = 0; x < std::min(left.width, right.width); ++x)
            count += left.At(x, y) != right.At(x, y) ? 1 : 0;
    return count;
}

void MakeDirty(HWND window)
{
    RECT area{};
    ::GetClientRect(window, &area);
    const HDC dc = ::GetDC(window);
    const HBRUSH brush = ::CreateSolidBrush(kDirt);
    ::FillRect(dc, &area, brush);
    ::DeleteObject(brush);
    ::ReleaseDC(window, dc);
}
