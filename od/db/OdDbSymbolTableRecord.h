#pragma once

#include "od/db/OdDbObject.h"

/// A named record of a table.
class OdDbSymbolTableRecord : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbSymbolTableRecord)

 public:
  virtual OdString getName() const;
  OdString name() const { return getName(); }

 protected:
  OdDbSymbolTableRecord() = default;

  /// The marker of the record's own class.
  virtual const OdDbSubclass& ownPart() const = 0;
};

using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;
