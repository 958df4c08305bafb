#pragma once

#include <cstdint>

#include <afxwin.h>

/// One dimension as the host and the module exchange it. All numbers but the flags travel as decimal text in
/// millimetres; the module shows a text as it came and reads it like `atof` where it needs the value.
struct CDimParams
{
    CString tolField;              ///< tolerance field code, such as H7; column 2
    CString nominal;               ///< nominal size; column 1
    CString name;                  ///< label of the dimension; column 0
    CString upperDev;              ///< upper deviation; column 3
    CString lowerDev;              ///< lower deviation; column 4
    CString caption;               ///< text of the tolerance dialog's caption field
    std::int32_t weightFixed = 0;  ///< non-zero: the link's weight can't be changed; column 5
    std::int32_t increasing = 0;   ///< non-zero: increasing link; zero: decreasing link
    std::int32_t dimKind = 0;      ///< 1, 2 or 3; 2 is a dimension without tolerance; 0 when none is loaded
};
