#pragma once

#include "host/input_tracker.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

/// Lets a text that is pasted hang on the cursor, in the plane of new texts.
class PasteTracker : public HostEdPointTracker {
 public:
  /// One of the texts is null; `normal` is that of the plane, which runs through the world's origin. The line
  /// is shown as one of `database`, since it is of none itself and knows no styles.
  PasteTracker(OdDbMTextPtr text, OdDbTextPtr line, const OdGeVector3d& normal, OdDbDatabase& database);

  void setPoint(const OdGePoint3d& point) override;
  std::vector<OdGiDrawable*> drawables() override;

 private:
  OdDbMTextPtr m_text;
  OdDbTextPtr m_line;
  OdDbTextPtr m_shown_line;
  OdGeMatrix3d m_to_plane;
  OdGeMatrix3d m_to_world;
};

/// The point of the plane through the world's origin that lies under `point` along the plane's normal.
OdGePoint3d dropped_on_plane(const OdGePoint3d& point, const OdGeMatrix3d& to_plane,
                             const OdGeMatrix3d& to_world);
