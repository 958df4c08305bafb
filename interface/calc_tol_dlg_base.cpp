#include "interface/calc_tol_dlg_base.h"

CCalcTolDlgBase::CCalcTolDlgBase(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

CCalcTolDlgBase::~CCalcTolDlgBase() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param): so hosts pass it
void CCalcTolDlgBase::SetFileName(CString /*name*/) {}

void CCalcTolDlgBase::EndModal() {}

void CCalcTolDlgBase::SetDlgParams(CString& /*name*/, CString& /*nominal*/, CString& /*caption*/, int& /*weightFixed*/,
                                   CString& /*tolField*/, CString& /*upperDev*/, CString& /*lowerDev*/, int /*dimKind*/,
                                   int& /*increasing*/)
{
}

void CCalcTolDlgBase::GetDimDlgParams(CDimParams& /*params*/) {}

void CCalcTolDlgBase::GetVariableDlgParams(CVariableParams& /*params*/) {}

void CCalcTolDlgBase::GetCloseDimDlgParams(CDimParams& /*params*/) {}

void CCalcTolDlgBase::GetArrayObject(CArray<void*, void*>& /*objects*/) {}

void CCalcTolDlgBase::GetCurrentObject(void* /*hostObject*/) {}

void CCalcTolDlgBase::SetCurrentFRowData(CDimParams& /*params*/) {}

void CCalcTolDlgBase::SetVariableFRowData(CVariableParams& /*params*/) {}

void CCalcTolDlgBase::SetVariableCloseFRowData(CVariableParams& /*params*/) {}

void CCalcTolDlgBase::AddToList(void* /*hostObject*/) {}

void CCalcTolDlgBase::AddCloseDimToList(void* /*hostObject*/) {}

void* CCalcTolDlgBase::GetCloseObject()
{
    return nullptr;
}

void CCalcTolDlgBase::SetCloseFRowData(CDimParams& /*params*/) {}

void CCalcTolDlgBase::SetCloseDimDlgParams(CString& /*name*/, CString& /*nominal*/, CString& /*caption*/,
                                           int& /*weightFixed*/, CString& /*tolField*/, CString& /*upperDev*/,
                                           CString& /*lowerDev*/, int /*dimKind*/, int& /*increasing*/)
{
}

void CCalcTolDlgBase::CancelDialog() {}
