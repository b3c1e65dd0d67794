#pragma once

#include <QTransform>
#include <optional>

#include "desk/painter/paint_colors.h"
#include "desk/painter/picture.h"

class QPainter;

/// How pictures come onto a device.
struct PaintSettings {
  PaintColors colors;
  /// From the pictures' frame to the device.
  QTransform transform;
  /// Of lines, in device pixels; they do not grow with the zoom.
  double line_width = 1;
  /// Paints everything in this colour.
  std::optional<QColor> only_color = {};
};

/// Paints a picture, antialiased. What lies outside the painter's `visible` device rectangle may be left out.
void paintPicture(QPainter& painter, const Picture& picture, const PaintSettings& settings,
                  const QRectF& visible);
