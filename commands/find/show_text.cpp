#include "commands/find/show_text.h"

#include <algorithm>

#include "host/document.h"
#include "host/selection_set.h"
#include "host/view.h"
#include "host/view_overlay.h"
#include "od/db/OdDbEntity.h"
#include "od/gi/OdGsView.h"

namespace {

/// A text that is less high on the screen cannot be read, in pixels.
constexpr double kReadable = 8;
/// What such a text gets.
constexpr double kComfortable = 24;

bool is_in_sight(const OdGsView& view, const OdGeExtents3d& box) {
  const auto seen = [&view](const OdGePoint3d& point) {
    return view.deviceRect().contains(view.toDevice(point));
  };
  return seen(box.minPoint()) && seen(box.maxPoint());
}

/// How much larger the text has to be to be read.
double magnification_for(const OdGsView& view, const OdGeExtents3d& box) {
  const OdGeVector3d size = box.maxPoint() - box.minPoint();
  const double pixels = std::max(size.x, size.y) * view.pixelsPerUnit();
  return pixels > 0 && pixels < kReadable ? kComfortable / pixels : 1;
}

}  // namespace

void show_text(HostDocument& document, const OdDbEntity& text) {
  document.pickFirst() = HostSelectionSet(text.objectId());
  OdGsView& view = document.view().gsView();
  OdGeExtents3d box;
  if (text.getGeomExtents(box) == eOk && box.isValidExtents()) {
    const double magnification = magnification_for(view, box);
    if (magnification != 1 || !is_in_sight(view, box)) {
      const OdGePoint3d centre = box.minPoint() + (box.maxPoint() - box.minPoint()) * 0.5;
      view.setView(centre + (view.position() - view.target()), centre, view.upVector(),
                   view.fieldWidth() / magnification, view.fieldHeight() / magnification);
    }
  }
  document.view().overlay().update();
}
