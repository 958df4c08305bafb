#pragma once

#include "graphics/gdi_object.h"

/// A device context, deleted with this object. FromHandle makes temporary objects, which delete nothing, until the
/// thread is idle.
///
/// SelectObject gives the former object; select it again before an object of yours is deleted.
class FRAMEWORK_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    CDC();
    ~CDC() override;

    HDC m_hDC = nullptr;

    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    static CDC* FromHandle(HDC dc);
    /// Takes the context over; zero when it is null. This object must not have one.
    BOOL Attach(HDC dc);
    HDC Detach();

    BOOL CreateCompatibleDC(CDC* dc) { return Attach(::CreateCompatibleDC(dc == nullptr ? nullptr : dc->m_hDC)); }
    BOOL DeleteDC();
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }

    // selected objects
    CPen* SelectObject(CPen* pen) { return static_cast<CPen*>(Select(pen)); }
    CBrush* SelectObject(CBrush* brush) { return static_cast<CBrush*>(Select(brush)); }
    CFont* SelectObject(CFont* font) { return static_cast<CFont*>(Select(font)); }
    CBitmap* SelectObject(CBitmap* bitmap) { return static_cast<CBitmap*>(Select(bitmap)); }
    /// @return  the kind of the region
    int SelectObject(CRgn* region) { return ::SelectClipRgn(m_hDC, region == nullptr ? nullptr : HRGN(*region)); }
    /// As the other kinds; for what was kept as a plain graphics object.
    CGdiObject* SelectObject(CGdiObject* object) { return Select(object); }

    // colours and modes
    COLORREF SetBkColor(COLORREF colour) { return ::SetBkColor(m_hDC, colour); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    COLORREF SetTextColor(COLORREF colour) { return ::SetTextColor(m_hDC, colour); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    UINT SetTextAlign(UINT flags) { return ::SetTextAlign(m_hDC, flags); }

    // clipping
    int IntersectClipRect(LPCRECT rect)
    {
        return ::IntersectClipRect(m_hDC, rect->left, rect->top, rect->right, rect->bottom);
    }
    int ExcludeClipRect(LPCRECT rect)
    {
        return ::ExcludeClipRect(m_hDC, rect->left, rect->top, rect->right, rect->bottom);
    }

    // lines and areas
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
    void FillSolidRect(LPCRECT rect, COLORREF colour);
    void FillSolidRect(int x, int y, int width, int height, COLORREF colour);
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state) { return ::DrawFrameControl(m_hDC, rect, type, state); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF colour) { return ::SetPixel(m_hDC, x, y, colour); }

    // bitmaps
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation)
    {
        return ::BitBlt(m_hDC, x, y, width, height, source == nullptr ? nullptr : source->m_hDC, sourceX, sourceY,
                        operation);
    }

    // text
    BOOL TextOut(int x, int y, LPCWSTR text, int length) { return ::TextOutW(m_hDC, x, y, text, length); }
    BOOL TextOut(int x, int y, const CString& text) { return TextOut(x, y, text, text.GetLength()); }
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCWSTR text, UINT length, LPINT widths)
    {
        return ::ExtTextOutW(m_hDC, x, y, options, rect, text, length, widths);
    }
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths)
    {
        return ExtTextOut(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), widths);
    }
    int DrawText(LPCWSTR text, int length, LPRECT rect, UINT format)
    {
        return ::DrawTextW(m_hDC, text, length, rect, format);
    }
    int DrawText(const CString& text, LPRECT rect, UINT format)
    {
        return DrawText(text, text.GetLength(), rect, format);
    }
    CSize GetTextExtent(LPCWSTR text, int length) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }
    BOOL GetTextMetrics(TEXTMETRIC* metrics) const { return ::GetTextMetricsW(m_hDC, metrics); }

private:
    CGdiObject* Select(CGdiObject* object);
};
