#include "editor/moved_view.h"

#include <cmath>

namespace editing {

namespace {

/// Room around a text, in pixels.
constexpr double kMarginAcross = 25;
constexpr double kMarginAlong = 2;

/// Where the view is to look on one axis. A box that is wider than the view follows the caret's zone.
double target_on_axis(dead_zone& zone, double caret, double box_center, double box_size, double margin,
                      double view_size) {
  zone.begin_at(caret);
  double target = box_center;
  if (box_size > view_size) {
    zone.follow(caret, view_size);
    target = zone.center();
  }
  const double whole = box_size + margin;
  return whole > view_size ? target + pull_to_box(zone.center(), box_center, whole, view_size) : target;
}

}  // namespace

void move_view(OdGsView& view, const shown_text& text, const view_reading& reading, dead_zones& zones) {
  const OdGsDeviceRect& device = view.deviceRect();
  const double width = view.fieldWidth() / reading.magnification;
  const double height = view.fieldHeight() / reading.magnification;
  const double along = std::abs(width * kMarginAlong / device.width());
  const double across = std::abs(height * kMarginAcross / device.height());
  const OdGePoint3d caret = text.caret_middle();
  const OdGePoint3d center = text.extents.center();
  const OdGeVector3d size = text.extents.maxPoint() - text.extents.minPoint();
  const OdGePoint3d at{target_on_axis(zones.x, caret.x, center.x, size.x + along, along, width),
                       target_on_axis(zones.y, caret.y, center.y, size.y + across + along, along, height), 0};
  const OdGePoint3d target = text.frame.text_to_world() * at;
  view.setView(target + text.frame.normal, target, text.frame.up(), width, height);
}

}  // namespace editing
