#pragma once

#include <QColor>
#include <QRectF>

class OdFont;
class QPainter;

namespace dialogs {

/// Paints a character of a font into the middle of a box, its capitals `share` of the box high. Nothing for a
/// character that has no shape anywhere.
void paint_character(QPainter& painter, const OdFont& font, char32_t character, const QRectF& box,
                     const QColor& color, double share);

}  // namespace dialogs
