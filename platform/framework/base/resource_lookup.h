#pragma once

#include "base/framework_api.h"

/// The instance of the running program.
FRAMEWORK_API HINSTANCE AfxGetInstanceHandle();

/// The module whose resources are looked at first: the program, until AfxSetResourceHandle names another one.
/// There is one for the whole process.
FRAMEWORK_API HINSTANCE AfxGetResourceHandle();
FRAMEWORK_API void AfxSetResourceHandle(HINSTANCE resourceModule);

/// The module to load a resource from: the current resource module when it holds the resource, else the program when it
/// does, else again the current resource module, where loading then fails.
FRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);

/// Copies a string resource, of the current resource module or else of the program, cut to `capacity` characters with
/// the terminator.
/// @return  length of the copied text; 0, and an empty text, when no such string exists
FRAMEWORK_API int AfxLoadString(UINT id, LPWSTR buffer, UINT capacity = 256);
