#pragma once

#include "od/db/OdDbObject.h"

/// An object without a picture whose kind the database does not know: all its groups are kept.
class OdDbUnknownObject : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbUnknownObject)

 public:
  OdDbUnknownObject() = default;

  /// The name of its kind in the file.
  OdString originalDxfName() const;
};
