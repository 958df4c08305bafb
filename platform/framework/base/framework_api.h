#pragma once

#include <cassert>

#include <windows.h>

#ifdef FRAMEWORK_EXPORTS
#define FRAMEWORK_API __declspec(dllexport)
#else
#define FRAMEWORK_API __declspec(dllimport)
#endif

/// A condition that only a programmer's mistake makes false. Checked in debug builds, not even evaluated in others.
#define ASSERT(condition) assert(condition)

/// As ASSERT, but the expression is evaluated in every build.
#ifdef NDEBUG
#define VERIFY(expression) static_cast<void>(expression)
#else
#define VERIFY(expression) ASSERT(expression)
#endif

/// A place in a list or map. Opaque; null stands for "none" or "past the last".
using POSITION = struct FrameworkPosition*;
