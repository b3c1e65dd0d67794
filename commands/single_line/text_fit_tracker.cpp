#include "commands/single_line/text_fit_tracker.h"

#include <cmath>

#include "editor/text_justify.h"
#include "host/input.h"

namespace {

constexpr unsigned kCorners = 4;

/// From the start to the lower right corner of the box, which lies below the end of the baseline by the depth
/// of the letters. That it counts along with the length is deliberate.
double length_of(const OdDbText& text) {
  OdArray<OdGePoint3d> corners;
  text.getBoundingPoints(corners);
  if (corners.size() < kCorners) throw OdError_InvalidIndex();
  return text.position().distanceTo(corners[3]);
}

}  // namespace

TextFitTracker::TextFitTracker(const OdDbText& text) : m_preview(odCastOrThrow<OdDbText>(text.clone())) {
  ApplyTextJustify(m_preview, OdDb::kTextLeft, OdDb::kTextBase);
  takePlane();
  m_unit_length = length_of(*m_preview) / m_preview->widthFactor();
}

void TextFitTracker::takePlane() {
  m_preview->getPlane(m_plane);
  m_start = m_plane.paramOf(m_preview->position());
}

void TextFitTracker::setStart(const OdGePoint3d& start) {
  m_preview->setPosition(start);
  takePlane();
}

void TextFitTracker::setEnd(const OdGePoint3d& end) {
  const OdGePoint2d at = m_plane.paramOf(end);
  const double x = at.x - m_start.x, y = at.y - m_start.y;
  m_preview->setRotation(std::atan2(y, x));
  m_preview->setWidthFactor(std::hypot(x, y) / m_unit_length);
}

bool TextFitTracker::filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) {
  if (message.number == WM_MOUSEMOVE) setEnd(point);
  return false;
}
