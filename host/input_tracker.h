#pragma once

#include <vector>

#include "host/jig_dimensions.h"
#include "host/message_filter.h"

class OdGiDrawable;

/// Watches a prompt while it waits and shows something of its own meanwhile.
class HostEdInputTracker : public HostEdMessageFilter, public HostEdJigDimData {
 public:
  /// Lets every message pass.
  bool filterMessage(const HostWindowMessage&, const OdGePoint3d&) override { return false; }
  /// What to show above the drawing while the prompt waits; asked anew after each tracked value. The tracker
  /// keeps the drawables alive.
  virtual std::vector<OdGiDrawable*> drawables() { return {}; }
  /// The wait is over, however it ended.
  virtual void ended() {}
};

/// A tracker that follows the point under the cursor.
class HostEdPointTracker : public HostEdInputTracker {
 public:
  /// The cursor moved to `point`, in world coordinates.
  virtual void setPoint(const OdGePoint3d& point) = 0;
};
