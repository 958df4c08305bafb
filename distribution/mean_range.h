#pragma once

/// Whether a centre of grouping lies within the tolerance field, both ends included.
///
/// The mean and the limits are compared rounded to nine decimal places, so that an end typed exactly is accepted
/// although the sum of nominal and deviation differs from it in the last bit. A mean that is not a number lies in no
/// field.
/// @param mean      an absolute size
/// @param upperDev  ES, signed
/// @param lowerDev  EI, signed
bool IsMeanInsideField(double mean, double nominal, double upperDev, double lowerDev);
