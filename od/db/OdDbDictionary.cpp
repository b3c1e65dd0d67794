#include "od/db/OdDbDictionary.h"

#include "od/db/OdDbDatabase.h"

ODRX_DEFINE_MEMBERS(OdDbDictionary, OdDbObject, "DICTIONARY")

namespace {

constexpr int kSoftOwner = 350;
constexpr int kHardOwner = 360;

}  // namespace

/// Indices of the names; the handle stands behind each.
std::vector<std::size_t> OdDbDictionary::places() const {
  std::vector<std::size_t> found;
  const dxf::Record& groups = record();
  const dxf::Range range = groups.body();
  for (std::size_t i = range.begin; i + 1 < range.end; ++i) {
    const int target = groups[i + 1].code();
    if (groups[i].code() == 3 && (target == kSoftOwner || target == kHardOwner)) found.push_back(i);
  }
  return found;
}

std::optional<std::size_t> OdDbDictionary::placeOf(const OdString& name) const {
  for (const std::size_t place : places())
    if (odEqualNoCase(record().get_string(place), name.str())) return place;
  return {};
}

std::vector<std::pair<OdString, OdDbObjectId>> OdDbDictionary::entries() const {
  assertReadEnabled();
  std::vector<std::pair<OdString, OdDbObjectId>> result;
  for (const std::size_t place : places())
    result.emplace_back(record().get_string(place),
                        database()->getOdDbObjectId(OdDbHandle(record().get_handle(place + 1))));
  return result;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const {
  assertReadEnabled();
  const auto place = placeOf(name);
  return place ? database()->getOdDbObjectId(OdDbHandle(record().get_handle(*place + 1))) : OdDbObjectId();
}

void OdDbDictionary::setAt(const OdString& name, OdDbObjectId object) {
  assertWriteEnabled();
  dxf::Record& groups = record();
  const dxf::Handle handle = object.handle().value();
  const auto place = placeOf(name);
  if (place && groups.get_handle(*place + 1) == handle) return;
  touch();
  if (place) return groups.set_handle_value(*place + 1, handle);
  const std::vector<std::size_t> all = places();
  const bool owns = groups.int_or(280, groups.body(), 0) == 1;
  const int code = !all.empty() ? groups[all.back() + 1].code() : owns ? kHardOwner : kSoftOwner;
  std::size_t at = groups.body().end;
  for (auto each = all.rbegin(); each != all.rend() && name.iCompare(groups.get_string(*each)) < 0; ++each)
    at = *each;
  groups.insert_string(at, 3, name.str());
  groups.insert_handle(at + 1, code, handle);
}

void OdDbDictionary::remove(const OdString& name) {
  assertWriteEnabled();
  const auto place = placeOf(name);
  if (!place) return;
  record().erase(dxf::Range{*place, *place + 2});
  touch();
}
