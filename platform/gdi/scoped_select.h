#pragma once

#include <afxwin.h>

/// Selects an object until the end of a scope, then puts the former one back. DC and object must outlive it.
class ScopedSelect
{
public:
    ScopedSelect(CDC& dc, CGdiObject& object) : ScopedSelect(dc, object.GetSafeHandle()) {}
    ScopedSelect(CDC& dc, HGDIOBJ object) : m_dc(dc.GetSafeHdc()), m_former(::SelectObject(m_dc, object)) {}
    ~ScopedSelect() { ::SelectObject(m_dc, m_former); }
    ScopedSelect(const ScopedSelect&) = delete;
    ScopedSelect& operator=(const ScopedSelect&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_former;
};
