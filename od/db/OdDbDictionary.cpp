#include "od/db/OdDbDictionary.h"

#include "od/db/OdDbDatabase.h"

ODRX_DEFINE_MEMBERS(OdDbDictionary, OdDbObject, "DICTIONARY")

std::vector<std::pair<OdString, OdDbObjectId>> OdDbDictionary::entries() const {
  assertReadEnabled();
  std::vector<std::pair<OdString, OdDbObjectId>> result;
  const dxf::Record& groups = record();
  const dxf::Range range = groups.body();
  for (std::size_t i = range.begin; i + 1 < range.end; ++i) {
    const int target = groups[i + 1].code();
    if (groups[i].code() != 3 || (target != 350 && target != 360)) continue;
    result.emplace_back(groups.get_string(i),
                        database()->getOdDbObjectId(OdDbHandle(groups.get_handle(i + 1))));
  }
  return result;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const {
  for (const auto& [key, id] : entries()) {
    if (odEqualNoCase(key.str(), name.str())) return id;
  }
  return {};
}
