#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A point of a drawing, millimetres, y upwards.
struct DrawingPoint
{
    double x = 0.0;
    double y = 0.0;

    bool operator==(const DrawingPoint&) const = default;
};

/// One dimension of a drawing. The texts are UTF-8 and stay as the file has them; nominal and deviations are decimal
/// texts in millimetres.
struct DrawingDimension
{
    std::string id;                ///< what scripts call it; unique in the drawing unless empty
    std::string name;              ///< label that a reader sees
    std::int32_t kind = 0;         ///< 1, 2 or 3; 2 is a dimension without tolerance
    std::string nominal;           ///< nominal size
    std::string field;             ///< tolerance field code, such as h8; may be empty
    std::string upper;             ///< upper deviation
    std::string lower;             ///< lower deviation
    std::string caption;           ///< text for the tolerance dialog's caption field
    std::int32_t increasing = 0;   ///< non-zero: increasing link
    std::int32_t weightFixed = 0;  ///< non-zero: the link's weight can't be changed
    DrawingPoint from;             ///< first measured point
    DrawingPoint to;               ///< second measured point
    double offset = 0.0;           ///< millimetres from the measured points to the dimension line, left of from-to
};

/// A drawing: what there is to see and what there is to pick.
struct Drawing
{
    std::string title;
    std::string comment;  ///< where the figures come from; shown nowhere
    std::vector<DrawingDimension> dimensions;
    std::vector<std::vector<DrawingPoint>> outlines;  ///< closed when the last point repeats the first
};
