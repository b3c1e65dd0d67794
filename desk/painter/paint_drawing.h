#pragma once

#include "desk/painter/drawing_pictures.h"
#include "desk/painter/paint_picture.h"

/// Paints all entities in drawing order, as of the last refresh. The ground has to be there already.
void paintDrawing(QPainter& painter, const DrawingPictures& pictures, const PaintSettings& settings,
                  const QRectF& visible);
