#pragma once

#include <unordered_map>
#include <vector>

#include "desk/painter/camera.h"
#include "desk/painter/picture.h"
#include "desk/painter/picture_frame.h"

class HostViewOverlay;
class OdDbDatabase;
class OdGiDrawable;

/// The pictures of what stands above the drawing. A layer is drawn anew when it, or one below it, was
/// invalidated or the camera moved, so that a blinking caret does not draw its text again.
class OverlayPictures {
 public:
  /// Makes what is out of date and marks the overlay as painted. Pictures are in `frame`.
  void refresh(HostViewOverlay& overlay, OdDbDatabase& database, const PictureFrame& frame,
               const OdGsView& view);
  /// From the bottom to the top.
  std::vector<const Picture*> pictures() const;

 private:
  Camera m_camera;
  std::unordered_map<const OdGiDrawable*, Picture> m_pictures;
  std::vector<const OdGiDrawable*> m_order;
};
