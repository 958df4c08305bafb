#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

#include <afxwin.h>

/// A picture, row by row from the top; a colour is 0x00RRGGBB.
struct Pixels
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> colours;

    std::uint32_t At(int x, int y) const { return colours[static_cast<std::size_t>(y * width + x)]; }
    int Count(std::uint32_t colour) const
    {
        return static_cast<int>(std::count(colours.begin(), colours.end(), colour));
    }
};

/// What a visible window shows in its client area now; nothing is repainted for it.
Pixels ShownPixels(HWND window);

/// What is painted on a white area.
Pixels PaintedPixels(int width, int height, const std::function<void(CDC&)>& paint);

/// What is painted on a white area as large as a window's client area, with texts in the window's font.
Pixels PaintedLike(HWND window, const std::function<void(CDC&)>& paint);

/// A bitmap of the current resource module; empty when there is none.
Pixels BitmapPixels(UINT id);

/// How many pixels of the smaller of two areas, both from the top left, have another colour in the other picture.
int DifferentPixels(const Pixels& left, const Pixels& right);

/// Paints over the client area, as a window does that covers it.
void MakeDirty(HWND window);
