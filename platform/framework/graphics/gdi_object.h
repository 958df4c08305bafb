#pragma once

#include "afx.h"

/// A GDI object, deleted with this one. FromHandle makes temporary objects, which delete nothing, until the thread is
/// idle.
class FRAMEWORK_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject();
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    static CGdiObject* FromHandle(HGDIOBJ object);
    /// Takes the object over; zero when it is null. This object must not have one.
    BOOL Attach(HGDIOBJ object);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int size, LPVOID buffer) const { return ::GetObjectW(m_hObject, size, buffer); }
};

class FRAMEWORK_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    /// Raises CResourceException when Windows refuses the pen.
    CPen(int style, int width, COLORREF colour);
    ~CPen() override;

    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* FromHandle(HPEN pen) { return static_cast<CPen*>(CGdiObject::FromHandle(pen)); }
    BOOL CreatePen(int style, int width, COLORREF colour) { return Attach(::CreatePen(style, width, colour)); }
};

class FRAMEWORK_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    /// Raises CResourceException when Windows refuses the brush.
    explicit CBrush(COLORREF colour);
    ~CBrush() override;

    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* FromHandle(HBRUSH brush) { return static_cast<CBrush*>(CGdiObject::FromHandle(brush)); }
    BOOL CreateSolidBrush(COLORREF colour) { return Attach(::CreateSolidBrush(colour)); }
};

class FRAMEWORK_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont();
    ~CFont() override;

    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* FromHandle(HFONT font) { return static_cast<CFont*>(CGdiObject::FromHandle(font)); }
    BOOL CreateFontIndirect(const LOGFONT* description) { return Attach(::CreateFontIndirectW(description)); }
    int GetLogFont(LOGFONT* description) const { return GetObject(sizeof(LOGFONT), description); }
};

class FRAMEWORK_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();
    ~CBitmap() override;

    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* FromHandle(HBITMAP bitmap) { return static_cast<CBitmap*>(CGdiObject::FromHandle(bitmap)); }
    /// From the current resource module.
    BOOL LoadBitmap(UINT id) { return LoadBitmap(MAKEINTRESOURCEW(id)); }
    BOOL LoadBitmap(LPCWSTR name);
    BOOL CreateCompatibleBitmap(class CDC* dc, int width, int height);
    int GetBitmap(BITMAP* description) const { return GetObject(sizeof(BITMAP), description); }
};

class FRAMEWORK_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();
    ~CRgn() override;

    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* FromHandle(HRGN region) { return static_cast<CRgn*>(CGdiObject::FromHandle(region)); }
    BOOL CreatePolygonRgn(const POINT* points, int count, int mode)
    {
        return Attach(::CreatePolygonRgn(points, count, mode));
    }
};

/// The GDI object of an object; null for a null pointer.
inline HGDIOBJ HandleOf(const CGdiObject* object)
{
    return object == nullptr ? nullptr : object->m_hObject;
}
