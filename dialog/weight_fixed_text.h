#pragma once

#include <cstdint>

#include <afxwin.h>

#include "platform/moduleskin/resource.h"

// Column 5: whether the link's weight is fixed, as a text of the current resource module.

inline CString WeightFixedText(std::int32_t weightFixed)
{
    CString text;
    text.LoadString(weightFixed != 0 ? IDS_WEIGHT_FIXED_YES : IDS_WEIGHT_FIXED_NO);
    return text;
}

/// 1 for exactly the text of a fixed weight, 0 for anything else.
inline std::int32_t WeightFixedOf(const CString& text)
{
    return text == WeightFixedText(1) ? 1 : 0;
}
