#pragma once

#include <afxcoll.h>

#ifdef GAUGEBASE_EXPORTS
#define GAUGEBASE_API __declspec(dllexport)
#else
#define GAUGEBASE_API __declspec(dllimport)
#endif

// GaugeBase.dll exports these two operations with C++ linkage and nothing else. Any library that exports the same two
// names may stand in its place; this one answers from the ISO 286 system of limits and fits.

/// Lists what field codes are made of. Every element of `first` directly followed by an element of `second` is written
/// like a code, whether or not the library knows it for a size; `shortList` holds complete codes, the recommended
/// ones. All three come in empty. Here: letters as the standard's tables print them, holes then shafts; grades from the
/// finest on; the recommended holes and shafts from the finest grade on.
/// @return  nonzero when the lists are filled; this library always fills them
GAUGEBASE_API int GetTolList(CStringArray& first, CStringArray& second, CStringArray& shortList);

/// Limit deviations of a field for a nominal size.
///
/// @param nominal  millimetres; known are sizes over 0 up to 3150
/// @param field    a code such as "H7", case-sensitive, without blanks; null is an unknown field
/// @param lower    receives the lower deviation, micrometres, signed; must not be null
/// @param upper    receives the upper deviation likewise
/// @return         nonzero when the tables give the field for this size; on 0 the outputs are left as they were
/// Allocates nothing.
GAUGEBASE_API int GetDimTol(float nominal, const char* field, float* lower, float* upper);
