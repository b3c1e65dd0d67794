#include "od/gi/OdGsView.h"

#include <algorithm>
#include <cmath>

#include "od/base/OdError.h"

void OdGsView::setView(const OdGePoint3d& position, const OdGePoint3d& target, const OdGeVector3d& upVector,
                       double fieldWidth, double fieldHeight, Projection) {
  OdGeVector3d sight = (position - target).normal();
  OdGeVector3d up = upVector - sight * upVector.dotProduct(sight);
  bool isValid = fieldWidth > 0 && fieldHeight > 0 && std::isfinite(fieldWidth) &&
                 std::isfinite(fieldHeight) && !(position - target).isZeroLength() &&
                 up.length() > 1e-9 * upVector.length();
  if (!isValid) throw OdError(eInvalidInput, "The view has no direction or no size");
  m_position = position;
  m_target = target;
  m_up = up.normal();
  m_fieldWidth = fieldWidth;
  m_fieldHeight = fieldHeight;
}

void OdGsView::setDeviceRect(const OdGsDeviceRect& rect) {
  if (!(rect.width() > 0 && rect.height() > 0)) throw OdError(eInvalidInput, "The device has no area");
  m_rect = rect;
}

double OdGsView::pixelsPerUnit() const {
  return std::min(m_rect.width() / m_fieldWidth, m_rect.height() / m_fieldHeight);
}

OdGeMatrix3d OdGsView::getEyeToWorldTransform() const {
  OdGeVector3d z = viewDir();
  return OdGeMatrix3d::coordSystem(m_target, m_up.crossProduct(z), m_up, z);
}

OdGeMatrix3d OdGsView::worldToDeviceMatrix() const {
  OdGeVector3d middle{(m_rect.left + m_rect.right) / 2, (m_rect.top + m_rect.bottom) / 2, 0};
  double scale = pixelsPerUnit();
  return OdGeMatrix3d::translation(middle) * OdGeMatrix3d::scaling(scale, -scale, scale) *
         getWorldToEyeTransform();
}

OdGePoint2d OdGsView::toDevice(const OdGePoint3d& world) const {
  OdGePoint3d p = worldToDeviceMatrix() * world;
  return {p.x, p.y};
}

OdGePoint3d OdGsView::toWorld(const OdGePoint2d& device) const {
  return deviceToWorldMatrix() * OdGePoint3d{device.x, device.y, 0};
}

void OdGsView::getNumPixelsInUnitSquare(const OdGePoint3d&, OdGePoint2d& pixelArea, bool) const {
  pixelArea = {pixelsPerUnit(), pixelsPerUnit()};
}
