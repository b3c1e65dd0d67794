#include "desk/painter/drawing_pictures.h"

#include <algorithm>
#include <unordered_set>

#include "desk/painter/picture_recorder.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"
#include "od/db/OdGiContextForDbDatabase.h"

namespace {

std::vector<OdDbObjectId> entitiesOf(OdDbDatabase& database) {
  const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject());
  return space ? space->entities() : std::vector<OdDbObjectId>();
}

Picture pictureOf(const OdDbObjectId& id, PictureRecorder& recorder, const OdGsView& view) {
  const auto entity = odCast<OdDbEntity>(id.openObject());
  if (!entity || entity->visibility() == OdDb::kInvisible) return {};
  return recorder.record(*entity, view);
}

}  // namespace

bool DrawingPictures::refresh(const OdGsView& view) {
  bool changed = false;
  if (!m_frame.serves(view)) {
    m_frame = PictureFrame(view);
    m_pictures.clear();
    changed = true;
  }
  std::vector<OdDbObjectId> present = entitiesOf(m_database);
  if (present != m_order) {
    forget(present);
    m_order = std::move(present);
    changed = true;
  }
  const OdGiContextForDbDatabase context(&m_database);
  PictureRecorder recorder(m_frame, context);
  for (const OdDbObjectId& id : m_order) {
    if (m_pictures.contains(id)) continue;
    m_pictures.emplace(id, pictureOf(id, recorder, view));
    changed = true;
  }
  keepDiagnostics(context.diagnostics());
  return changed;
}

void DrawingPictures::keepDiagnostics(const std::vector<OdString>& sentences) {
  for (const OdString& sentence : sentences)
    if (std::find(m_diagnostics.begin(), m_diagnostics.end(), sentence) == m_diagnostics.end())
      m_diagnostics.push_back(sentence);
}

void DrawingPictures::forget(const std::vector<OdDbObjectId>& present) {
  const std::unordered_set<OdDbObjectId> kept(present.begin(), present.end());
  std::erase_if(m_pictures, [&](const auto& entry) { return !kept.contains(entry.first); });
}

const Picture* DrawingPictures::find(const OdDbObjectId& id) const {
  const auto found = m_pictures.find(id);
  return found == m_pictures.end() ? nullptr : &found->second;
}
