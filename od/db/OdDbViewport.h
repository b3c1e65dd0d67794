#pragma once

#include "od/db/OdDbEntity.h"

/// A window of a paper space on the model.
class OdDbViewport : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbViewport)

 public:
  OdDbViewport() = default;

  /// 1 is the paper itself.
  int number() const;
  bool isOn() const;
  OdGePoint3d centerPoint() const;
  /// Size on the paper.
  double width() const;
  double height() const;
  /// Centre of the view in its own plane, and what part of the model's height it shows.
  OdGePoint2d viewCenter() const;
  double viewHeight() const;
  OdGeVector3d viewDirection() const;
  OdGePoint3d viewTarget() const;
  /// Radians.
  double twistAngle() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
};

using OdDbViewportPtr = OdSmartPtr<OdDbViewport>;
