#pragma once

#include "od/ge/OdGeVector3d.h"

/// A place in space, in drawing units.
struct OdGePoint3d {
  double x = 0, y = 0, z = 0;

  static const OdGePoint3d kOrigin;

  OdGeVector3d asVector() const { return {x, y, z}; }
  double distanceTo(const OdGePoint3d& p) const { return (*this - p).length(); }
  bool isEqualTo(const OdGePoint3d& p, const OdGeTol& tol = OdGeContext::gTol) const {
    return distanceTo(p) <= tol.equalPoint;
  }

  OdGePoint3d& operator+=(const OdGeVector3d& v) { return *this = {x + v.x, y + v.y, z + v.z}; }
  OdGePoint3d& operator-=(const OdGeVector3d& v) { return *this = {x - v.x, y - v.y, z - v.z}; }
  friend OdGePoint3d operator+(OdGePoint3d p, const OdGeVector3d& v) { return p += v; }
  friend OdGePoint3d operator-(OdGePoint3d p, const OdGeVector3d& v) { return p -= v; }
  friend OdGeVector3d operator-(const OdGePoint3d& a, const OdGePoint3d& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
  }
  friend bool operator==(const OdGePoint3d&, const OdGePoint3d&) = default;
};
