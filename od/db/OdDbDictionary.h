#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "od/db/OdDbObject.h"

/// A list of objects by name: the root dictionary, extension dictionaries and what hangs on them.
class OdDbDictionary : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbDictionary)

 public:
  /// The object of that name, without regard to case; null when there is none.
  OdDbObjectId getAt(const OdString& name) const;
  /// Names and objects in file order.
  std::vector<std::pair<OdString, OdDbObjectId>> entries() const;
  /// Lets `name` name another object. A new name goes in front of the first one behind it in the alphabet.
  void setAt(const OdString& name, OdDbObjectId object);
  /// Takes a name out; nothing happens where it is not there.
  void remove(const OdString& name);

 private:
  std::vector<std::size_t> places() const;
  std::optional<std::size_t> placeOf(const OdString& name) const;
};

using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;

/// Opens `id` for read as a `T`; null for a null id, an erased object and one of another class.
template <typename T>
OdSmartPtr<T> odOpen(OdDbObjectId id, OdDb::OpenMode mode = OdDb::kForRead) {
  return id.isNull() || id.isErased() ? OdSmartPtr<T>() : odCast<T>(id.openObject(mode));
}
