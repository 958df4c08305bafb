#include "skin_dialog.h"

#include <cstring>

#include "platform/moduleskin/module_skin.h"

namespace
{

/// Behind a menu, a class or a text of an extended template: a number, a text or nothing.
const WORD* Behind(const WORD* name)
{
    constexpr WORD kNumberFollows = 0xFFFF;
    if (*name == kNumberFollows)
        return name + 2;
    while (*name != 0)
        ++name;
    return name + 1;
}

/// A copy of an extended template with a larger font.
std::vector<char> ScaledTemplate(HINSTANCE library, UINT templateId, int textScaling)
{
    const HRSRC resource = ::FindResourceW(library, MAKEINTRESOURCEW(templateId), RT_DIALOG);
    const auto* const bytes = static_cast<const char*>(::LockResource(::LoadResource(library, resource)));
    std::vector<char> copy(bytes, bytes + ::SizeofResource(library, resource));

    constexpr std::size_t kFixedPart = 26;  // version, signature, help ID, styles, count of controls, place
    const auto* const words = reinterpret_cast<const WORD*>(copy.data());
    const WORD* const pointSize = Behind(Behind(Behind(words + kFixedPart / sizeof(WORD))));
    const WORD scaled = static_cast<WORD>(*pointSize * textScaling / 100);
    std::memcpy(copy.data() + (pointSize - words) * static_cast<std::ptrdiff_t>(sizeof(WORD)), &scaled, sizeof scaled);
    return copy;
}

INT_PTR CALLBACK NothingToInitialise(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

}  // namespace

SkinDialog::SkinDialog(UINT templateId, int textScaling)
{
    const CModuleSkin skin(kModuleCalcTol);
    if (textScaling == 100)
    {
        m_dialog.Create(templateId);
        m_window = m_dialog.GetSafeHwnd();
    }
    else
    {
        const HINSTANCE library = AfxGetResourceHandle();
        const std::vector<char> scaled = ScaledTemplate(library, templateId, textScaling);
        m_window = ::CreateDialogIndirectParamW(library, reinterpret_cast<const DLGTEMPLATE*>(scaled.data()), nullptr,
                                                &NothingToInitialise, 0);
    }
    ::ShowWindow(m_window, SW_SHOW);
}

SkinDialog::~SkinDialog()
{
    ::DestroyWindow(m_window);
}

std::vector<HWND> SkinDialog::Controls() const
{
    std::vector<HWND> controls;
    for (HWND control = ::GetWindow(m_window, GW_CHILD); control != nullptr;
         control = ::GetWindow(control, GW_HWNDNEXT))
        controls.push_back(control);
    return controls;
}

std::vector<int> SkinDialog::TabOrder() const
{
    std::vector<int> order;
    const HWND first = ::GetNextDlgTabItem(m_window, nullptr, FALSE);
    HWND control = first;
    do
    {
        order.push_back(::GetDlgCtrlID(control));
        control = ::GetNextDlgTabItem(m_window, control, FALSE);
    } while (control != first && order.size() < 100);
    return order;
}

CRect SkinDialog::Place(HWND control) const
{
    CRect place;
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

CRect SkinDialog::ClientArea() const
{
    CRect area;
    ::GetClientRect(m_window, &area);
    return area;
}

CSize SkinDialog::BaseUnits() const
{
    RECT units{0, 0, 4, 8};
    ::MapDialogRect(m_window, &units);
    return {units.right, units.bottom};
}

std::wstring TextOf(HWND window)
{
    std::wstring text(200, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), 200)));
    return text;
}

std::wstring ClassOf(HWND window)
{
    std::wstring name(200, L'\0');
    name.resize(static_cast<std::size_t>(::GetClassNameW(window, name.data(), 200)));
    return name;
}

DWORD ClassStyle(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE)) & 0xFFFFU;
}
