#pragma once

#include <cstddef>
#include <optional>

#include <afxwin.h>

#include "host/sheet_fonts.h"
#include "host/sheet_layout.h"

/// Which dimensions stand out.
struct SheetMarks
{
    std::optional<std::size_t> highlighted;  ///< under the mouse, or chosen by keyboard
    std::optional<std::size_t> loaded;       ///< in the tolerance dialog

    bool operator==(const SheetMarks&) const = default;
};

/// Paints a drawing over the whole area, in the system's window colours.
/// @param unit  pixels that are 1/96 inch
void PaintSheet(CDC& dc, const CRect& area, const SheetLayout& layout, const SheetMarks& marks, const SheetFonts& fonts,
                double unit);
