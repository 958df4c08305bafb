#pragma once

#include <afxwin.h>

/// Puts the whole state of a DC back at the end of a scope: selected objects, colours, alignment, clipping. The DC must
/// outlive it.
class ScopedState
{
public:
    explicit ScopedState(CDC& dc) : m_dc(dc.GetSafeHdc()), m_state(::SaveDC(m_dc)) {}
    ~ScopedState() { ::RestoreDC(m_dc, m_state); }
    ScopedState(const ScopedState&) = delete;
    ScopedState& operator=(const ScopedState&) = delete;

private:
    HDC m_dc;
    int m_state;
};
