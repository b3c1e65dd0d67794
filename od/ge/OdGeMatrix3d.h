#pragma once

#include <array>

#include "od/ge/OdGePoint3d.h"

class OdGePlane;

/// A transformation of space: a 4 by 4 matrix that is multiplied from the left to column vectors.
class OdGeMatrix3d {
 public:
  /// The identity.
  OdGeMatrix3d() = default;

  static const OdGeMatrix3d kIdentity;

  static OdGeMatrix3d translation(const OdGeVector3d& by);
  /// Turns by `angle` radians about `axis` through `center`.
  static OdGeMatrix3d rotation(double angle, const OdGeVector3d& axis, const OdGePoint3d& center = {});
  static OdGeMatrix3d scaling(double factor, const OdGePoint3d& center = {});
  static OdGeMatrix3d scaling(double x, double y, double z);
  /// Maps the origin and the unit axes of the world to these.
  static OdGeMatrix3d coordSystem(const OdGePoint3d& origin, const OdGeVector3d& x, const OdGeVector3d& y,
                                  const OdGeVector3d& z);
  /// From coordinates in a plane (u, v, distance) to the world.
  static OdGeMatrix3d planeToWorld(const OdGePlane& plane);
  /// From object coordinates of a normal, by the arbitrary axis algorithm, to the world.
  static OdGeMatrix3d planeToWorld(const OdGeVector3d& normal);
  static OdGeMatrix3d worldToPlane(const OdGePlane& plane);
  static OdGeMatrix3d worldToPlane(const OdGeVector3d& normal);

  /// Element at `row` and `column`, each 0 to 3.
  double operator()(int row, int column) const { return m_entry[index(row, column)]; }
  double& operator()(int row, int column) { return m_entry[index(row, column)]; }

  OdGePoint3d origin() const { return {(*this)(0, 3), (*this)(1, 3), (*this)(2, 3)}; }
  OdGeVector3d xAxis() const { return column(0); }
  OdGeVector3d yAxis() const { return column(1); }
  OdGeVector3d zAxis() const { return column(2); }

  /// Determinant of the upper left 3 by 3 elements: negative where the transformation mirrors.
  double det() const;
  /// The transformation back. Throws `OdError(eDegenerateGeometry)` when there is none.
  OdGeMatrix3d inverse() const;
  bool isEqualTo(const OdGeMatrix3d& other, const OdGeTol& tol = OdGeContext::gTol) const;

  friend OdGeMatrix3d operator*(const OdGeMatrix3d& a, const OdGeMatrix3d& b);
  friend OdGePoint3d operator*(const OdGeMatrix3d& m, const OdGePoint3d& p);
  friend OdGeVector3d operator*(const OdGeMatrix3d& m, const OdGeVector3d& v);
  friend bool operator==(const OdGeMatrix3d&, const OdGeMatrix3d&) = default;

 private:
  static std::size_t index(int row, int column) { return static_cast<std::size_t>(row * 4 + column); }
  OdGeVector3d column(int n) const { return {(*this)(0, n), (*this)(1, n), (*this)(2, n)}; }

  std::array<double, 16> m_entry{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};
