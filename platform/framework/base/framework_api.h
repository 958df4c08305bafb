#pragma once

#include <cassert>

#include <windows.h>

#ifdef FRAMEWORK_EXPORTS
#define FRAMEWORK_API __declspec(dllexport)
#else
#define FRAMEWORK_API __declspec(dllimport)
#endif

/// Marks a class that one library exports and others use; the exporting library is compiled with _AFXEXT.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif

/// A condition that only a programmer's mistake makes false. Checked in debug builds, not even evaluated in others.
#define ASSERT(condition) assert(condition)

/// As ASSERT, but the expression is evaluated in every build.
#ifdef NDEBUG
#define VERIFY(expression) static_cast<void>(expression)
#else
#define VERIFY(expression) ASSERT(expression)
#endif

/// Sends printf-style text to the debugger; arguments are not evaluated in release builds.
#ifdef NDEBUG
#define TRACE(...) static_cast<void>(0)
#else
#define TRACE(...) AfxTrace(__VA_ARGS__)
#endif

/// Sends printf-style wide text, cut after 511 characters, to the debugger.
FRAMEWORK_API void AfxTrace(LPCWSTR format, ...);

/// A place in a list or map. Opaque; null stands for "none" or "past the last".
using POSITION = struct FrameworkPosition*;
