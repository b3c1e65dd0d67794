#pragma once

#include <vector>

#include "od/db/OdDbObjectId.h"

/// Entities in the order in which they were selected, each once.
class HostSelectionSet {
 public:
  HostSelectionSet() = default;
  explicit HostSelectionSet(const OdDbObjectId& id) { add(id); }

  bool contains(const OdDbObjectId& id) const;
  /// Adds an entity; one that is in already keeps its place.
  void add(const OdDbObjectId& id);
  void remove(const OdDbObjectId& id);
  void clear() { m_ids.clear(); }
  bool isEmpty() const { return m_ids.empty(); }
  const std::vector<OdDbObjectId>& ids() const { return m_ids; }

 private:
  std::vector<OdDbObjectId> m_ids;
};
