#pragma once

#include <afxwin.h>

struct DisplayList;

/// A static control that shows a picture and keeps it, so that the picture comes back whenever the control has to be
/// painted again (covered and uncovered, moved on screen, hidden and shown).
///
/// The control is attached with SubclassDlgItem. Each operation below needs the window, shows its result at once and
/// leaves nothing to be painted later. The picture goes with the window, whose object may live on.
class CPictureFrame : public CStatic
{
public:
    /// Shows a bitmap of the current resource module at the top left, in its own size; the rest of the control has the
    /// dialog's background. A number without a bitmap shows an empty control.
    /// @return false when the system has no memory device context left; the control is empty then
    bool ShowBitmap(UINT bitmapId);

    /// Shows a drawing, made for the size of the client area, on white, all its texts within the client area. It is
    /// drawn out of sight and copied once.
    /// @return as above
    bool ShowDrawing(const DisplayList& drawing);

protected:
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    bool Show();
    void Paint(CDC& dc, CDC& memory);
    void PaintBackground(CDC& dc);

    CBitmap m_picture;  // no handle: empty control
};
