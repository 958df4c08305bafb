#pragma once

#include <string>
#include <vector>

#include <afxwin.h>

#include "interface/calc_tol_dlg_base.h"
#include "interface/notifications.h"

/// A calculation dialog that does nothing by itself: it notes what the host calls, has the records that a test gives
/// it, and sends the notifications that a test asks for.
class FakeCalcTolDlg : public CCalcTolDlgBase
{
public:
    FakeCalcTolDlg();
    ~FakeCalcTolDlg() override;

    /// What the host is given as its factory.
    static CCalcTolDlgBase* Make();
    /// The one that was made last and lives; null for none.
    static FakeCalcTolDlg* Living();
    /// As if there were no memory, or no window, for the next one.
    static bool& MakesNone();
    static bool& CreatesNone();

    void Notify(HostNotification code) const;
    /// The calls since the last look, such as "AddToList", in order.
    std::vector<std::string> TakeCalls();

    BOOL Create(CWnd* parent) override;
    void SetFileName(CString name) override;
    void EndModal() override;
    void SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                      CString& upperDev, CString& lowerDev, int dimKind, int& increasing) override;
    void GetDimDlgParams(CDimParams& params) override;
    void GetVariableDlgParams(CVariableParams& params) override;
    void GetCloseDimDlgParams(CDimParams& params) override;
    void GetArrayObject(CArray<void*, void*>& objects) override;
    void SetCurrentFRowData(CDimParams& params) override;
    void SetVariableFRowData(CVariableParams& params) override;
    void SetVariableCloseFRowData(CVariableParams& params) override;
    void AddToList(void* hostObject) override;
    void AddCloseDimToList(void* hostObject) override;
    void* GetCloseObject() override { return closingObject; }
    void SetCloseFRowData(CDimParams& params) override;
    void SetCloseDimDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                              CString& upperDev, CString& lowerDev, int dimKind, int& increasing) override;
    void CancelDialog() override;

    CDimParams linkRecord;  ///< of the link tolerance dialog
    CDimParams closingRecord;
    CVariableParams variableRecord;
    std::vector<void*> objects;  ///< of the links
    void* closingObject = nullptr;
    CDimParams written;  ///< what the host wrote into a row last
    CVariableParams writtenDistribution;

private:
    void Note(const std::string& call) { m_calls.push_back(call); }

    std::vector<std::string> m_calls;
    CWnd* m_host = nullptr;
};
