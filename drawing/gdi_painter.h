#pragma once

#include <afxwin.h>

struct DisplayList;

/// Paints a drawing on a device context, primitive by primitive in its order: lines and outlines one pixel wide and
/// black, texts with the context's font on whatever is below them. The context's own settings come back at the end.
///
/// A text that would leave the picture on the left or on the right moves just so far that it lies inside, and its
/// ground is white then, as lines may run below it; one wider than the picture keeps its beginning. Throws nothing: a
/// polygon for which the system has no graphics object left is missing from the picture.
/// @param width  of the picture, pixels
void PaintDisplayList(CDC& dc, const DisplayList& list, int width);
