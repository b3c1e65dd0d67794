#include "desk/commands/zoom_command.h"

#include "desk/document/space_extents.h"
#include "desk/document/view_motion.h"
#include "host/view.h"
#include "host/view_overlay.h"

namespace {
enum ZoomKeyword : int { kExtents = 0, kWindow = 1 };

int statusOf(int answer) { return answer == kAnswerNothing ? kCommandDone : kCommandCancelled; }
}  // namespace

int ZoomCommand::run() {
  OdGePoint3d corner;
  const int answer = prompt().getPoint(
      {.prompt = u"Specify first corner", .keywords = u"Extents Window", .default_answer = u"Extents"},
      corner);
  if (answer == kExtents) return setStatus(showExtents());
  if (answer == kWindow) return setStatus(showWindow());
  if (answer == kAnswerValue) return setStatus(showWindowFrom(corner));
  return setStatus(statusOf(answer));
}

int ZoomCommand::showExtents() {
  HostView& view = desk().document().view();
  const OdGeExtents3d box = spaceExtents(desk().document().database());
  if (!box.isValidExtents()) {
    prompt().message(u"The drawing is empty.");
    return kCommandDone;
  }
  showBox(view.gsView(), box);
  view.overlay().update();
  return kCommandDone;
}

int ZoomCommand::showWindow() {
  OdGePoint3d corner;
  const int answer = prompt().getPoint({.prompt = u"Specify first corner"}, corner);
  return answer == kAnswerValue ? showWindowFrom(corner) : statusOf(answer);
}

int ZoomCommand::showWindowFrom(const OdGePoint3d& first) {
  OdGePoint3d second;
  const int answer = prompt().getPoint({.prompt = u"Specify opposite corner", .base_point = first}, second);
  if (answer != kAnswerValue) return statusOf(answer);
  OdGeExtents3d box;
  box.addPoint(first);
  box.addPoint(second);
  if (first.x == second.x || first.y == second.y) {
    prompt().refuse(u"A window needs two corners that span an area.");
    return kCommandDone;
  }
  HostView& view = desk().document().view();
  showBox(view.gsView(), box);
  view.overlay().update();
  return kCommandDone;
}
