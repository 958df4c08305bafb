#pragma once

#include <cstdint>

#include <afxwin.h>

/// The statistical description of one link as the host and the module exchange it.
struct CVariableParams
{
    CString nominal;           ///< nominal size as decimal text, millimetres
    CString name;              ///< label of the link; "X" for the closing link
    CString caption;           ///< text of the dialog's caption field
    CString upperDev;          ///< upper deviation as decimal text, millimetres
    CString lowerDev;          ///< lower deviation as decimal text, millimetres
    std::int32_t dimKind = 0;  ///< as in CDimParams
    std::int32_t law = 0;      ///< distribution law: 0 none, 1 normal, 2 uniform, 3 triangular (Simpson)
    double mean = 0.0;         ///< centre of grouping, an absolute size in millimetres
};
