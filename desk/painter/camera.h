#pragma once

#include "od/gi/OdGsView.h"

/// All of a view that a painted picture depends on, to see whether it has changed since.
struct Camera {
  OdGePoint3d position, target;
  OdGeVector3d up;
  double width = 0, height = 0;
  OdGsDeviceRect rect;
  OdCmEntityColor background;

  static Camera of(const OdGsView& view) {
    return {view.position(),    view.target(),     view.upVector(),       view.fieldWidth(),
            view.fieldHeight(), view.deviceRect(), view.backgroundColor()};
  }
  friend bool operator==(const Camera&, const Camera&) = default;
};
