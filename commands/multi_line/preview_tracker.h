#pragma once

#include "host/input_tracker.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbPolyline.h"

class OdGiViewport;

/// What the user sees while dragging the box of a new text: a sample at the cursor, then the box with the
/// sample in it. The text keeps the box as its location, width and height.
class MTPreviewTracker : public HostEdPointTracker {
 public:
  /// `view` has to outlive the tracker.
  MTPreviewTracker(OdDbMTextPtr text, const OdGiViewport& view);

  /// From now on the box is drawn from here; world coordinates.
  void setFirstCorner(const OdGePoint3d& corner);
  void setPoint(const OdGePoint3d& point) override;
  std::vector<OdGiDrawable*> drawables() override;

  const OdDbPolylinePtr& frame() const { return m_frame; }

 private:
  void setBox(const OdGePoint2d& corner);

  OdDbMTextPtr m_text;
  const OdGiViewport& m_view;
  OdDbPolylinePtr m_frame;  ///< null until the first corner is given
  OdGePoint3d m_first_corner;
  bool m_has_corner = false;
  OdGePoint2d m_corner_uv;  ///< in plane coordinates
  OdGePlane m_plane;
};

/// The point of `plane` that is seen at `point` along `direction`, in the plane's coordinates. False when the
/// view looks along the plane.
bool project_on_plane(const OdGePoint3d& point, const OdGeVector3d& direction, const OdGePlane& plane,
                      OdGePoint2d& at);
