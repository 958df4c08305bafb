#include "window/disabled_owners.h"

#include <algorithm>
#include <utility>

namespace
{
DisabledOwners* innermostHolder = nullptr;
}

DisabledOwners::DisabledOwners() : m_outer(std::exchange(innermostHolder, this)) {}

DisabledOwners::~DisabledOwners()
{
    Restore();
    innermostHolder = m_outer;
}

void DisabledOwners::Disable(HWND owner)
{
    m_restored = false;
    HWND window = owner == nullptr ? nullptr : ::GetAncestor(owner, GA_ROOT);
    while (window != nullptr && !m_restored)
    {
        if (::IsWindowEnabled(window))
        {
            LetGoEverywhere(window);  // whoever disabled it before, somebody has enabled it since
            m_windows.push_back(window);
            ::EnableWindow(window, FALSE);
        }
        else if (HolderOf(window) != nullptr)
        {
            m_windows.push_back(window);
        }
        window = ::GetWindow(window, GW_OWNER);
    }
}

void DisabledOwners::DisableAbove(HWND window)
{
    m_below = window;
    Disable(window == nullptr ? nullptr : ::GetWindow(window, GW_OWNER));
}

void DisabledOwners::Restore()
{
    m_restored = true;
    m_below = nullptr;
    while (!m_windows.empty())
    {
        const HWND window = m_windows.back();
        m_windows.pop_back();
        if (HolderOf(window) == nullptr && ::IsWindow(window))
            ::EnableWindow(window, TRUE);
    }
}

// The windows are told, and may end any of the holders: each time it begins anew.
void DisabledOwners::RestoreBelow(HWND window)
{
    while (DisabledOwners* const holder = HolderOf(window))
        holder->Restore();
    while (DisabledOwners* const holder = HolderAbove(window))
        holder->Restore();
}

DisabledOwners* DisabledOwners::HolderAbove(HWND window)
{
    for (DisabledOwners* holder = innermostHolder; holder != nullptr; holder = holder->m_outer)
        if (holder->m_below == window)
            return holder;
    return nullptr;
}

DisabledOwners* DisabledOwners::HolderOf(HWND window)
{
    for (DisabledOwners* holder = innermostHolder; holder != nullptr; holder = holder->m_outer)
        if (std::ranges::find(holder->m_windows, window) != holder->m_windows.end())
            return holder;
    return nullptr;
}

void DisabledOwners::LetGoEverywhere(HWND window)
{
    for (DisabledOwners* holder = innermostHolder; holder != nullptr; holder = holder->m_outer)
        std::erase(holder->m_windows, window);
}
