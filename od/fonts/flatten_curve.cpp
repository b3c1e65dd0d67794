#include "od/fonts/flatten_curve.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMaxPieces = 256;

int pieces(double count) { return static_cast<int>(std::clamp(std::ceil(count), 1.0, kMaxPieces)); }

/// A polynomial curve strays from its chords by at most a `bend / (8 n^2)` share, `bend` being the largest
/// second derivative.
int piecesForBend(double bend, double tolerance) { return pieces(std::sqrt(bend / (8 * tolerance))); }

OdGePoint2d between(const OdGePoint2d& a, const OdGePoint2d& b, double t) { return a + (b - a) * t; }

double secondDifference(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& c) {
  return ((a - b) + (c - b)).length();
}

}  // namespace

void odFlattenQuadratic(OdFontLine& line, const OdGePoint2d& control, const OdGePoint2d& end,
                        double tolerance) {
  const OdGePoint2d start = line.back();
  int n = piecesForBend(2 * secondDifference(start, control, end), tolerance);
  for (int i = 1; i < n; ++i) {
    double t = static_cast<double>(i) / n;
    line.push_back(between(between(start, control, t), between(control, end, t), t));
  }
  line.push_back(end);
}

void odFlattenCubic(OdFontLine& line, const OdGePoint2d& control1, const OdGePoint2d& control2,
                    const OdGePoint2d& end, double tolerance) {
  const OdGePoint2d start = line.back();
  double bend =
      6 * std::max(secondDifference(start, control1, control2), secondDifference(control1, control2, end));
  int n = piecesForBend(bend, tolerance);
  for (int i = 1; i < n; ++i) {
    double t = static_cast<double>(i) / n;
    OdGePoint2d middle = between(control1, control2, t);
    OdGePoint2d left = between(between(start, control1, t), middle, t);
    OdGePoint2d right = between(middle, between(control2, end, t), t);
    line.push_back(between(left, right, t));
  }
  line.push_back(end);
}

void odFlattenArc(OdFontLine& line, const OdGePoint2d& center, double radius, double startAngle, double sweep,
                  double tolerance) {
  double step = radius > tolerance ? 2 * std::acos(1 - tolerance / radius) : M_PI;
  int n = pieces(std::abs(sweep) / step);
  for (int i = 1; i <= n; ++i) {
    double angle = startAngle + sweep * i / n;
    line.push_back(center + OdGeVector2d{std::cos(angle), std::sin(angle)} * radius);
  }
}

void odFlattenBulge(OdFontLine& line, const OdGePoint2d& start, const OdGePoint2d& end, double bulge,
                    double tolerance) {
  OdGeVector2d chord = end - start;
  if (bulge != 0 && chord.length() > 0) {
    // The centre lies off the chord's middle, to its left for a positive bulge of less than a half circle.
    double offset = (1 - bulge * bulge) / (4 * bulge);
    OdGePoint2d center = between(start, end, 0.5) + OdGeVector2d{-chord.y, chord.x} * offset;
    OdGeVector2d spoke = start - center;
    odFlattenArc(line, center, spoke.length(), std::atan2(spoke.y, spoke.x), 4 * std::atan(bulge), tolerance);
    line.pop_back();
  }
  line.push_back(end);
}
