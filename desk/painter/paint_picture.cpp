#include "desk/painter/paint_picture.h"

#include <QPainter>

namespace {

QPen linePen(const QColor& color, double width) {
  QPen pen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  pen.setCosmetic(true);
  return pen;
}

void paintBatch(QPainter& painter, const PaintBatch& batch, const PaintSettings& settings) {
  const QColor color =
      settings.only_color.value_or(settings.colors.shown(batch.style.color, batch.style.alpha));
  if (batch.style.filled) {
    painter.fillPath(batch.path, color);
  } else {
    painter.strokePath(batch.path, linePen(color, settings.line_width));
  }
}

}  // namespace

void paintPicture(QPainter& painter, const Picture& picture, const PaintSettings& settings,
                  const QRectF& visible) {
  if (picture.batches.empty()) return;
  const double reach = settings.line_width;
  const QRectF box = settings.transform.mapRect(picture.box).adjusted(-reach, -reach, reach, reach);
  if (!box.intersects(visible)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(settings.transform, true);
  for (const PaintBatch& batch : picture.batches) paintBatch(painter, batch, settings);
  painter.restore();
}
