#pragma once

#include <optional>
#include <unordered_set>
#include <vector>

#include "od/db/OdDbObjectId.h"
#include "od/ge/OdGePoint3d.h"

/// Entities in the order in which they were selected, each once.
class HostSelectionSet {
 public:
  HostSelectionSet() = default;
  explicit HostSelectionSet(const OdDbObjectId& id) { add(id); }
  /// An entity that was picked by a press at a point of the world.
  HostSelectionSet(const OdDbObjectId& id, const OdGePoint3d& pressed) { add(id, pressed); }

  bool contains(const OdDbObjectId& id) const { return m_members.contains(id); }
  /// Adds an entity; one that is in already keeps its place.
  void add(const OdDbObjectId& id);
  /// The same by a press at a point of the world.
  void add(const OdDbObjectId& id, const OdGePoint3d& pressed);
  void remove(const OdDbObjectId& id);
  void clear() { *this = {}; }
  bool isEmpty() const { return m_ids.empty(); }
  const std::vector<OdDbObjectId>& ids() const { return m_ids; }
  /// Where the entity was pressed that came last by a press; nothing where none did.
  const std::optional<OdGePoint3d>& pressed() const { return m_pressed; }

 private:
  std::vector<OdDbObjectId> m_ids;
  std::unordered_set<OdDbObjectId> m_members;  ///< the same ids, to be found at once
  std::optional<OdGePoint3d> m_pressed;
};
