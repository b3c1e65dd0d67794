#include "od/db/OdDbSymbolTable.h"

ODRX_DEFINE_ABSTRACT_MEMBERS(OdDbSymbolTable, OdDbObject)

OdDbObjectId OdDbSymbolTable::getAt(const OdString& name) const {
  const auto found = m_byName.find(OdString(odLowerAscii(name.str())));
  if (found == m_byName.end() || found->second.isErased()) return {};
  return found->second;
}

std::vector<OdDbObjectId> OdDbSymbolTable::records() const {
  std::vector<OdDbObjectId> result;
  for (const OdDbObjectId& id : m_records) {
    if (!id.isErased()) result.push_back(id);
  }
  return result;
}

void OdDbSymbolTable::addRecord(const OdString& name, OdDbObjectId record) {
  m_records.push_back(record);
  // Records without a name, such as those of shape files, are found by handle alone.
  if (!name.isEmpty()) m_byName.emplace(OdString(odLowerAscii(name.str())), record);
}
