#include "desk/painter/paint_picture.h"

#include <QPainter>

namespace {

/// In widths of the line, which is measured in pixels, and so the same at every zoom.
constexpr double kDash = 6, kDashGap = 4;

QPen linePen(const QColor& color, double width, bool dashed) {
  QPen pen(color, width, Qt::SolidLine, dashed ? Qt::FlatCap : Qt::RoundCap, Qt::RoundJoin);
  pen.setCosmetic(true);
  if (dashed) pen.setDashPattern({kDash, kDashGap});
  return pen;
}

void paintBatch(QPainter& painter, const PaintBatch& batch, const PaintSettings& settings) {
  const QColor color =
      settings.only_color.value_or(settings.colors.shown(batch.style.color, batch.style.alpha));
  if (batch.style.filled) {
    painter.fillPath(batch.path, color);
  } else {
    painter.strokePath(batch.path, linePen(color, settings.line_width, batch.style.dashed));
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
