#pragma once

#include "od/cm/OdCmEntityColor.h"
#include "od/ge/OdGeMatrix3d.h"
#include "od/ge/OdGePoint2d.h"

/// The view that something is drawn into. Eye coordinates have their origin at the camera target, X to the
/// right, Y up and Z towards the viewer, in drawing units; device coordinates are pixels, Y downwards.
class OdGiViewport {
 public:
  virtual ~OdGiViewport() = default;

  /// From the target to the viewer, length 1.
  virtual OdGeVector3d viewDir() const = 0;
  virtual OdGePoint3d getCameraLocation() const = 0;
  virtual OdGePoint3d getCameraTarget() const = 0;
  virtual OdGeVector3d getCameraUpVector() const = 0;
  virtual OdGeMatrix3d getWorldToEyeTransform() const = 0;
  virtual OdGeMatrix3d getEyeToWorldTransform() const = 0;
  virtual OdGeMatrix3d getWorldToDeviceTransform() const = 0;
  /// Pixels per drawing unit along x and y at a point of the world. `includePerspective` changes nothing in a
  /// parallel view.
  virtual void getNumPixelsInUnitSquare(const OdGePoint3d& point, OdGePoint2d& pixelArea,
                                        bool includePerspective = true) const = 0;
  /// The colour behind the drawing.
  virtual OdCmEntityColor backgroundColor() const = 0;
};
