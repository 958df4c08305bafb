#include "graphics/gdi_object.h"

#include "graphics/dc.h"
#include "window/handle_map.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace
{
auto& GdiObjects()
{
    static auto& map = *new HandleMap<HGDIOBJ, CGdiObject, &CGdiObject::m_hObject>;
    return map;
}

CGdiObject* NewObjectFor(HGDIOBJ object)
{
    switch (::GetObjectType(object))
    {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}
}  // namespace

CGdiObject::CGdiObject() = default;

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ object)
{
    return GdiObjects().Find(object, &NewObjectFor);
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    ASSERT(m_hObject == nullptr);
    if (object == nullptr)
        return FALSE;
    GdiObjects().RemoveTemporary(object);  // it stood for an object that had the same handle before
    GdiObjects().AddPermanent(object, this);
    m_hObject = object;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ object = m_hObject;
    if (object != nullptr)
        GdiObjects().RemovePermanent(object, this);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject()
{
    const HGDIOBJ object = Detach();
    return object != nullptr && ::DeleteObject(object);
}

CPen::CPen() = default;
CPen::~CPen() = default;

CPen::CPen(int style, int width, COLORREF colour)
{
    if (!CreatePen(style, width, colour))
        AfxThrowResourceException();
}

CBrush::CBrush() = default;
CBrush::~CBrush() = default;

CBrush::CBrush(COLORREF colour)
{
    if (!CreateSolidBrush(colour))
        AfxThrowResourceException();
}

CFont::CFont() = default;
CFont::~CFont() = default;

CBitmap::CBitmap() = default;
CBitmap::~CBitmap() = default;

BOOL CBitmap::LoadBitmap(LPCWSTR name)
{
    return Attach(::LoadBitmapW(AfxFindResourceHandle(name, RT_BITMAP), name));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

CRgn::CRgn() = default;
CRgn::~CRgn() = default;
