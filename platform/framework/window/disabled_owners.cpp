#include "window/disabled_owners.h"

void DisabledOwners::Disable(HWND owner)
{
    m_restored = false;
    HWND window = owner == nullptr ? nullptr : ::GetAncestor(owner, GA_ROOT);
    while (window != nullptr && !m_restored)
    {
        if (::IsWindowEnabled(window))
        {
            m_disabled.push_back(window);
            ::EnableWindow(window, FALSE);
        }
        window = ::GetWindow(window, GW_OWNER);
    }
}

void DisabledOwners::Restore()
{
    m_restored = true;
    while (!m_disabled.empty())
    {
        const HWND window = m_disabled.back();
        m_disabled.pop_back();
        if (::IsWindow(window))
            ::EnableWindow(window, TRUE);
    }
}
