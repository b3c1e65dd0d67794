#pragma once

#include "od/gi/OdGiViewport.h"

/// A rectangle of the device in pixels; Y grows downwards.
struct OdGsDeviceRect {
  double left = 0, top = 0, right = 0, bottom = 0;

  double width() const { return right - left; }
  double height() const { return bottom - top; }
  bool contains(const OdGePoint2d& p) const {
    return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom;
  }
  friend bool operator==(const OdGsDeviceRect&, const OdGsDeviceRect&) = default;
};

/// A parallel view of the drawing: a camera and the rectangle of the device that it fills. It knows no
/// toolkit; a window and a run without one use the same class.
///
/// The field is the part of the world that has to be seen. Where its sides and those of the device rectangle
/// are not in the same ratio, the whole field is shown in the middle and more of the world beside it, so a
/// circle is always round.
class OdGsView : public OdGiViewport {
 public:
  enum Projection { kParallel = 0 };

  /// From above on the origin, up along Y, a field of 1 by 1 in a device of 1 by 1.
  OdGsView() = default;

  /// Places the camera. `upVector` is made upright to the line of sight. Throws `OdError(eInvalidInput)` when
  /// position and target coincide, the up vector lies along the line of sight, or a field side is not
  /// positive.
  void setView(const OdGePoint3d& position, const OdGePoint3d& target, const OdGeVector3d& upVector,
               double fieldWidth, double fieldHeight, Projection projection = kParallel);
  const OdGePoint3d& position() const { return m_position; }
  const OdGePoint3d& target() const { return m_target; }
  /// Length 1, at a right angle to the line of sight.
  const OdGeVector3d& upVector() const { return m_up; }
  /// Drawing units, as given to `setView`.
  double fieldWidth() const { return m_fieldWidth; }
  double fieldHeight() const { return m_fieldHeight; }
  Projection projection() const { return kParallel; }

  /// Throws `OdError(eInvalidInput)` for a rectangle without area.
  void setDeviceRect(const OdGsDeviceRect& rect);
  const OdGsDeviceRect& deviceRect() const { return m_rect; }

  void setBackgroundColor(const OdCmEntityColor& color) { m_background = color; }

  /// From the world to pixels; the third coordinate is the height towards the viewer, in pixels.
  OdGeMatrix3d worldToDeviceMatrix() const;
  OdGeMatrix3d deviceToWorldMatrix() const { return worldToDeviceMatrix().inverse(); }
  OdGePoint2d toDevice(const OdGePoint3d& world) const;
  /// The point of the plane through the target, upright to the line of sight, that is shown at a pixel.
  OdGePoint3d toWorld(const OdGePoint2d& device) const;
  /// Length of one pixel in drawing units.
  double pixelSize() const { return 1.0 / pixelsPerUnit(); }
  double pixelsPerUnit() const;

  OdGeVector3d viewDir() const override { return (m_position - m_target).normal(); }
  OdGePoint3d getCameraLocation() const override { return m_position; }
  OdGePoint3d getCameraTarget() const override { return m_target; }
  OdGeVector3d getCameraUpVector() const override { return m_up; }
  OdGeMatrix3d getWorldToEyeTransform() const override { return getEyeToWorldTransform().inverse(); }
  OdGeMatrix3d getEyeToWorldTransform() const override;
  OdGeMatrix3d getWorldToDeviceTransform() const override { return worldToDeviceMatrix(); }
  void getNumPixelsInUnitSquare(const OdGePoint3d& point, OdGePoint2d& pixelArea,
                                bool includePerspective = true) const override;
  OdCmEntityColor backgroundColor() const override { return m_background; }

 private:
  OdGePoint3d m_position{0, 0, 1};
  OdGePoint3d m_target;
  OdGeVector3d m_up{0, 1, 0};
  double m_fieldWidth = 1;
  double m_fieldHeight = 1;
  OdGsDeviceRect m_rect{0, 0, 1, 1};
  OdCmEntityColor m_background{0, 0, 0};
};
