#pragma once

#include <windows.h>

/// A null text stands for an empty one.
inline LPCWSTR OrEmpty(LPCWSTR text)
{
    return text != nullptr ? text : L"";
}
