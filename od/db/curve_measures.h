#pragma once

#include <optional>

#include "od/db/OdDbEntity.h"

/// Length of a line, an arc, a circle, a polyline, an ellipse or a spline; nothing for what has none.
std::optional<double> odCurveLength(const OdDbEntity& entity);

/// Area within a circle, an ellipse or a polyline; of an open polyline and of an arc up to the chord of its
/// ends.
std::optional<double> odCurveArea(const OdDbEntity& entity);
