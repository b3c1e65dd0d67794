#pragma once

#include <cmath>

#include "od/ge/OdGeTol.h"

/// A direction and length in space.
struct OdGeVector3d {
  double x = 0, y = 0, z = 0;

  static const OdGeVector3d kIdentity;  ///< the zero vector
  static const OdGeVector3d kXAxis;
  static const OdGeVector3d kYAxis;
  static const OdGeVector3d kZAxis;

  double length() const { return std::sqrt(lengthSqrd()); }
  double lengthSqrd() const { return x * x + y * y + z * z; }
  bool isZeroLength(const OdGeTol& tol = OdGeContext::gTol) const { return length() <= tol.equalPoint; }
  double dotProduct(const OdGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
  OdGeVector3d crossProduct(const OdGeVector3d& v) const {
    return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
  }
  /// The vector with length 1; a vector of length zero stays as it is.
  OdGeVector3d normal() const;
  /// Angle to `v` in radians, 0 to pi.
  double angleTo(const OdGeVector3d& v) const;
  /// Angle to `v` in radians, 0 to 2 pi, counter-clockwise seen against `reference`.
  double angleTo(const OdGeVector3d& v, const OdGeVector3d& reference) const;
  /// Turned by `angle` radians about `axis`, which need not have length 1.
  OdGeVector3d rotatedBy(double angle, const OdGeVector3d& axis) const;
  /// Any vector of length 1 at a right angle: the X axis that the arbitrary axis algorithm of drawing files
  /// gives to this normal.
  OdGeVector3d perpVector() const;
  bool isParallelTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const;
  bool isPerpendicularTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const;
  bool isEqualTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const;

  OdGeVector3d& operator+=(const OdGeVector3d& v) { return *this = {x + v.x, y + v.y, z + v.z}; }
  OdGeVector3d& operator-=(const OdGeVector3d& v) { return *this = {x - v.x, y - v.y, z - v.z}; }
  OdGeVector3d& operator*=(double s) { return *this = {x * s, y * s, z * s}; }
  friend OdGeVector3d operator+(OdGeVector3d a, const OdGeVector3d& b) { return a += b; }
  friend OdGeVector3d operator-(OdGeVector3d a, const OdGeVector3d& b) { return a -= b; }
  friend OdGeVector3d operator-(const OdGeVector3d& v) { return {-v.x, -v.y, -v.z}; }
  friend OdGeVector3d operator*(OdGeVector3d v, double s) { return v *= s; }
  friend OdGeVector3d operator*(double s, OdGeVector3d v) { return v *= s; }
  friend OdGeVector3d operator/(OdGeVector3d v, double s) { return v *= 1.0 / s; }
  friend bool operator==(const OdGeVector3d&, const OdGeVector3d&) = default;
};
