#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <afxwin.h>

#include "platform/gdi/scoped_select.h"

/// Pixels as 0xRRGGBB, row by row from the top.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
    std::uint32_t At(int x, int y) const
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    /// The part inside the rectangle, cut at the picture's edges.
    Picture Part(const RECT& area) const;
    /// The colour that most pixels have; 0 for an empty picture.
    std::uint32_t CommonColour() const;
};

/// A picture that is drawn into: its DC, and its pixels afterwards.
class DrawnPicture
{
public:
    /// Filled with the colour; throws StepFailure when Windows has no bitmap of that size.
    DrawnPicture(int width, int height, std::uint32_t colour);

    CDC& Dc() { return m_dc; }
    Picture Take() const;

private:
    int m_width;
    int m_height;
    CBitmap m_bitmap;
    const std::uint32_t* m_bits = nullptr;  // the bitmap's
    CDC m_dc;
    std::optional<ScopedSelect> m_selected;  // the bitmap, from when it is there
};

std::uint32_t ToRgb(COLORREF colour);
COLORREF ToColorRef(std::uint32_t rgb);

/// What the window shows now, with its children: its client area, or with its border and caption. A window that covers
/// it is not in the picture.
Picture ClientPicture(HWND window);
Picture WholePicture(HWND window);

/// A bitmap's pixels; an empty picture for null.
Picture BitmapPicture(HBITMAP bitmap);

/// Bitmap resource of the library; an empty picture when there is none with that number.
Picture ResourcePicture(HMODULE library, int id);
