#pragma once

#include <string_view>

#include <windows.h>

// Inside the framework only.

/// The text of a string resource of one module, in the memory of that module. Empty when the module has no such string:
/// a string table can't tell a missing string from an empty one.
std::wstring_view StringResourceOf(HINSTANCE resourceModule, UINT id);

/// The same of the current resource module or, when that has none, of the program.
std::wstring_view StringResource(UINT id);
