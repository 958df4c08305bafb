#pragma once

#include <string>
#include <string_view>

#include <afxwin.h>

/// The window-free code keeps texts as UTF-8, controls and CString as UTF-16. Neither direction fails: what is not
/// well-formed becomes U+FFFD.
std::string ToUtf8(const CString& text);
CString FromUtf8(std::string_view text);
