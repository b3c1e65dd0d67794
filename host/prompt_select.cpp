#include "host/document.h"
#include "host/entity_hit.h"
#include "host/idle_filter.h"
#include "host/picking.h"
#include "host/prompt_loop.h"
#include "host/prompt_text.h"
#include "host/reading.h"
#include "host/selection_set.h"
#include "host/translate.h"
#include "host/typed_value.h"
#include "host/view.h"
#include "od/base/unicode.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"

// The prompt for entities.

namespace {

OdDbObjectId newest_entity(const OdDbDatabase& database) {
  const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject());
  const std::vector<OdDbObjectId> entities = space ? space->entities() : std::vector<OdDbObjectId>();
  return entities.empty() ? OdDbObjectId() : entities.back();
}

}  // namespace

int HostPromptLoop::select(std::u16string_view prompt, unsigned mode_flags, HostSelectionSet& picked) {
  picked.clear();
  const HostPromptRequest request{.prompt = std::u16string(prompt)};
  const HostReading reading{
      .prompt = host::prompt_text(request),
      .keywords = HostKeywordList(u""),
      .default_answer = {},
      .may_be_empty = true,
      .wanted = u"Nothing was found there: press on an entity, type a point on it, or Last.",
      .take_line = [&](std::u16string_view line) { return addNamedEntity(line, mode_flags, picked); },
      .take_press = [&](const OdGePoint3d& point) { return addEntityAt(point, mode_flags, picked); }};
  for (;;) {
    const int answer = ask(request, reading);
    if (answer == kAnswerNothing) return picked.isEmpty() ? kAnswerNothing : kAnswerValue;
    if (answer != kAnswerValue || (mode_flags & kSelectSingle)) return answer;
  }
}

bool HostPromptLoop::addEntityAt(const OdGePoint3d& point, unsigned mode_flags, HostSelectionSet& picked) {
  const double aperture = HostIdleFilter::kAperture * m_document.view().unitsPerPixel();
  OdDbObjectId id = m_document.picking().pick(point, aperture);
  if (mode_flags & kSelectAttributes) id = host::attribute_or_entity(id, point, aperture);
  if (!id.isNull()) picked.add(id, point);
  return !id.isNull();
}

bool HostPromptLoop::addNamedEntity(std::u16string_view line, unsigned mode_flags, HostSelectionSet& picked) {
  const std::u16string_view typed = host::without_outer_blanks(line);
  if (odEqualNoCase(typed, u"Last") || odEqualNoCase(typed, u"L")) {
    const OdDbObjectId newest = newest_entity(m_document.database());
    if (!newest.isNull()) picked.add(newest);
    return !newest.isNull();
  }
  const auto point = host::typed_point(typed, m_last_point);
  return point && addEntityAt(*point, mode_flags, picked);
}
