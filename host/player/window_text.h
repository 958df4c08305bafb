#pragma once

#include <string>
#include <string_view>

#include <windows.h>

struct ScriptText;

std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view text);

/// In double quotes, with line breaks written as \n, for messages about a text.
std::string Quoted(std::string_view text);

/// The text of a window or control, UTF-8.
std::string WindowText(HWND window);

std::wstring WindowClass(HWND window);

/// The library that holds the module's resources, as loaded into the process; throws StepFailure when it isn't.
HMODULE ResourceLibrary();

/// The text that a script means; a string that the resource library lacks throws StepFailure.
std::string ResolveText(const ScriptText& text);
std::string ResourceString(int id);
