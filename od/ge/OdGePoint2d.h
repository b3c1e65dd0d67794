#pragma once

#include <cmath>

/// A direction and length in a plane.
struct OdGeVector2d {
  double x = 0, y = 0;

  double length() const { return std::hypot(x, y); }
  double dotProduct(const OdGeVector2d& v) const { return x * v.x + y * v.y; }
  friend OdGeVector2d operator+(const OdGeVector2d& a, const OdGeVector2d& b) {
    return {a.x + b.x, a.y + b.y};
  }
  friend OdGeVector2d operator-(const OdGeVector2d& a, const OdGeVector2d& b) {
    return {a.x - b.x, a.y - b.y};
  }
  friend OdGeVector2d operator*(const OdGeVector2d& v, double s) { return {v.x * s, v.y * s}; }
  friend bool operator==(const OdGeVector2d&, const OdGeVector2d&) = default;
};

/// A place in a plane.
struct OdGePoint2d {
  double x = 0, y = 0;

  double distanceTo(const OdGePoint2d& p) const { return (*this - p).length(); }
  friend OdGePoint2d operator+(const OdGePoint2d& p, const OdGeVector2d& v) { return {p.x + v.x, p.y + v.y}; }
  friend OdGePoint2d operator-(const OdGePoint2d& p, const OdGeVector2d& v) { return {p.x - v.x, p.y - v.y}; }
  friend OdGeVector2d operator-(const OdGePoint2d& a, const OdGePoint2d& b) { return {a.x - b.x, a.y - b.y}; }
  friend bool operator==(const OdGePoint2d&, const OdGePoint2d&) = default;
};
