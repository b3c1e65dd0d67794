#include "ui/dialogs/window/glyph_path.h"

#include <QPainter>
#include <QPainterPath>

#include "od/fonts/OdFont.h"

namespace dialogs {
namespace {

QPainterPath path_of(const OdFontGlyph& glyph) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const auto& contour : glyph.contours) {
    if (contour.empty()) continue;
    path.moveTo(contour.front().x, contour.front().y);
    for (const OdGePoint2d& point : contour) path.lineTo(point.x, point.y);
    if (glyph.filled) path.closeSubpath();
  }
  return path;
}

/// From font units into the box: the middle of the ink above that of the box, capitals `share` of it high;
/// smaller where the ink would not find room.
QTransform into_box(const QRectF& ink, const QRectF& box, double scale) {
  const double fitting =
      std::min(box.width() / std::max(ink.width(), 1e-9), box.height() / std::max(ink.height(), 1e-9));
  const double used = std::min(scale, fitting * 0.9);
  return QTransform()
      .translate(box.center().x(), box.center().y())
      .scale(used, -used)
      .translate(-ink.center().x(), -ink.center().y());
}

}  // namespace

void paint_character(QPainter& painter, const OdFont& font, char32_t character, const QRectF& box,
                     const QColor& color, double share) {
  const OdFontGlyph* const glyph = font.glyph(character);
  if (!glyph) return;
  const QPainterPath path = path_of(*glyph);
  const QTransform transform =
      into_box(path.boundingRect(), box, box.height() * share / font.nominalHeight());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (glyph->filled) {
    painter.fillPath(transform.map(path), color);
  } else {
    painter.strokePath(transform.map(path), QPen(color, std::max(1.0, box.height() / 40)));
  }
  painter.restore();
}

}  // namespace dialogs
