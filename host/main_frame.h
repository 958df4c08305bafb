#pragma once

#include <optional>

#include <afxcmn.h>
#include <afxwin.h>

#include "host/chain_protocol.h"
#include "host/drawing_model.h"
#include "host/drawing_objects.h"
#include "host/sheet_view.h"

/// The main window: the drawing, the menu, and a status line that says what to do next.
///
/// The keyboard focus is the window's own: the module sends it here after each of its dialogs.
class CMainFrame : public CFrameWnd, private SheetViewOwner, private ChainProtocolListener
{
public:
    explicit CMainFrame(ChainProtocol::DialogFactory factory);
    ~CMainFrame() override;

    void ShowDrawing(const Drawing& drawing);
    const DrawingObjects& Objects() const { return m_objects; }
    ChainProtocol& Protocol() { return m_protocol; }
    CSheetView& Sheet() { return m_sheet; }
    /// What the status line tells the user to do next.
    CString Prompt() const;
    /// What it tells of the highlighted dimension.
    CString DimensionStatus() const;

    /// Opens the calculation dialog, beside this window where the screen has room. Without a label the module gets
    /// none.
    /// @return  false when it can't be opened
    bool OpenCalculation(const std::optional<CString>& label);
    /// What a click on the dimension does: loads it into the open tolerance dialog, which then gets the focus.
    void ClickDimension(const DrawingObject& object);
    /// Gives the focus to the foremost of the module's windows that can take it.
    void GoToDialog();
    /// F6 in one of the module's windows leads back to the drawing, where picking is possible.
    /// @return  true when the message is done with
    bool TakesKey(const MSG& message);

protected:
    // window
    afx_msg int OnCreate(LPCREATESTRUCT creation);
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnKeyDown(UINT key, UINT repeatCount, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeatCount, UINT flags);
    afx_msg void OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu);
    afx_msg LRESULT OnGetMinMaxInfo(WPARAM, LPARAM info);
    afx_msg LRESULT OnNotification(WPARAM code, LPARAM mark);
    afx_msg LRESULT OnLookAtChild(WPARAM number, LPARAM);
    afx_msg LRESULT OnEndDialog(WPARAM number, LPARAM);
    // commands
    afx_msg void OnOpenDrawing();
    afx_msg void OnExit();
    afx_msg void OnOpenDialog();
    afx_msg void OnGoToDialog();
    afx_msg void OnNextDimension();
    afx_msg void OnPreviousDimension();
    afx_msg void OnPickDimension();
    afx_msg void OnAbout();
    DECLARE_MESSAGE_MAP()

private:
    // SheetViewOwner
    void OnHighlighted() override;
    void OnPicked(std::size_t dimension) override;
    // ChainProtocolListener
    void OnProtocolChanged() override;

    bool Pick(const DrawingObject& object);
    void PlaceAtStart();
    void PlaceChildren();
    void ShowNextPrompt();

    DrawingObjects m_objects;
    CSheetView m_sheet;
    CStatusBarCtrl m_statusBar;
    CString m_title;  // the drawing's
    ChainProtocol m_protocol;
    bool m_goesToDialogOnKeyUp = false;
};
