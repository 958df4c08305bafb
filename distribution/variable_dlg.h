#pragma once

#include <memory>

#include <afxwin.h>

#include "drawing/picture_frame.h"
#include "interface/child_dialog.h"
#include "interface/notifications.h"
#include "interface/variable_params.h"
#include "platform/lifetime/lifetime.h"

/// The dialog in which the user gives a link its distribution law and its centre of grouping. It shows the standard
/// deviation and the density over the tolerance field.
///
/// It reports to the host window with kDistributionAccepted and kChildCancelled; the host reads the record while it
/// handles the acceptance. Afterwards the record is empty.
///
/// The host may end, destroy or delete the dialog inside a message. Ended that way, it keeps the result it was given.
/// A host that lets the user press OK or Cancel inside the report of an OK hears of that, too, and it gives the result.
class CVariableDlg : public CChildDialog
{
public:
    explicit CVariableDlg(CWnd* parent);
    ~CVariableDlg() override;

    /// The window that gets the reports; to be set before the dialog runs.
    void SetHostWindow(CWnd* hostWindow) { m_hostWindow = hostWindow; }

    /// For a caller that has to know whether the dialog outlived a message to the host.
    LifetimeWatch Watch() const { return LifetimeWatch(m_lifetime); }

    /// The edited record. What it holds when the dialog opens is shown.
    CVariableParams& Params() { return m_params; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    /// Takes the typed mean into the record and into the plot.
    virtual void OnRedraw();

    afx_msg void OnPaint();
    afx_msg void OnSelchangeLaw();
    DECLARE_MESSAGE_MAP()

private:
    void FillLaws();
    void UpdateControls();
    void SelectLaw();
    bool TakeSelectedLaw();
    void ShowSigma();
    void RepaintNow();
    bool AcceptMean();
    void RefuseMean(UINT messageId);
    [[nodiscard]] bool Report(HostNotification code);
    void Reset();
    void End(int result);

    CWnd* m_hostWindow = nullptr;
    std::unique_ptr<CComboBox> m_lawBox;  // none before the dialog is initialised
    CWnd* m_parent;                       // kept as the layout of the dialog has it; nothing reads it
    CVariableParams m_params;
    CPictureFrame m_picture;
    CPictureFrame m_plot;
    Lifetime m_lifetime;
};
