#pragma once

#include <span>
#include <string_view>

/// A key as a script names it. The codes are those of Windows' virtual keys.
struct KeyName
{
    std::string_view name;
    int virtualKey;
    bool shift = false;
    bool control = false;
    bool alt = false;
    bool extended = false;  ///< the key of the block between letters and numeric pad
};

/// Every key that scripts can press.
std::span<const KeyName> KeyNames();

/// Null for a name that is no key.
const KeyName* FindKey(std::string_view name);
