#include "od/ge/OdGeVector3d.h"

#include <numbers>

const OdGeVector3d OdGeVector3d::kIdentity{0, 0, 0};
const OdGeVector3d OdGeVector3d::kXAxis{1, 0, 0};
const OdGeVector3d OdGeVector3d::kYAxis{0, 1, 0};
const OdGeVector3d OdGeVector3d::kZAxis{0, 0, 1};

OdGeVector3d OdGeVector3d::normal() const {
  double size = length();
  return size > 0 ? *this / size : *this;
}

double OdGeVector3d::angleTo(const OdGeVector3d& v) const {
  return std::atan2(crossProduct(v).length(), dotProduct(v));
}

double OdGeVector3d::angleTo(const OdGeVector3d& v, const OdGeVector3d& reference) const {
  double angle = angleTo(v);
  bool clockwise = crossProduct(v).dotProduct(reference) < 0;
  return clockwise ? 2 * std::numbers::pi - angle : angle;
}

OdGeVector3d OdGeVector3d::rotatedBy(double angle, const OdGeVector3d& axis) const {
  OdGeVector3d unit = axis.normal();
  double c = std::cos(angle), s = std::sin(angle);
  return *this * c + unit.crossProduct(*this) * s + unit * (unit.dotProduct(*this) * (1 - c));
}

OdGeVector3d OdGeVector3d::perpVector() const {
  // The bound 1/64 is part of the file format: every reader must choose the same axis.
  OdGeVector3d unit = normal();
  bool nearZ = std::abs(unit.x) < 1.0 / 64 && std::abs(unit.y) < 1.0 / 64;
  return (nearZ ? kYAxis : kZAxis).crossProduct(unit).normal();
}

bool OdGeVector3d::isParallelTo(const OdGeVector3d& v, const OdGeTol& tol) const {
  return normal().crossProduct(v.normal()).length() <= tol.equalVector;
}

bool OdGeVector3d::isPerpendicularTo(const OdGeVector3d& v, const OdGeTol& tol) const {
  return std::abs(normal().dotProduct(v.normal())) <= tol.equalVector;
}

bool OdGeVector3d::isEqualTo(const OdGeVector3d& v, const OdGeTol& tol) const {
  return (*this - v).length() <= tol.equalVector;
}
