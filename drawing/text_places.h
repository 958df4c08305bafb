#pragma once

#include "drawing/display_list.h"

#include <functional>

/// Of a text of one line, pixels.
struct TextExtent
{
    int width = 0;
    int height = 0;
};

using MeasureText = std::function<TextExtent(const std::string& text)>;

/// The picture with its texts where they can be read, in the font that `measure` knows, all of them left-aligned.
///
/// A text that would leave the picture moves just so far that it lies inside; one wider than the picture keeps its
/// beginning. One that would cover an earlier text goes below that, as long as there is room. Moved texts and those
/// that a line runs through have a halo, which comes after everything else; the letters of every text that a halo
/// reaches come after the halos. All other primitives are as they were.
/// @param width  of the picture, pixels, as its height
DisplayList WithReadableTexts(const DisplayList& list, const MeasureText& measure, int width, int height);
