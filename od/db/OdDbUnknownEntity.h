#pragma once

#include "od/db/OdDbEntity.h"

/// An entity of a kind that the database does not know: all its groups are kept, nothing is drawn.
class OdDbUnknownEntity : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbUnknownEntity)

 public:
  OdDbUnknownEntity() = default;

  /// The name of its kind in the file.
  OdString originalDxfName() const;
};

using OdDbUnknownEntityPtr = OdSmartPtr<OdDbUnknownEntity>;
