#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include "interface/dim_params.h"
#include "interface/variable_params.h"

#ifdef CALCTOL_EXPORTS
#define CALCTOL_API __declspec(dllexport)
#else
#define CALCTOL_API __declspec(dllimport)
#endif

/// The dimension-chain calculation dialog as a host sees it.
///
/// A host makes it with CreateCalcTolDlg, names the chain with SetFileName, shows it with Create and deletes it through
/// the virtual destructor. Everything happens on the host's user-interface thread; the dialog tells the host of each
/// step with the messages of notifications.h, and the host may call back before such a message returns.
///
/// The operations of this class do nothing, so that a host can hold any derived object. The order of the virtual
/// operations is part of the interface.
class CALCTOL_API CCalcTolDlgBase : public CDialog
{
public:
    CCalcTolDlgBase(UINT templateId, CWnd* parent);
    ~CCalcTolDlgBase() override;

    /// A new calculation dialog without a window, owned by the caller; null only when memory runs out.
    static CCalcTolDlgBase* CreateCalcTolDlg();

    /// Creates and shows the modeless dialog, owned by `parent`, which receives the notifications and must live longer
    /// than the dialog's window: no temporary object that stands for a foreign window.
    /// @return  non-zero on success; zero when anything failed, nothing is shown then, and when the window is there
    virtual BOOL Create(CWnd* parent) = 0;
    /// Label of the chain, shown in the chain row; to be given before Create.
    virtual void SetFileName(CString name);
    /// Ends the child dialog that is open, with result 5, when the message being handled has returned: only then are
    /// the windows that it disabled enabled again. A host that wants the focus back goes on from a message posted to
    /// itself.
    virtual void EndModal();
    /// Loads a dimension into the link tolerance dialog. An empty nominal changes nothing.
    virtual void SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                              CString& upperDev, CString& lowerDev, int dimKind, int& increasing);
    /// Copies the link tolerance dialog's record; meaningful while kLinkAccepted or kLinkApplied is handled.
    virtual void GetDimDlgParams(CDimParams& params);
    /// Copies the distribution dialog's record; meaningful while kDistributionAccepted is handled.
    virtual void GetVariableDlgParams(CVariableParams& params);
    /// Copies the closing-link tolerance dialog's record; meaningful while kClosingAccepted is handled.
    virtual void GetCloseDimDlgParams(CDimParams& params);
    /// Appends the host objects of all links, in chain order.
    virtual void GetArrayObject(CArray<void*, void*>& objects);
    /// Has no effect.
    virtual void GetCurrentObject(void* hostObject);
    /// Rewrites the current link from the parameters; its nominal column stays as it is.
    virtual void SetCurrentFRowData(CDimParams& params);
    /// Stores law and centre of grouping into the current link.
    virtual void SetVariableFRowData(CVariableParams& params);
    /// Stores law and centre of grouping into the closing link.
    virtual void SetVariableCloseFRowData(CVariableParams& params);
    /// Adds a link built from the link tolerance dialog's record; the object is stored and handed back only.
    virtual void AddToList(void* hostObject);
    /// Sets the closing link from the closing-link tolerance dialog's record.
    virtual void AddCloseDimToList(void* hostObject);
    /// The closing link's host object; null when there is none.
    virtual void* GetCloseObject();
    /// Rewrites the closing link from the parameters.
    virtual void SetCloseFRowData(CDimParams& params);
    /// Loads a dimension into the closing-link tolerance dialog. An empty nominal changes nothing.
    virtual void SetCloseDimDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed,
                                      CString& tolField, CString& upperDev, CString& lowerDev, int dimKind,
                                      int& increasing);
    /// Clears the chain and the closing link and resets the calculation method.
    virtual void CancelDialog();

private:
    // Part of the object's layout that hosts were built against; nothing reads them.
    CString m_reserved[6];
};
