#include "desk/document/view_motion.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSmallestField = 1e-9;
constexpr double kLargestField = 1e15;
constexpr double kMargin = 1.04;

void place(OdGsView& view, const OdGePoint3d& target, double width, double height) {
  const OdGeVector3d toEye = view.position() - view.target();
  view.setView(target + toEye, target, view.upVector(), width, height);
}

bool canShow(double width, double height) {
  const auto bearable = [](double side) { return side >= kSmallestField && side <= kLargestField; };
  return bearable(width) && bearable(height);
}

}  // namespace

void zoomAt(OdGsView& view, const OdGePoint2d& pixel, double factor) {
  const double width = view.fieldWidth() / factor;
  const double height = view.fieldHeight() / factor;
  if (!canShow(width, height)) return;
  const OdGePoint3d fixed = view.toWorld(pixel);
  place(view, fixed + (view.target() - fixed) * (1 / factor), width, height);
}

void pan(OdGsView& view, const OdGePoint2d& from, const OdGePoint2d& to) {
  const OdGeVector3d by = view.toWorld(from) - view.toWorld(to);
  place(view, view.target() + by, view.fieldWidth(), view.fieldHeight());
}

void showBox(OdGsView& view, const OdGeExtents3d& box) {
  if (!box.isValidExtents()) return;
  const OdGePoint3d center = box.center();
  OdGeMatrix3d worldToEye = view.getWorldToEyeTransform();
  OdGeExtents3d seen(box);
  seen.transformBy(worldToEye);
  double width = (seen.maxPoint().x - seen.minPoint().x) * kMargin;
  double height = (seen.maxPoint().y - seen.minPoint().y) * kMargin;
  const double least = std::max({width, height, kSmallestField * 1e3}) * 1e-3;
  if (std::max(width, height) < kSmallestField * 1e3) width = height = 1;
  width = std::max(width, least);
  height = std::max(height, least);
  if (canShow(width, height)) place(view, center, width, height);
}
