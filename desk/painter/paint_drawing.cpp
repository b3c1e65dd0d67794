#include "desk/painter/paint_drawing.h"

void paintDrawing(QPainter& painter, const DrawingPictures& pictures, const PaintSettings& settings,
                  const QRectF& visible) {
  for (const OdDbObjectId& id : pictures.order())
    if (const Picture* picture = pictures.find(id)) paintPicture(painter, *picture, settings, visible);
}
