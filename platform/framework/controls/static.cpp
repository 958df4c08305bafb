#include "controls/static.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CStatic, CWnd)

namespace
{
const ControlClass staticClass(WC_STATIC, RUNTIME_CLASS(CStatic));
}

CStatic::CStatic() = default;
CStatic::~CStatic() = default;

BOOL CStatic::Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_STATIC, text, style, rect, parent, id);
}
