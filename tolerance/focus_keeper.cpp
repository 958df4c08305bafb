#include "tolerance/focus_keeper.h"

namespace
{

bool HasUsableFocus(HWND dialog)
{
    const HWND focus = ::GetFocus();
    if (focus == nullptr || !::IsChild(dialog, focus))
        return false;
    for (HWND window = focus; window != dialog; window = ::GetParent(window))
        if (!::IsWindowEnabled(window))
            return false;
    return true;
}

}  // namespace

FocusKeeper::FocusKeeper(CDialog& dialog, int fallbackControl)
    : m_dialog(dialog.m_hWnd), m_fallback(::GetDlgItem(m_dialog, fallbackControl)), m_hadFocus(HasUsableFocus(m_dialog))
{
}

// The dialog's own message moves the frame of the default button along with the focus.
FocusKeeper::~FocusKeeper()
{
    if (m_hadFocus && ::IsWindow(m_dialog) && !HasUsableFocus(m_dialog))
        ::SendMessageW(m_dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_fallback), TRUE);
}
