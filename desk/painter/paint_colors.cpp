#include "desk/painter/paint_colors.h"

namespace {
constexpr QRgb kDarkGround = qRgb(30, 34, 40);
constexpr QRgb kLightGround = qRgb(255, 255, 255);
constexpr QRgb kDarkHighlight = qRgb(96, 170, 255);
constexpr QRgb kLightHighlight = qRgb(0, 96, 208);
}  // namespace

QColor PaintColors::background() const {
  return QColor::fromRgb(m_background == Background::dark ? kDarkGround : kLightGround);
}

OdCmEntityColor PaintColors::backgroundColor() const {
  const QColor ground = background();
  return {static_cast<std::uint8_t>(ground.red()), static_cast<std::uint8_t>(ground.green()),
          static_cast<std::uint8_t>(ground.blue())};
}

QColor PaintColors::highlight() const {
  return QColor::fromRgb(m_background == Background::dark ? kDarkHighlight : kLightHighlight);
}

QColor PaintColors::shown(const OdCmEntityColor& color, int alpha) const {
  QColor result;
  if (color.colorMethod() == OdCmEntityColor::kNone) {
    result = background();
  } else if (color.isByACI() ? color.colorIndex() == OdCmEntityColor::kACIForeground : !color.isByColor()) {
    result = m_background == Background::dark ? Qt::white : Qt::black;
  } else {
    result = QColor::fromRgb(QRgb(color.trueColor()) | 0xFF000000u);
  }
  result.setAlpha(alpha);
  return result;
}
