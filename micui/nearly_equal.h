#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace micui {

/// Whether `a` and `b` agree within `epsilons` machine epsilons of the larger magnitude. What is not finite
/// has to be equal exactly.
inline bool agree_within(double epsilons, double a, double b) {
  if (std::isinf(a) || std::isinf(b)) return a == b;
  const double slack = epsilons * std::numeric_limits<double>::epsilon();
  return std::abs(a - b) <= slack * std::max(std::abs(a), std::abs(b));
}

/// Whether two lengths count as one, so that a zoom by a hair changes nothing.
inline bool nearly_equal(double a, double b) { return agree_within(1024, a, b); }

/// Whether `a` is at most `b`, with the slack that a point on an edge is given. False with a NaN.
inline bool at_most(double a, double b) { return a <= b || agree_within(10000, a, b); }

}  // namespace micui
