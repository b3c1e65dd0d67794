#include "editor/view_reading.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "od/ge/OdGeLine3d.h"

namespace editing {

namespace {

constexpr double kReadableTurn = 0.47123889803846897;  // 27 degrees
constexpr double kReadableFrom = 5.811946409141117;    // 333 degrees
constexpr double kMostProjectedTurn = std::numbers::pi / 4;

constexpr double kCaretPixels = 13.0;
constexpr double kCaretShare = 0.005;

/// The view's up vector as it is seen on the text's plane; of no length where the plane is seen edge on.
OdGeVector3d up_on_plane(const OdGsView& view, const OdGePlane& plane) {
  OdGePoint3d tip;
  const OdGePoint3d from = plane.origin() + view.upVector();
  if (!OdGeLine3d(from, view.viewDir()).intersectWith(plane, tip)) return {0, 0, 0};
  return tip - plane.origin();
}

bool is_turned(const OdGsView& view, const OdGeVector3d& up_at_start, const text_frame& frame) {
  const double turn = std::abs(up_at_start.angleTo(frame.up()));
  if (turn > kReadableTurn && turn < kReadableFrom) return true;
  const OdGeVector3d seen = up_on_plane(view, frame.plane());
  return seen.isZeroLength() || seen.angleTo(frame.up()) > kMostProjectedTurn;
}

}  // namespace

view_reading read_view(const OdGsView& view, const OdGeVector3d& up_at_start, const text_frame& frame,
                       double text_height) {
  const OdGsDeviceRect& device = view.deviceRect();
  view_reading reading;
  reading.turned = is_turned(view, up_at_start, frame);
  reading.caret_pixels = std::max(kCaretPixels, kCaretShare / std::hypot(device.width(), device.height()));
  reading.magnification = reading.caret_pixels / (text_height * view.pixelsPerUnit());
  reading.view_height = device.height();
  return reading;
}

}  // namespace editing
