#pragma once

#include <afxwin.h>

#include "platform/gdi/scoped_select.h"

/// A white picture in memory that a test draws on and reads pixel by pixel.
class WhiteCanvas
{
public:
    WhiteCanvas(int width, int height) : m_width(width), m_height(height)
    {
        m_dc.CreateCompatibleDC(nullptr);
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_former = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap);
        ::PatBlt(m_dc.GetSafeHdc(), 0, 0, width, height, WHITENESS);
    }
    ~WhiteCanvas()
    {
        ::SelectObject(m_dc.GetSafeHdc(), m_former);
        ::DeleteObject(m_bitmap);
    }
    WhiteCanvas(const WhiteCanvas&) = delete;
    WhiteCanvas& operator=(const WhiteCanvas&) = delete;

    CDC& Dc() { return m_dc; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    COLORREF At(int x, int y) const { return ::GetPixel(m_dc.GetSafeHdc(), x, y); }

    /// How many pixels have a colour.
    int Count(COLORREF color) const
    {
        int count = 0;
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                count += At(x, y) == color ? 1 : 0;
        return count;
    }

    /// The smallest rectangle around everything that isn't white; empty on a white canvas.
    CRect Drawn() const
    {
        CRect drawn(m_width, m_height, 0, 0);
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                if (At(x, y) != RGB(255, 255, 255))
                {
                    drawn.left = x < drawn.left ? x : drawn.left;
                    drawn.top = y < drawn.top ? y : drawn.top;
                    drawn.right = x >= drawn.right ? x + 1 : drawn.right;
                    drawn.bottom = y >= drawn.bottom ? y + 1 : drawn.bottom;
                }
        return drawn.right > 0 ? drawn : CRect(0, 0, 0, 0);
    }

private:
    int m_width;
    int m_height;
    CDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_former;
};
