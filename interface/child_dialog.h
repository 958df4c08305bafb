#pragma once

#include <afxwin.h>

/// A dialog that the calculation dialog runs modally and that the host may end from outside.
///
/// It ends when the message being handled is done with, which takes as long as the host likes: it may show a message
/// box first. What the user chooses in the dialog meanwhile counts no more, so that the result which was given first
/// stays and nobody is told of anything. The same holds from the moment that the user cancels the dialog.
class CChildDialog : public CDialog
{
public:
    using CDialog::CDialog;

protected:
    BOOL OnInitDialog() override
    {
        m_isCancelled = false;
        return CDialog::OnInitDialog();
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        return !ContinueModal() || m_isCancelled || CDialog::OnCommand(wParam, lParam);
    }
    /// Takes no more commands in this run, while the host hears that the user cancelled it.
    void BeginCancel() { m_isCancelled = true; }

private:
    bool m_isCancelled = false;
};
