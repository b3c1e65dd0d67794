#pragma once

#include "host/input_tracker.h"
#include "od/db/OdDbText.h"
#include "od/ge/OdGePoint2d.h"

/// Shows a text stretched from its start to the cursor. It works on a copy, which is left-baseline justified.
class TextFitTracker : public HostEdInputTracker {
 public:
  /// Throws `OdError_InvalidIndex` for a text without a box.
  explicit TextFitTracker(const OdDbText& text);

  /// Moves the start; world coordinates.
  void setStart(const OdGePoint3d& start);
  /// Turns and stretches the copy so that it ends at `end`.
  void setEnd(const OdGePoint3d& end);

  bool filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) override;
  std::vector<OdGiDrawable*> drawables() override { return {m_preview.get()}; }

  const OdDbText& preview() const { return *m_preview; }

 private:
  void takePlane();

  OdDbTextPtr m_preview;
  OdGePlane m_plane;         ///< of the copy
  OdGePoint2d m_start;       ///< in that plane
  double m_unit_length = 0;  ///< of the text at a width factor of 1
};
