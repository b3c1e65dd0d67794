#pragma once

#include <QColor>
#include <QRectF>

class OdFont;
class QPainter;

namespace dialogs {

/// Paints a character of a font into a box, at the size and height at which a capital is `share` of the box
/// high and stands in its middle. Nothing for a character that has no shape anywhere.
void paint_character(QPainter& painter, const OdFont& font, char32_t character, const QRectF& box,
                     const QColor& color, double share);

}  // namespace dialogs
