#pragma once

#include <cmath>
#include <numbers>

/// A whole turn, in radians.
inline constexpr double kOdTurn = 2 * std::numbers::pi;

/// The angle from `start` counterclockwise to `end`, in radians, above 0 and up to a whole turn.
inline double odSweep(double start, double end) {
  const double angle = std::fmod(end - start, kOdTurn);
  return angle <= 0 ? angle + kOdTurn : angle;
}
