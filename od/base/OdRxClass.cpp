#include "od/base/OdRxClass.h"

#include <map>
#include <memory>

#include "od/base/OdRxObject.h"

namespace {

using Register = std::map<std::u16string, std::unique_ptr<OdRxClass>, std::less<>>;

Register& classRegister() {
  static Register classes;
  return classes;
}

}  // namespace

bool OdRxClass::isDerivedFrom(const OdRxClass* other) const {
  for (const OdRxClass* record = this; record; record = record->myParent())
    if (record == other) return true;
  return false;
}

OdSmartPtr<OdRxObject> OdRxClass::create() const {
  if (!m_description.constructor) throw OdError(eNotApplicable, "Class " + name().toUtf8() + " is abstract");
  return m_description.constructor();
}

OdRxClass* newOdRxClass(OdRxClass::Description description) {
  auto record = std::make_unique<OdRxClass>(std::move(description));
  auto [place, added] = classRegister().try_emplace(record->name().str(), nullptr);
  if (!added) throw OdError(eInvalidInput, "Class " + record->name().toUtf8() + " is registered already");
  place->second = std::move(record);
  return place->second.get();
}

void deleteOdRxClass(OdRxClass* record) {
  if (record) classRegister().erase(record->name().str());
}

OdRxClass* odrxFindClass(std::u16string_view name) {
  auto found = classRegister().find(name);
  return found == classRegister().end() ? nullptr : found->second.get();
}
