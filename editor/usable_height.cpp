#include "editor/usable_height.h"

#include <cmath>

namespace editing {

namespace {

constexpr double kNoHeight = 1e-10;
constexpr double kLeastHeight = 0.2;

}  // namespace

double usable_height(double height) { return std::abs(height) <= kNoHeight ? kLeastHeight : height; }

}  // namespace editing
