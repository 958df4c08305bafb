#pragma once

#include <afxcmn.h>

/// Keeps a visible list from painting until the end of a scope. A hidden one is left alone: switching its drawing back
/// on would show it.
class PaintingPause
{
public:
    explicit PaintingPause(CListCtrl& list) : m_list(list), m_paused(list.IsWindowVisible() != FALSE)
    {
        if (m_paused)
            m_list.SetRedraw(FALSE);
    }
    ~PaintingPause()
    {
        if (m_paused)
        {
            m_list.SetRedraw(TRUE);
            m_list.Invalidate();
        }
    }
    PaintingPause(const PaintingPause&) = delete;
    PaintingPause& operator=(const PaintingPause&) = delete;

private:
    CListCtrl& m_list;
    bool m_paused;
};
