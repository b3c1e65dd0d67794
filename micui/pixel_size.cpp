#include "micui/pixel_size.h"

#include "od/gi/OdGiViewport.h"

namespace micui {

double pixel_size(const OdGiViewportDraw& draw) {
  const OdGiViewport& view = draw.viewport();
  OdGePoint2d density;
  view.getNumPixelsInUnitSquare(OdGePoint3d::kOrigin, density, /*includePerspective=*/true);
  const OdGeVector3d pixel = view.getCameraUpVector().normal() * (1 / density.x);
  const OdGeMatrix3d to_model = view.getWorldToEyeTransform() * draw.geometry().getWorldToModelTransform();
  return (to_model * pixel).length();
}

}  // namespace micui
