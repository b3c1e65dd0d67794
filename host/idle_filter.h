#pragma once

#include "host/message_filter.h"
#include "od/db/OdDbObjectId.h"

class HostDocument;

/// What a press in the view does while no command runs: a click selects the entity under it (with Shift it
/// leaves the selection), a click on nothing clears the selection, a double click on a text edits it, also
/// on a text of an insert.
class HostIdleFilter : public HostEdMessageFilter {
 public:
  /// Pixels around the cursor within which an entity is hit.
  static constexpr double kAperture = 5;

  explicit HostIdleFilter(HostDocument& document) : m_document(document) {}
  bool filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) override;

 private:
  /// In drawing units.
  double aperture() const;
  OdDbObjectId entityAt(const OdGePoint3d& point) const;
  void select(const OdGePoint3d& point, bool shift);
  void edit(const OdGePoint3d& point);

  HostDocument& m_document;
};
