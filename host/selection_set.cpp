#include "host/selection_set.h"

void HostSelectionSet::add(const OdDbObjectId& id) {
  if (m_members.insert(id).second) m_ids.push_back(id);
}

void HostSelectionSet::add(const OdDbObjectId& id, const OdGePoint3d& pressed) {
  add(id);
  m_pressed = pressed;
}

void HostSelectionSet::remove(const OdDbObjectId& id) {
  if (m_members.erase(id) > 0) std::erase(m_ids, id);
}
