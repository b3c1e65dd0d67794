#pragma once

#include "host/picking.h"

class OdDbDatabase;

/// Picks by what an entity draws: its lines within the aperture, a text anywhere in its box.
class HostDrawingPicking : public HostPicking {
 public:
  /// The database has to outlive the picking.
  explicit HostDrawingPicking(OdDbDatabase& database) : m_database(database) {}
  OdDbObjectId pick(const OdGePoint3d& point, double aperture) const override;

 private:
  OdDbDatabase& m_database;
};
