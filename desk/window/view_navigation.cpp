#include "desk/window/view_navigation.h"

#include <QWheelEvent>
#include <cmath>

#include "desk/document/desk_document.h"
#include "desk/document/space_extents.h"
#include "desk/document/view_motion.h"

namespace {
constexpr double kZoomPerNotch = 1.25;
constexpr double kNotch = 120;
const OdGeExtents3d kEmptySheet({0, 0, 0}, {420, 297, 0});

OdGePoint2d pixelOf(const QPointF& point) { return {point.x(), point.y()}; }
}  // namespace

void ViewNavigation::showAll() {
  if (!m_document) return;
  const OdGeExtents3d box = spaceExtents(m_document->database());
  showBox(m_view, box.isValidExtents() ? box : kEmptySheet);
}

bool ViewNavigation::turn(const QWheelEvent& event) {
  const double notches = event.angleDelta().y() / kNotch;
  if (notches == 0) return false;
  zoomAt(m_view, pixelOf(event.position()), std::pow(kZoomPerNotch, notches));
  return true;
}

bool ViewNavigation::drag(const QPointF& pixel) {
  if (!m_grabbed) return false;
  pan(m_view, pixelOf(*m_grabbed), pixelOf(pixel));
  m_grabbed = pixel;
  return true;
}
