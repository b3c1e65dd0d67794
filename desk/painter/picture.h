#pragma once

#include <QPainterPath>
#include <vector>

#include "od/cm/OdCmEntityColor.h"

/// How a path is painted: filled, or as a line as wide as a pixel.
struct PaintStyle {
  OdCmEntityColor color;  ///< neither "by layer" nor "by block"
  int alpha = 255;        ///< 0 clear to 255 opaque
  bool filled = false;
  bool dashed = false;  ///< as a line of dashes that are measured in pixels

  friend bool operator==(const PaintStyle&, const PaintStyle&) = default;
};

/// Neighbouring primitives of one style, as one path in the coordinates of a `PictureFrame`.
struct PaintBatch {
  PaintStyle style;
  QPainterPath path;
};

/// What a drawable looks like: paths from the bottom to the top, ready for the painter at every zoom.
struct Picture {
  std::vector<PaintBatch> batches;
  QRectF box;  ///< around all paths; null when there is nothing
};
