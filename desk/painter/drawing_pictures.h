#pragma once

#include <unordered_map>
#include <vector>

#include "desk/painter/picture.h"
#include "desk/painter/picture_frame.h"
#include "od/base/OdString.h"
#include "od/db/OdDbObjectId.h"

class OdDbDatabase;

/// The pictures of all entities of the active space, each made once and kept until the entity changes, so
/// that a pan or a zoom of a large drawing costs painting alone.
class DrawingPictures {
 public:
  /// The database has to outlive the pictures.
  explicit DrawingPictures(OdDbDatabase& database) : m_database(database) {}

  /// The picture of an entity is out of date.
  void invalidate(const OdDbObjectId& id) { m_pictures.erase(id); }
  /// Everything is out of date.
  void clear() { m_pictures.clear(); }
  /// Makes the pictures that are missing, for a camera that looks as `view` does. Whether anything changed.
  bool refresh(const OdGsView& view);

  /// What of the drawing could not be drawn as it says, a sentence each, as of the pictures made so far.
  const std::vector<OdString>& diagnostics() const { return m_diagnostics; }

  const PictureFrame& frame() const { return m_frame; }
  /// The picture of an entity; null for one that is not in the active space.
  const Picture* find(const OdDbObjectId& id) const;
  /// The entities in drawing order, as of the last refresh.
  const std::vector<OdDbObjectId>& order() const { return m_order; }

 private:
  void keepDiagnostics(const std::vector<OdString>& sentences);
  void forget(const std::vector<OdDbObjectId>& present);

  OdDbDatabase& m_database;
  PictureFrame m_frame;
  std::unordered_map<OdDbObjectId, Picture> m_pictures;
  std::vector<OdDbObjectId> m_order;
  std::vector<OdString> m_diagnostics;
};
