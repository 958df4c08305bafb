#include "host/player/key_name.h"

namespace
{

constexpr KeyName kKeyNames[] = {
    {.name = "Tab", .virtualKey = 0x09},
    {.name = "Shift+Tab", .virtualKey = 0x09, .shift = true},
    {.name = "Ctrl+Tab", .virtualKey = 0x09, .control = true},
    {.name = "Ctrl+Shift+Tab", .virtualKey = 0x09, .shift = true, .control = true},
    {.name = "Enter", .virtualKey = 0x0D},
    {.name = "Escape", .virtualKey = 0x1B},
    {.name = "Space", .virtualKey = 0x20},
    {.name = "PageUp", .virtualKey = 0x21, .extended = true},
    {.name = "PageDown", .virtualKey = 0x22, .extended = true},
    {.name = "End", .virtualKey = 0x23, .extended = true},
    {.name = "Home", .virtualKey = 0x24, .extended = true},
    {.name = "Left", .virtualKey = 0x25, .extended = true},
    {.name = "Up", .virtualKey = 0x26, .extended = true},
    {.name = "Right", .virtualKey = 0x27, .extended = true},
    {.name = "Down", .virtualKey = 0x28, .extended = true},
    {.name = "Ctrl+Left", .virtualKey = 0x25, .control = true, .extended = true},
    {.name = "Ctrl+Right", .virtualKey = 0x27, .control = true, .extended = true},
    {.name = "Alt+Down", .virtualKey = 0x28, .alt = true, .extended = true},
    {.name = "Plus", .virtualKey = 0x6B},
    {.name = "Minus", .virtualKey = 0x6D},
    {.name = "F2", .virtualKey = 0x71},
    {.name = "F4", .virtualKey = 0x73},
};

}  // namespace

std::span<const KeyName> KeyNames()
{
    return kKeyNames;
}

const KeyName* FindKey(std::string_view name)
{
    for (const KeyName& key : kKeyNames)
    {
        if (key.name == name)
            return &key;
    }
    return nullptr;
}
