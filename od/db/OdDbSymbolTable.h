#pragma once

#include <unordered_map>
#include <vector>

#include "od/db/OdDbObject.h"

/// A table of named records, in file order. Names compare without case.
class OdDbSymbolTable : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbSymbolTable)

 public:
  /// The first record of that name; null when there is none.
  OdDbObjectId getAt(const OdString& name) const;
  bool has(const OdString& name) const { return !getAt(name).isNull(); }
  /// All records that are not erased.
  std::vector<OdDbObjectId> records() const;

 protected:
  friend class OdDbDrawing;

  OdDbSymbolTable() = default;
  void addRecord(const OdString& name, OdDbObjectId record);

 private:
  std::vector<OdDbObjectId> m_records;
  std::unordered_map<OdString, OdDbObjectId> m_byName;  ///< lower case
};

using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;
