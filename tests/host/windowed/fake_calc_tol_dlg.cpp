#include "fake_calc_tol_dlg.h"

#include <utility>

#include "platform/text/text_encoding.h"

namespace
{
FakeCalcTolDlg* living = nullptr;
bool makesNone = false;
bool createsNone = false;

void Assign(CDimParams& record, const CString& name, const CString& nominal, const CString& caption, int weightFixed,
            const CString& tolField, const CString& upperDev, const CString& lowerDev, int dimKind, int increasing)
{
    record = {.tolField = tolField,
              .nominal = nominal,
              .name = name,
              .upperDev = upperDev,
              .lowerDev = lowerDev,
              .caption = caption,
              .weightFixed = weightFixed,
              .increasing = increasing,
              .dimKind = dimKind};
}
}  // namespace

FakeCalcTolDlg::FakeCalcTolDlg() : CCalcTolDlgBase(0, nullptr)
{
    living = this;
}

FakeCalcTolDlg::~FakeCalcTolDlg()
{
    living = nullptr;
}

CCalcTolDlgBase* FakeCalcTolDlg::Make()
{
    return makesNone ? nullptr : new FakeCalcTolDlg;
}

FakeCalcTolDlg* FakeCalcTolDlg::Living()
{
    return living;
}

bool& FakeCalcTolDlg::MakesNone()
{
    return makesNone;
}

bool& FakeCalcTolDlg::CreatesNone()
{
    return createsNone;
}

void FakeCalcTolDlg::Notify(HostNotification code) const
{
    m_host->SendMessage(WM_CHAR, code, kNotificationMark);
}

std::vector<std::string> FakeCalcTolDlg::TakeCalls()
{
    return std::exchange(m_calls, {});
}

BOOL FakeCalcTolDlg::Create(CWnd* parent)
{
    Note("Create");
    m_host = parent;
    if (createsNone)
        return FALSE;
    return CreateEx(0, AfxRegisterWndClass(0), L"calculation dialog", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                    parent->GetSafeHwnd(), nullptr);
}

void FakeCalcTolDlg::SetFileName(CString name)
{
    Note("SetFileName " + ToUtf8(name));
}

void FakeCalcTolDlg::EndModal()
{
    Note("EndModal");
}

void FakeCalcTolDlg::SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed,
                                  CString& tolField, CString& upperDev, CString& lowerDev, int dimKind, int& increasing)
{
    Note("SetDlgParams");
    Assign(linkRecord, name, nominal, caption, weightFixed, tolField, upperDev, lowerDev, dimKind, increasing);
}

void FakeCalcTolDlg::SetCloseDimDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed,
                                          CString& tolField, CString& upperDev, CString& lowerDev, int dimKind,
                                          int& increasing)
{
    Note("SetCloseDimDlgParams");
    Assign(closingRecord, name, nominal, caption, weightFixed, tolField, upperDev, lowerDev, dimKind, increasing);
}

void FakeCalcTolDlg::GetDimDlgParams(CDimParams& params)
{
    params = linkRecord;
}

void FakeCalcTolDlg::GetVariableDlgParams(CVariableParams& params)
{
    params = variableRecord;
}

void FakeCalcTolDlg::GetCloseDimDlgParams(CDimParams& params)
{
    params = closingRecord;
}

void FakeCalcTolDlg::GetArrayObject(CArray<void*, void*>& list)
{
    for (void* const object : objects)
        list.Add(object);
}

void FakeCalcTolDlg::SetCurrentFRowData(CDimParams& params)
{
    Note("SetCurrentFRowData");
    written = params;
}

void FakeCalcTolDlg::SetVariableFRowData(CVariableParams& params)
{
    Note("SetVariableFRowData");
    writtenDistribution = params;
}

void FakeCalcTolDlg::SetVariableCloseFRowData(CVariableParams& params)
{
    Note("SetVariableCloseFRowData");
    writtenDistribution = params;
}

void FakeCalcTolDlg::AddToList(void* hostObject)
{
    Note("AddToList");
    objects.push_back(hostObject);
}

void FakeCalcTolDlg::AddCloseDimToList(void* hostObject)
{
    Note("AddCloseDimToList");
    closingObject = hostObject;
}

void FakeCalcTolDlg::SetCloseFRowData(CDimParams& params)
{
    Note("SetCloseFRowData");
    written = params;
}

void FakeCalcTolDlg::CancelDialog()
{
    Note("CancelDialog");
    objects.clear();
    closingObject = nullptr;
}
