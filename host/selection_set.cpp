#include "host/selection_set.h"

#include <algorithm>

bool HostSelectionSet::contains(const OdDbObjectId& id) const {
  return std::find(m_ids.begin(), m_ids.end(), id) != m_ids.end();
}

void HostSelectionSet::add(const OdDbObjectId& id) {
  if (!contains(id)) m_ids.push_back(id);
}

void HostSelectionSet::add(const OdDbObjectId& id, const OdGePoint3d& pressed) {
  add(id);
  m_pressed = pressed;
}

void HostSelectionSet::remove(const OdDbObjectId& id) { std::erase(m_ids, id); }
