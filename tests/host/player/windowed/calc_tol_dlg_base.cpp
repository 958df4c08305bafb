#include "interface/calc_tol_dlg_base.h"

// The base's operations, which do nothing, for the dialog that the tests put in the module's place.

CCalcTolDlgBase::CCalcTolDlgBase(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}
CCalcTolDlgBase::~CCalcTolDlgBase() = default;

void CCalcTolDlgBase::SetFileName(CString) {}
void CCalcTolDlgBase::EndModal() {}
void CCalcTolDlgBase::SetDlgParams(CString&, CString&, CString&, int&, CString&, CString&, CString&, int, int&) {}
void CCalcTolDlgBase::GetDimDlgParams(CDimParams&) {}
void CCalcTolDlgBase::GetVariableDlgParams(CVariableParams&) {}
void CCalcTolDlgBase::GetCloseDimDlgParams(CDimParams&) {}
void CCalcTolDlgBase::GetArrayObject(CArray<void*, void*>&) {}
void CCalcTolDlgBase::GetCurrentObject(void*) {}
void CCalcTolDlgBase::SetCurrentFRowData(CDimParams&) {}
void CCalcTolDlgBase::SetVariableFRowData(CVariableParams&) {}
void CCalcTolDlgBase::SetVariableCloseFRowData(CVariableParams&) {}
void CCalcTolDlgBase::AddToList(void*) {}
void CCalcTolDlgBase::AddCloseDimToList(void*) {}
void* CCalcTolDlgBase::GetCloseObject()
{
    return nullptr;
}
void CCalcTolDlgBase::SetCloseFRowData(CDimParams&) {}
void CCalcTolDlgBase::SetCloseDimDlgParams(CString&, CString&, CString&, int&, CString&, CString&, CString&, int, int&)
{
}
void CCalcTolDlgBase::CancelDialog() {}
