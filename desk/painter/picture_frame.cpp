#include "desk/painter/picture_frame.h"

#include <algorithm>

namespace {
/// A target that is so many fields away from the origin asks for a new frame.
constexpr double kFarInFields = 1e6;
}  // namespace

PictureFrame::PictureFrame(const OdGsView& view)
    : m_origin(view.target()),
      m_world_to_frame(view.getWorldToEyeTransform()),
      m_view_direction(view.viewDir()),
      m_up(view.upVector()) {}

bool PictureFrame::serves(const OdGsView& view) const {
  const double reach = std::max(view.fieldWidth(), view.fieldHeight()) * kFarInFields;
  return view.viewDir().isEqualTo(m_view_direction) && view.upVector().isEqualTo(m_up) &&
         view.target().distanceTo(m_origin) < reach;
}

QPointF PictureFrame::fromWorld(const OdGePoint3d& point) const {
  const OdGePoint3d flat = m_world_to_frame * point;
  return {flat.x, flat.y};
}

QPointF PictureFrame::fromWorld(const OdGeVector3d& vector) const {
  const OdGeVector3d flat = m_world_to_frame * vector;
  return {flat.x, flat.y};
}

QTransform PictureFrame::toDevice(const OdGsView& view) const {
  const OdGeMatrix3d m = view.worldToDeviceMatrix() * m_world_to_frame.inverse();
  return {m(0, 0), m(1, 0), m(0, 1), m(1, 1), m(0, 3), m(1, 3)};
}
