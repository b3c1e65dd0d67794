#pragma once

#include "host/box_selection.h"
#include "host/input_tracker.h"
#include "od/gi/OdGiDrawable.h"

/// Shows the rectangle between its first corner and the cursor while the opposite corner is asked for. One
/// that takes what it touches is green, one that takes what lies in it is blue.
class HostSelectionBoxTracker : public HostEdPointTracker {
 public:
  /// World coordinates.
  explicit HostSelectionBoxTracker(const OdGePoint3d& first);

  void setPoint(const OdGePoint3d& point) override;
  std::vector<OdGiDrawable*> drawables() override;

 private:
  /// The rectangle as it is drawn.
  class Box : public OdGiDrawableImpl<> {
   public:
    bool worldDraw(OdGiWorldDraw& draw) override;
    HostSelectionRectangle rectangle;
  };

  OdSmartPtr<Box> m_box = odNew<Box>();
};
