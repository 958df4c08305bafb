#pragma once

#include <afxwin.h>

struct DisplayList;

/// Paints a drawing on a device context, primitive by primitive in its order: lines and outlines one pixel wide and
/// black, texts with the context's font on whatever is below them. The context's own settings come back at the end.
///
/// A text that would leave the picture moves just so far that it lies inside; one wider than the picture keeps its
/// beginning. One that would cover an earlier text goes below that, as long as there is room. One moved sideways
/// has a white ground, as lines may run below it. Throws nothing: a polygon for which the system has no graphics object
/// left is missing from the picture.
/// @param picture  its size, pixels
void PaintDisplayList(CDC& dc, const DisplayList& list, CSize picture);
