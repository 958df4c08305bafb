#pragma once

#include <vector>

#include <windows.h>

/// While one is alive, the process can make no further graphics object: pens hold every handle that was left.
class GdiExhaustion
{
public:
    GdiExhaustion()
    {
        while (HPEN pen = ::CreatePen(PS_SOLID, 1, static_cast<COLORREF>(m_pens.size())))
            m_pens.push_back(pen);
    }
    ~GdiExhaustion()
    {
        for (const HPEN pen : m_pens)
            ::DeleteObject(pen);
    }
    GdiExhaustion(const GdiExhaustion&) = delete;
    GdiExhaustion& operator=(const GdiExhaustion&) = delete;

private:
    std::vector<HPEN> m_pens;
};
