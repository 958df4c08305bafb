#pragma once

#include <afxwin.h>

struct DisplayList;

/// Paints a drawing on a device context, primitive by primitive in its order: lines and outlines one pixel wide and
/// black, texts with the context's font and where they can be read. The context's own settings come back at the end.
/// Throws nothing: a polygon for which the system has no graphics object left is missing from the picture.
/// @param picture  its size, pixels
void PaintDisplayList(CDC& dc, const DisplayList& list, CSize picture);
