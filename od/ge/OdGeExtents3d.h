#pragma once

#include <algorithm>
#include <limits>

#include "od/ge/OdGeMatrix3d.h"

/// A box along the axes. A fresh one is empty: it holds no point.
class OdGeExtents3d {
 public:
  OdGeExtents3d() = default;
  OdGeExtents3d(const OdGePoint3d& minimum, const OdGePoint3d& maximum) : m_min(minimum), m_max(maximum) {}

  const OdGePoint3d& minPoint() const { return m_min; }
  const OdGePoint3d& maxPoint() const { return m_max; }
  bool isValidExtents() const { return m_min.x <= m_max.x && m_min.y <= m_max.y && m_min.z <= m_max.z; }

  void addPoint(const OdGePoint3d& p) {
    m_min = {std::min(m_min.x, p.x), std::min(m_min.y, p.y), std::min(m_min.z, p.z)};
    m_max = {std::max(m_max.x, p.x), std::max(m_max.y, p.y), std::max(m_max.z, p.z)};
  }
  void addExt(const OdGeExtents3d& other) {
    if (!other.isValidExtents()) return;
    addPoint(other.m_min);
    addPoint(other.m_max);
  }
  /// Becomes the box around the transformed box.
  void transformBy(const OdGeMatrix3d& m);
  /// True when `p` lies in the box, its faces included.
  bool contains(const OdGePoint3d& p) const;
  OdGePoint3d center() const { return m_min + (m_max - m_min) * 0.5; }

 private:
  static constexpr double kFar = std::numeric_limits<double>::max();

  OdGePoint3d m_min{kFar, kFar, kFar};
  OdGePoint3d m_max{-kFar, -kFar, -kFar};
};
