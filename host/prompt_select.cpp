#include <utility>

#include "host/box_selection.h"
#include "host/document.h"
#include "host/entity_hit.h"
#include "host/idle_filter.h"
#include "host/pickable_entities.h"
#include "host/picking.h"
#include "host/prompt_loop.h"
#include "host/prompt_text.h"
#include "host/reading.h"
#include "host/selection_box_tracker.h"
#include "host/selection_set.h"
#include "host/translate.h"
#include "host/typed_value.h"
#include "host/view.h"
#include "od/base/unicode.h"

// The prompt for entities.

int HostPromptLoop::select(std::u16string_view prompt, unsigned mode_flags, HostSelectionSet& picked) {
  picked.clear();
  if (m_selection_answer && !std::exchange(m_selection_answered, true))
    return takeAnsweredSelection(mode_flags, picked);
  const HostPromptRequest request{.prompt = std::u16string(prompt)};
  std::optional<OdGePoint3d> corner;  // of a rectangle, pressed where no entity is
  const HostReading reading{
      .prompt = host::prompt_text(request),
      .keywords = HostKeywordList(u""),
      .default_answer = {},
      .may_be_empty = true,
      .wanted = u"Nothing was found there: press on an entity, type a point on it, Last or All.",
      .take_line = [&](std::u16string_view line) { return addNamedEntity(line, mode_flags, picked); },
      .take_press =
          [&](const OdGePoint3d& point) {
            if (addEntityAt(point, mode_flags, picked)) return true;
            if (!(mode_flags & kSelectSingle)) corner = point;
            return corner.has_value();
          }};
  for (;;) {
    const int answer = ask(request, reading);
    if (answer == kAnswerNothing) return picked.isEmpty() ? kAnswerNothing : kAnswerValue;
    if (answer != kAnswerValue || (mode_flags & kSelectSingle)) return answer;
    if (corner) addRectangle(*std::exchange(corner, std::nullopt), picked);
  }
}

int HostPromptLoop::takeAnsweredSelection(unsigned mode_flags, HostSelectionSet& picked) {
  const HostSelectionSet answer = m_selection_answer();
  if (answer.isEmpty()) return kAnswerCancel;
  picked = mode_flags & kSelectSingle ? HostSelectionSet(answer.ids().front()) : answer;
  return kAnswerValue;
}

bool HostPromptLoop::addEntityAt(const OdGePoint3d& point, unsigned mode_flags, HostSelectionSet& picked) {
  const double aperture = HostIdleFilter::kAperture * m_document.view().unitsPerPixel();
  OdDbObjectId id = m_document.picking().pick(point, aperture);
  if (mode_flags & kSelectAttributes) id = host::attribute_or_entity(id, point, aperture);
  if (!id.isNull()) picked.add(id, point);
  return !id.isNull();
}

void HostPromptLoop::addRectangle(const OdGePoint3d& corner, HostSelectionSet& picked) {
  HostSelectionBoxTracker tracker(corner);
  OdGePoint3d opposite;
  const int answer = getPoint({.prompt = Supp_Translate(u"Specify opposite corner"),
                               .base_point = corner,
                               .tracker = &tracker,
                               .may_be_empty = true},
                              opposite);
  if (answer == kAnswerValue) addFound(host::entities_in(m_document.database(), {corner, opposite}), picked);
}

void HostPromptLoop::addFound(const std::vector<OdDbObjectId>& found, HostSelectionSet& picked) {
  for (const OdDbObjectId& id : found) picked.add(id);
  message(odToUtf16(std::to_string(found.size())) + u" " + Supp_Translate(u"found"));
}

bool HostPromptLoop::addNamedEntity(std::u16string_view line, unsigned mode_flags, HostSelectionSet& picked) {
  const std::u16string_view typed = host::without_outer_blanks(line);
  if (odEqualNoCase(typed, u"Last") || odEqualNoCase(typed, u"L")) {
    const OdDbObjectId newest = host::newest_pickable_entity(m_document.database());
    if (!newest.isNull()) picked.add(newest);
    return !newest.isNull();
  }
  if (odEqualNoCase(typed, u"All") && !(mode_flags & kSelectSingle)) {
    addFound(host::thawed_entities(m_document.database()), picked);
    return true;
  }
  const auto point = host::typed_point(typed, m_last_point);
  return point && addEntityAt(*point, mode_flags, picked);
}
