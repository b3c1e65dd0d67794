#include "editor/facing_view.h"

namespace editing {

namespace {

OdGeMatrix3d magnified(const screen_axes& axes, double magnification) {
  return OdGeMatrix3d::coordSystem({}, axes.right * magnification, axes.up * magnification, axes.to_viewer);
}

/// Of one axis of the device, in pixels. The zone follows the caret; what is larger than the view shows the
/// caret's zone in its middle.
double shift_on_axis(dead_zone& zone, double caret, double box_center, double box_size, double view_size,
                     bool too_big) {
  zone.begin_at(caret);
  zone.follow(caret, view_size);
  if (box_size > view_size)
    return view_size / 2 - zone.center() - pull_to_box(zone.center(), box_center, box_size, view_size);
  return too_big ? view_size / 2 - box_center : nudge_into_view(box_center, box_size / 2, view_size);
}

}  // namespace

screen_axes screen_axes::of(const OdGsView& view) {
  screen_axes axes;
  axes.up = view.upVector();
  axes.right = (-view.viewDir()).crossProduct(axes.up).normal();
  axes.to_viewer = axes.right.crossProduct(axes.up).normal();
  return axes;
}

OdGeMatrix3d facing_transform(const text_frame& frame, const screen_axes& axes, double magnification,
                              const OdGeVector3d& shift) {
  const OdGeMatrix3d to_text = frame.world_to_text();
  const OdGePoint3d inserted = to_text * frame.location;
  return OdGeMatrix3d::translation(shift) * OdGeMatrix3d::translation(frame.location - OdGePoint3d{}) *
         magnified(axes, magnification) * OdGeMatrix3d::translation(OdGePoint3d{} - inserted) * to_text;
}

OdGeVector3d facing_shift(const OdGsView& view, const shown_text& text, const screen_axes& axes,
                          const view_reading& reading, dead_zones& zones) {
  const OdGsDeviceRect& device = view.deviceRect();
  const OdGeMatrix3d unmoved = facing_transform(text.frame, axes, reading.magnification, {0, 0, 0});
  const OdGeMatrix3d to_device = view.worldToDeviceMatrix() * unmoved * text.frame.text_to_world();
  OdGeExtents3d box = text.extents;
  if (text.tools) box.addExt(text.tools(view.pixelSize() / reading.magnification));
  box.transformBy(to_device);
  const OdGePoint3d caret = to_device * text.caret_middle();
  const OdGeVector3d size = box.maxPoint() - box.minPoint();
  const double right = shift_on_axis(zones.x, caret.x - device.left, box.center().x - device.left, size.x,
                                     device.width(), reading.too_big());
  const double down = shift_on_axis(zones.y, caret.y - device.top, box.center().y - device.top, size.y,
                                    device.height(), reading.too_big());
  return (axes.right * right - axes.up * down) * view.pixelSize();
}

}  // namespace editing
