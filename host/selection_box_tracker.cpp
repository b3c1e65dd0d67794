#include "host/selection_box_tracker.h"

#include "od/gi/OdGiGeometry.h"

namespace {

constexpr int kGreen = 3;
constexpr int kBlue = 5;

}  // namespace

HostSelectionBoxTracker::HostSelectionBoxTracker(const OdGePoint3d& first) {
  m_box->rectangle = {first, first};
}

void HostSelectionBoxTracker::setPoint(const OdGePoint3d& point) { m_box->rectangle.opposite = point; }

std::vector<OdGiDrawable*> HostSelectionBoxTracker::drawables() { return {m_box.get()}; }

bool HostSelectionBoxTracker::Box::worldDraw(OdGiWorldDraw& draw) {
  const auto& [first, opposite] = rectangle;
  draw.subEntityTraits().setColor(rectangle.takesCrossing() ? kGreen : kBlue);
  draw.geometry().polyline(
      {first, {opposite.x, first.y, first.z}, opposite, {first.x, opposite.y, first.z}, first});
  return true;
}
