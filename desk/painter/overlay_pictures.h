#pragma once

#include <unordered_map>
#include <vector>

#include "desk/painter/picture.h"
#include "desk/painter/picture_frame.h"

class HostViewOverlay;
class OdDbDatabase;
class OdGiDrawable;

/// The pictures of what stands above the drawing. A layer is drawn anew when it was invalidated or the camera
/// moved, so that a blinking caret does not lay out its text again.
class OverlayPictures {
 public:
  /// Makes what is out of date and marks the overlay as painted. Pictures are in `frame`.
  void refresh(HostViewOverlay& overlay, const OdDbDatabase& database, const PictureFrame& frame,
               const OdGsView& view);
  /// From the bottom to the top.
  std::vector<const Picture*> pictures() const;

 private:
  struct Camera {
    OdGePoint3d position, target;
    OdGeVector3d up;
    double width = 0, height = 0;
    OdGsDeviceRect rect;
    OdCmEntityColor background;
    friend bool operator==(const Camera&, const Camera&) = default;
  };
  static Camera cameraOf(const OdGsView& view);

  Camera m_camera;
  std::unordered_map<const OdGiDrawable*, Picture> m_pictures;
  std::vector<const OdGiDrawable*> m_order;
};
