#include "ui/dialogs/window/paint_character.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

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

/// From font units into the box, `scale` pixels to the unit: the ink in its middle from left to right,
/// capitals in its middle from top to bottom, so that high and low signs are told apart. Ink that finds no
/// room like that is made smaller and stands in the middle.
QTransform into_box(const QRectF& ink, const QRectF& box, double scale, double capital) {
  const QTransform seated = QTransform()
                                .translate(box.center().x(), box.center().y())
                                .scale(scale, -scale)
                                .translate(-ink.center().x(), -capital / 2);
  if (box.contains(seated.mapRect(ink))) return seated;
  constexpr double margin = 0.9;
  const double fitting = margin * std::min(box.width() / std::max(ink.width(), 1e-9),
                                           box.height() / std::max(ink.height(), 1e-9));
  return QTransform()
      .translate(box.center().x(), box.center().y())
      .scale(std::min(scale, fitting), -std::min(scale, fitting))
      .translate(-ink.center().x(), -ink.center().y());
}

}  // namespace

void paint_character(QPainter& painter, const OdFont& font, char32_t character, const QRectF& box,
                     const QColor& color, double share) {
  const OdFontGlyph* const glyph = font.glyph(character);
  if (!glyph) return;
  const QPainterPath path = path_of(*glyph);
  const double capital = font.nominalHeight();
  const QTransform transform = into_box(path.boundingRect(), box, box.height() * share / capital, capital);
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
