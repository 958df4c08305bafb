#pragma once

#include <optional>

#include <afxwin.h>

#include "drawing/picture_frame.h"
#include "interface/dim_params.h"
#include "interface/notifications.h"
#include "platform/lifetime/lifetime.h"
#include "tolerance/tol_box.h"

/// Numbers of the controls that every tolerance dialog has.
struct ToleranceControls
{
    int nominal;
    int caption;
    int field;
    int filter;
    int upperDev;
    int lowerDev;
    int picture;
    int ok;
};

/// What the link tolerance dialog and the closing-link tolerance dialog do alike: the field box with its filter, the
/// two deviations, the texts that are only shown, the picture of the kind, and the record behind them.
///
/// It belongs to the dialog and works on the dialog's own controls and record, which must outlive it.
class ToleranceEntry
{
public:
    ToleranceEntry(CDialog& dialog, CTolBox& fieldBox, CButton& filter, CDimParams& record,
                   const ToleranceControls& controls);

    /// Takes over the controls of the new window, fills the box and shows the deviations of the record's field. The
    /// application's main window becomes usable, so that the user can go on picking dimensions.
    /// @return false when the host took that as the moment to destroy or delete the dialog: the caller leaves without
    /// touching it
    [[nodiscard]] bool Open();

    /// Shows the texts of a dimension.
    void ShowTexts(const CDimParams& shown);
    /// Enables or disables the field box, the filter and the deviations.
    void EnableInputs(bool enable);
    /// Shows the picture of a kind; a dimension of kind 0 has none and leaves the frame as it is.
    /// @return false when the system has no memory device context left
    bool ShowKind(std::int32_t dimKind);
    /// Makes a dimension whose texts are shown the edited record. Kind 2 takes no tolerance; for the others the
    /// deviations of the field are shown and locked when the library knows it.
    void Store(const CDimParams& loaded);

    // The user typed into the box, picked an entry, opened the list, left it, clicked the filter.
    void OnFieldEdited();
    void OnFieldSelected();
    void OnListOpened();
    void OnListClosed();
    void OnFilterClicked();

    /// Takes the field and the deviations as they are typed into the record.
    void ReadInputs();
    /// Checks the record's deviations and brings them into their normal form.
    /// @return false when they can't be accepted: the user has been told, the record is as it was
    bool AcceptDeviations();

    /// Empties the record and, while the window exists, the controls; nothing can be entered afterwards.
    void Reset();

    /// Tells the host, which may end, destroy or delete the dialog meanwhile.
    /// @return false when the dialog is gone: the caller leaves without touching it
    [[nodiscard]] bool Report(CWnd* hostWindow, HostNotification code);
    /// Ends the dialog. A result that the host gave it during a report stays.
    void End(int result);

private:
    bool EnableMainWindow();
    void ShowFieldDeviations();
    void Enable(int control, bool enable);

    CDialog& m_dialog;
    CTolBox& m_fieldBox;
    CButton& m_filter;
    CDimParams& m_record;
    const ToleranceControls m_controls;
    CPictureFrame m_picture;
    bool m_writing = false;  // the box is changed by the program: its events are not the user's
    std::optional<CString>
        m_answeredField;               // what the edits show the deviations of; none when other texts were written
    bool m_answeredSelection = false;  // the latest edit change came from a picked entry, its deviations are shown
    bool m_endedByHost = false;
    Lifetime m_lifetime;
};
