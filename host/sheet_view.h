#pragma once

#include <cstddef>
#include <optional>

#include <afxwin.h>

#include "host/drawing_model.h"
#include "host/sheet_fonts.h"
#include "host/sheet_layout.h"
#include "host/sheet_painter.h"

/// Hears what the user does in a sheet.
class SheetViewOwner
{
public:
    virtual ~SheetViewOwner() = default;
    /// Another dimension, or none, is under the mouse or chosen by keyboard.
    virtual void OnHighlighted() = 0;
    /// A click on a dimension.
    virtual void OnPicked(std::size_t dimension) = 0;
};

/// The window that shows a drawing. The keyboard stays with the window around it.
class CSheetView : public CWnd
{
public:
    explicit CSheetView(SheetViewOwner& owner);
    ~CSheetView() override;

    using CWnd::Create;
    BOOL Create(CWnd* parent, UINT id);

    void Show(const Drawing& drawing);
    const SheetLayout& Layout() const { return m_layout; }

    std::optional<std::size_t> Highlighted() const { return m_marks.highlighted; }
    void Highlight(std::optional<std::size_t> dimension);
    /// Marks the dimension that the tolerance dialog holds.
    void MarkLoaded(std::optional<std::size_t> dimension);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    void LayOut();
    void SetMarks(const SheetMarks& marks);
    std::optional<std::size_t> DimensionUnder(CPoint point) const;

    SheetViewOwner& m_owner;
    double m_unit;  // pixels that are 1/96 inch
    SheetFonts m_fonts;
    Drawing m_drawing;
    SheetLayout m_layout;
    SheetMarks m_marks;
    bool m_tracksMouse = false;
    CPoint m_mouse{-1, -1};  // where it was last
};
