#include "dialog/calc_tol_dlg.h"

#include <new>

#include "platform/moduleskin/resource.h"

IMPLEMENT_DYNCREATE(CCalcTolDlg, CDialog)

BEGIN_MESSAGE_MAP(CCalcTolDlg, CCalcTolDlgBase)
    // window
    ON_WM_PAINT()
    ON_WM_INITMENUPOPUP()
    ON_WM_DESTROY()
    // method
    ON_COMMAND(ID_METHOD_ANALYTIC, &CCalcTolDlg::OnAnalyticMethod)
    ON_COMMAND(ID_METHOD_PROBABILISTIC, &CCalcTolDlg::OnProbabilisticMethod)
    // links
    ON_COMMAND(ID_LINK_ADD, &CCalcTolDlg::OnCreateDimChain)
    ON_COMMAND(ID_CONTEXT_LINK_ADD, &CCalcTolDlg::OnCreateDimChain)
    ON_COMMAND(ID_LINK_EDIT, &CCalcTolDlg::OnEditDimChain)
    ON_COMMAND(ID_CONTEXT_LINK_EDIT, &CCalcTolDlg::OnEditDimChain)
    ON_COMMAND(ID_LINK_DELETE, &CCalcTolDlg::OnDeleteDimChain)
    ON_COMMAND(ID_CONTEXT_LINK_DELETE, &CCalcTolDlg::OnDeleteDimChain)
    ON_COMMAND(ID_LINK_DELETE_ALL, &CCalcTolDlg::OnDeleteAllDimChain)
    ON_COMMAND(ID_CONTEXT_LINK_DELETE_ALL, &CCalcTolDlg::OnDeleteAllDimChain)
    ON_COMMAND(ID_LINK_DISTRIBUTION, &CCalcTolDlg::OnVariableEditDimChain)
    ON_COMMAND(ID_CONTEXT_LINK_DISTRIBUTION, &CCalcTolDlg::OnVariableEditDimChain)
    ON_COMMAND(ID_CONTEXT_LINK_WEIGHT, &CCalcTolDlg::OnEditWeightDimChain)
    ON_COMMAND(ID_CHAIN_WEIGHTS, &CCalcTolDlg::OnWeightDimChain)
    // closing link
    ON_COMMAND(ID_CLOSING_ADD, &CCalcTolDlg::OnCreateCloseDimChain)
    ON_COMMAND(ID_CONTEXT_CLOSING_ADD, &CCalcTolDlg::OnCreateCloseDimChain)
    ON_COMMAND(ID_CLOSING_EDIT, &CCalcTolDlg::OnEditCloseDimChain)
    ON_COMMAND(ID_CONTEXT_CLOSING_EDIT, &CCalcTolDlg::OnEditCloseDimChain)
    ON_COMMAND(ID_CLOSING_DELETE, &CCalcTolDlg::OnDeleteCloseDimChain)
    ON_COMMAND(ID_CONTEXT_CLOSING_DELETE, &CCalcTolDlg::OnDeleteCloseDimChain)
    ON_COMMAND(ID_CLOSING_DISTRIBUTION, &CCalcTolDlg::OnVariableCloseEditDimChain)
    ON_COMMAND(ID_CONTEXT_CLOSING_DISTRIBUTION, &CCalcTolDlg::OnVariableCloseEditDimChain)
    // lists
    ON_NOTIFY(kGridListContents, IDC_CHAIN_LIST, &CCalcTolDlg::OnComboExpand)
    ON_CONTROL(kGridDoubleClick, IDC_CHAIN_LIST, &CCalcTolDlg::OnDblclkTolListDim)
    ON_CONTROL(kGridDoubleClick, IDC_CLOSING_LIST, &CCalcTolDlg::OnDblclkTolBase)
END_MESSAGE_MAP()

CCalcTolDlg::CCalcTolDlg(CWnd* parent) : CCalcTolDlgBase(IDD_CALC_TOL, parent)
{
    m_windowLife.End();  // there is none yet
}

// The window goes while all members are there. The child dialogs stay: one of them may be running, or waiting for the
// host's answer, while the host deletes this object.
CCalcTolDlg::~CCalcTolDlg()
{
    CCalcTolDlgBase::DestroyWindow();
    m_editTolDlg = nullptr;
    m_editCloseTolDlg = nullptr;
    m_variableDlg = nullptr;
    m_weightDlg = nullptr;
    m_calcMethod = 0;
    m_hostWindow = nullptr;
}

// The same entry as the dynamic creation; only a lack of memory becomes the null pointer of the exported interface.
CCalcTolDlgBase* CCalcTolDlgBase::CreateCalcTolDlg()
{
    try
    {
        return static_cast<CCalcTolDlg*>(CCalcTolDlg::CreateObject());
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}
