#pragma once

#include "window/wnd.h"

struct ModalRun;

/// A dialog made from a template resource; modal by DoModal, modeless by Create.
class FRAMEWORK_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    /// @param parent  owner of the modal dialog; null stands for the thread's main window
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    explicit CDialog(LPCWSTR templateName, CWnd* parent = nullptr);
    ~CDialog() override;

    /// Creates the modeless dialog from the current resource module; shown when the template has WS_VISIBLE.
    /// @param parent  owner; null stands for the thread's main window
    /// @return        non-zero on success
    virtual BOOL Create(LPCWSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);

    /// Shows the dialog from the current resource module and returns when it has ended.
    ///
    /// The owner and the windows that own it are disabled meanwhile; those that were enabled before are enabled again
    /// before the window goes, unless another modal dialog that still runs needs them disabled, too. Other windows of
    /// the thread get their messages from the dialog's own message loop. The window, and even this object, may be
    /// destroyed while the loop runs.
    /// @return  what EndDialog was given; -1 when the window can't be created, was destroyed otherwise, or the thread
    ///          was told to quit
    virtual INT_PTR DoModal();

    /// Ends the modal dialog with that result, as soon as the message being handled is done; hides a modeless one.
    void EndDialog(int result);
    /// Non-zero while the dialog runs modally and EndDialog has not been called yet.
    BOOL ContinueModal() const;

    void GotoDlgCtrl(CWnd* control);

    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;
    /// A command of the upper ID range that the dialog does not handle goes on to its owner and the application.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

    /// Moves data by UpdateData(FALSE). Returns non-zero when the first control is to get the focus.
    virtual BOOL OnInitDialog();

protected:
    /// Takes the data by UpdateData(TRUE); when that succeeds the dialog ends with IDOK.
    virtual void OnOK();
    /// The dialog ends with IDCANCEL.
    virtual void OnCancel();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFromTemplate(LPCWSTR templateName, HWND owner);
    /// The loop has ended: enables the owners and destroys the window, unless it or this object is gone.
    void EndModalRun(ModalRun& run);
    /// The window or this object goes while DoModal runs: its loop ends and leaves the object alone.
    void AbandonModalRun();
    LRESULT OnHandleInitDialog(WPARAM wParam, LPARAM lParam);

    LPCWSTR m_templateName = nullptr;  // or a number, as MAKEINTRESOURCE makes it
    CString m_templateText;            // keeps a name that is text
    CWnd* m_parent = nullptr;
    ModalRun* m_modalRun = nullptr;  // on the stack of DoModal while that runs
};
