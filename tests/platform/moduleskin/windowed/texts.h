#pragma once

#include <string>

#include <windows.h>

/// A string resource of the library; empty when there is none.
std::wstring SkinText(unsigned id);

/// Width of a text in the font that a window shows its text in.
/// @param text  a mnemonic's mark is not counted
int WidthIn(HWND window, const std::wstring& text);
/// Width of a text in a font.
int WidthIn(HFONT font, const std::wstring& text);

/// The character behind a single '&', as a capital letter; 0 when there is none.
wchar_t Mnemonic(const std::wstring& text);
std::wstring WithoutMnemonicMark(const std::wstring& text);

/// For the message of a failed check.
std::string Narrow(const std::wstring& text);
