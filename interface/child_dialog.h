#pragma once

#include <afxwin.h>

/// A dialog that the calculation dialog runs modally and that the host may end from outside.
///
/// It ends when the message being handled is done with, which takes as long as the host likes: it may show a message
/// box first. What the user chooses in the dialog meanwhile counts no more, so that the result which was given first
/// stays and nobody is told of anything.
class CChildDialog : public CDialog
{
public:
    using CDialog::CDialog;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        return !ContinueModal() || CDialog::OnCommand(wParam, lParam);
    }
};
