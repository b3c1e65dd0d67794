#pragma once

#include <QPointF>
#include <QTransform>

#include "od/gi/OdGsView.h"

/// The flat coordinates that pictures are kept in: those of the eye, in drawing units, about an origin near
/// what is shown, so that far away drawings lose no digits. Panning and zooming leave it as it is; turning
/// the view makes another.
class PictureFrame {
 public:
  PictureFrame() = default;
  /// The directions of `view` about its present target.
  explicit PictureFrame(const OdGsView& view);

  /// Whether pictures in this frame can still be shown in `view`: it looks the same way, and is not so far
  /// away from the origin that digits are lost.
  bool serves(const OdGsView& view) const;

  QPointF fromWorld(const OdGePoint3d& point) const;
  QPointF fromWorld(const OdGeVector3d& vector) const;
  /// From this frame to the pixels of `view`.
  QTransform toDevice(const OdGsView& view) const;

 private:
  OdGePoint3d m_origin;
  OdGeMatrix3d m_world_to_frame;
  OdGeVector3d m_view_direction{0, 0, 1};
  OdGeVector3d m_up{0, 1, 0};
};
