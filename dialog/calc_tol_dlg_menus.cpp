// The calculation dialog's menu bar, context menus, column 5's choice and the double clicks.

#include <optional>

#include "calc/chain_calculation.h"
#include "dialog/calc_tol_dlg.h"
#include "dialog/weight_fixed_text.h"
#include "platform/moduleskin/module_skin.h"

namespace
{

template <typename States>
void Apply(const States& states, CMenu& menu)
{
    for (const CommandState& state : states)
        menu.EnableMenuItem(state.command, MF_BYCOMMAND | (state.enabled ? MF_ENABLED : MF_GRAYED));
}

void Check(CMenu& menu, UINT command, bool checked)
{
    menu.CheckMenuItem(command, MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

bool Contains(HMENU menu, HMENU popup)
{
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
    {
        const HMENU child = ::GetSubMenu(menu, position);
        if (child != nullptr && (child == popup || Contains(child, popup)))
            return true;
    }
    return false;
}

}  // namespace

ChainState CCalcTolDlg::State()
{
    return {.method = m_calcMethod, .hasLinks = HasLinks(), .hasClosingLink = GetCloseObject() != nullptr};
}

// The system menu and context menus keep the states that they were given.
void CCalcTolDlg::OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu)
{
    if (CMenu* const bar = GetMenu(); bar != nullptr && popup != nullptr && Contains(bar->m_hMenu, popup->m_hMenu))
    {
        Apply(MenuBarStates(State()), *bar);
        Check(*bar, ID_METHOD_ANALYTIC, m_calcMethod == kAnalyticMethod);
        Check(*bar, ID_METHOD_PROBABILISTIC, m_calcMethod == kProbabilisticMethod);
    }
    CCalcTolDlgBase::OnInitMenuPopup(popup, index, systemMenu);
}

void CCalcTolDlg::TrackEditMenu(CPoint screenPoint, int gridId)
{
    if (gridId != IDC_CHAIN_LIST && gridId != IDC_CLOSING_LIST)
        return;
    const CModuleSkin skin(kModuleCalcTol);
    CMenu menu;
    menu.LoadMenu(gridId == IDC_CHAIN_LIST ? IDR_CHAIN_CONTEXT_MENU : IDR_CLOSING_CONTEXT_MENU);
    CMenu* const commands = menu.GetSubMenu(0);
    if (commands == nullptr)
        return;
    if (gridId == IDC_CHAIN_LIST)
        Apply(ChainContextMenuStates(State()), *commands);
    else
        Apply(ClosingContextMenuStates(State()), *commands);
    commands->TrackPopupMenu(TPM_RIGHTBUTTON, screenPoint.x, screenPoint.y, this);
}

// What the user chooses is stored by the grid as the cell's text; the record doesn't change.
void CCalcTolDlg::OnComboExpand(NMHDR* header, LRESULT* result)
{
    const CModuleSkin skin(kModuleCalcTol);
    auto& request = *reinterpret_cast<NMFLISTCOMBO*>(header);
    std::optional<INT_PTR> match;
    for (const std::int32_t weightFixed : {1, 0})
    {
        const CString text = WeightFixedText(weightFixed);
        const INT_PTR index = request.items->Add({.text = text, .value = 0});
        if (!match && text == request.text)
            match = index;
    }
    if (match)
        request.selected = static_cast<std::int32_t>(*match);
    *result = 0;
}

void CCalcTolDlg::OnDblclkTolListDim()
{
    if (m_calcMethod != 0 && HasLinks())
        OnEditDimChain();
}

void CCalcTolDlg::OnDblclkTolBase()
{
    if (m_calcMethod != 0 && GetCloseObject() != nullptr)
        OnEditCloseDimChain();
}
