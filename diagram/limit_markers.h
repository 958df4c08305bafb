#pragma once

#include "drawing/display_list.h"

#include <optional>

/// Deviations of the limits that the chain diagram marks, signed, in one length unit.
struct DiagramDeviations
{
    double requiredUpper = 0.0;
    double requiredLower = 0.0;
    double computedUpper = 0.0;
    double computedLower = 0.0;
};

/// Where a limit's marker line stands and where its labels hang.
struct LimitMarker
{
    std::optional<int> x;  // nothing: the deviation is not finite, no line
    int labelX = 0;
    TextAlign labelAlign = TextAlign::Left;
};

/// The four markers of the chain diagram.
struct LimitMarkers
{
    LimitMarker requiredUpper;
    LimitMarker requiredLower;
    LimitMarker computedUpper;
    LimitMarker computedLower;
    bool areSpread = false;  // the spacing rule moved some of them: they no longer stand at their values
};

/// Pixels between the centre line and the largest deviation's marker, in an area `width` pixels wide. Not above 0 when
/// the area is too narrow for a scale.
int ScaleReach(int width);

/// Places the markers on the scale on which the largest finite deviation stands 60 pixels inside the area's edge and 0
/// on the centre line; when all are 0 all stand on the centre line. Distances are cut to whole pixels, but for one that
/// is whole within a billionth: deviations that are equal as decimal numbers share a column.
///
/// A marker at or right of the centre line has its labels to the right of it, one pixel away; any other has them to the
/// left. The labels of a marker without a line stand at the centre line.
LimitMarkers PlaceMarkers(const DiagramDeviations& deviations, int width);

/// As PlaceMarkers, but keeps the other computed marker at least 40 pixels from one on its side that has the largest
/// deviation of all.
///
/// The other one moves to 40 pixels inside; the distances of the required markers from the centre line are multiplied
/// by its former distance over its new one. Without 40 pixels between the outer marker and the centre line nothing
/// moves.
LimitMarkers PlaceSpreadMarkers(const DiagramDeviations& deviations, int width);
