#include "commands/multi_line/mtext_create.h"

#include <algorithm>
#include <cmath>

#include "commands/base/current_ucs.h"
#include "commands/multi_line/preview_tracker.h"
#include "commands/multi_line/session_loop.h"
#include "editor/smart_edit.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "host/view.h"
#include "mtext/tab_stop.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/gi/OdGsView.h"

namespace {

constexpr int kFirstCorner = 1033;
constexpr int kOppositeCorner = 1034;
constexpr double kNone = 1e-10;

bool is_set(double value) { return std::abs(value) > kNone; }

/// Height for a new text: that of the style, else TEXTSIZE, which takes what was found.
double height_for(OdDbDatabase& database) {
  const double text_size = database.getSysVarDouble(u"TEXTSIZE", 2.5);
  const double dim_scale = database.getSysVarDouble(u"DIMSCALE", 1.0);
  const auto style = odCast<OdDbTextStyleTableRecord>(
      database.getTEXTSTYLE() ? database.getTEXTSTYLE().openObject() : OdDbObjectPtr());
  double height = is_set(text_size) ? text_size : 2.5;
  if (style && is_set(style->textSize())) height = style->textSize() * (is_set(dim_scale) ? dim_scale : 1.0);
  if (!mtext::format::equal_positions(height, text_size)) database.setSysVarDouble(u"TEXTSIZE", height);
  return height;
}

OdDbMTextPtr new_entity(OdDbDatabase& database) {
  auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(&database);
  text->setTextHeight(height_for(database));
  const ucs_axes axes = current_ucs(database);
  text->setNormal(axes.z);
  text->setDirection(axes.x);
  if (const OdDbObjectId style = database.getTEXTSTYLE()) text->setTextStyle(style);
  return text;
}

struct corners {
  OdGePoint3d first, opposite;
};

/// Asks for the corners; the answer of the prompt that gave no point, else `kAnswerValue`.
int ask_corners(HostDocument& document, const OdDbMTextPtr& text, std::optional<double> width, corners& box) {
  MTPreviewTracker tracker(text, document.view().gsView());
  HostPromptRequest request{.prompt = host::resource_string(kFirstCorner), .tracker = &tracker};
  if (const int answer = document.prompt().getPoint(request, box.first); answer != kAnswerValue)
    return answer;
  if (width) {
    box.opposite = box.first + text->direction() * *width;
    return kAnswerValue;
  }
  tracker.setFirstCorner(box.first);
  request.prompt = host::resource_string(kOppositeCorner);
  request.base_point = box.first;
  return document.prompt().getPoint(request, box.opposite);
}

/// Gives the text the box between the corners as they are seen. False when the view looks along its plane.
bool place(OdDbMText& text, const corners& box, const OdGeVector3d& view_direction) {
  OdGePlane plane;
  OdGePoint2d a, b;
  if (text.getPlane(plane) != eOk || !project_on_plane(box.first, view_direction, plane, a) ||
      !project_on_plane(box.opposite, view_direction, plane, b))
    return false;
  text.setWidth(std::abs(a.x - b.x));
  text.setHeight(std::abs(a.y - b.y));
  text.setLocation(plane.evalPoint({std::min(a.x, b.x), std::max(a.y, b.y)}));
  return true;
}

bool edit_new(HostDocument& document, const corners& box, new_mtext_outcome& outcome) {
  smart_edit session(document);
  session.beginMTextEdit(outcome.text, {.caret_at = box.first, .is_new = true});
  const int result = wait_for_session(document.prompt(), session);
  const bool accepted = session.finishEdit(result == kSessionAccepted, /*force=*/session.isCompact());
  outcome.field = session.writtenField();
  outcome.end_point = session.exitPoint().value_or(box.opposite);
  outcome.status = accepted ? kCommandDone : kCommandCancelled;
  return accepted;
}

}  // namespace

bool newMText(HostDocument& document, const new_mtext_request& request, new_mtext_outcome& outcome) {
  outcome = {.text = new_entity(document.database())};
  corners box;
  const int answer = ask_corners(document, outcome.text, request.width, box);
  bool made = answer == kAnswerValue && place(*outcome.text, box, document.view().gsView().viewDir());
  if (!made) outcome.status = answer == kAnswerCancel ? kCommandCancelled : kCommandDone;
  if (made) {
    outcome.text->setContents(request.contents.value_or(OdString()));
    made = edit_new(document, box, outcome);
  }
  if (!made) outcome.text.release();
  return made;
}
