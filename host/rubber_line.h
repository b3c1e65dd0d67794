#pragma once

#include "od/ge/OdGePoint3d.h"
#include "od/gi/OdGiDrawable.h"

/// The line from the point that a prompt counts from to the cursor.
class HostRubberLine : public OdGiDrawableImpl<> {
 public:
  /// World coordinates.
  explicit HostRubberLine(const OdGePoint3d& from) : m_from(from), m_to(from) {}

  void setEnd(const OdGePoint3d& to) { m_to = to; }
  bool worldDraw(OdGiWorldDraw& draw) override;

 private:
  OdGePoint3d m_from, m_to;
};
