#include "window/data_exchange.h"

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = ::GetDlgItem(HandleOf(m_pDlgWnd), id);
    if (control == nullptr)
        AfxThrowNotSupportedException();
    return control;
}

void CDataExchange::Fail()
{
    AfxThrowUserException();
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd != nullptr)
        return;
    if (!control.SubclassWindow(exchange->PrepareCtrl(id)))
        AfxThrowNotSupportedException();
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    try
    {
        DoDataExchange(&exchange);
    }
    catch (CUserException* exception)
    {
        exception->Delete();
        return FALSE;
    }
    return TRUE;
}
