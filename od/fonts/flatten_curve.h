#pragma once

#include <vector>

#include "od/ge/OdGePoint2d.h"

/// Curves as polylines. Each function appends the points after the curve's start, the last being its end, so
/// that no point of the curve lies further than `tolerance` from the polyline. The start is the last point of
/// `line`, or given.
using OdFontLine = std::vector<OdGePoint2d>;

void odFlattenQuadratic(OdFontLine& line, const OdGePoint2d& control, const OdGePoint2d& end,
                        double tolerance);

void odFlattenCubic(OdFontLine& line, const OdGePoint2d& control1, const OdGePoint2d& control2,
                    const OdGePoint2d& end, double tolerance);

/// An arc that starts at `startAngle` radians and runs over `sweep` radians, counter-clockwise when positive.
void odFlattenArc(OdFontLine& line, const OdGePoint2d& center, double radius, double startAngle, double sweep,
                  double tolerance);

/// An arc over the chord from `start` to `end`; `bulge` is the tangent of a quarter of its angle, positive
/// counter-clockwise, 0 for a straight line.
void odFlattenBulge(OdFontLine& line, const OdGePoint2d& start, const OdGePoint2d& end, double bulge,
                    double tolerance);
