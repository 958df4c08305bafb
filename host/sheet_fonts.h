#pragma once

#include <memory>

#include <afxwin.h>

#include "host/sheet_geometry.h"
#include "host/text_measure.h"

/// The fonts of a drawing's texts, made from the one that the system uses for messages.
class SheetFonts : public TextMeasure
{
public:
    /// @param pixelsPerInch  of the screen
    explicit SheetFonts(int pixelsPerInch);

    double Width(std::string_view text, TextSize size) const override;
    double Height(TextSize size) const override;

    /// The font turned so that texts run in that direction.
    std::unique_ptr<CFont> Turned(TextSize size, SheetVector direction) const;

private:
    LOGFONT Description(TextSize size) const;

    LOGFONT m_message = {};
    int m_pixelsPerInch;
    CFont m_label;
    CFont m_deviation;
};
