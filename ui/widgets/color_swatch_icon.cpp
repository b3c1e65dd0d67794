#include "ui/widgets/color_swatch_icon.h"

#include <QPainter>

#include "ui/widgets/painted_icon.h"

namespace {

class SwatchEngine : public PaintedIcon {
 public:
  explicit SwatchEngine(const controls::color_swatch& swatch) : m_swatch(swatch) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    // The icon is 16 pixels wide, the swatch 10.
    const double margin = rect.width() * 3 / 16.0;
    const QRectF square = QRectF(rect).adjusted(margin, margin, -margin, -margin);
    painter->fillRect(square, QColor::fromRgb(m_swatch.rgb));
    if (m_swatch.half_black)
      painter->fillRect(QRectF(square.topLeft(), QSizeF(square.width() / 2, square.height())), Qt::black);
    painter->setPen(QPen(Qt::gray, 1));
    painter->drawRect(square);
  }
  QIconEngine* clone() const override { return new SwatchEngine(m_swatch); }

 private:
  controls::color_swatch m_swatch;
};

}  // namespace

QIcon swatchIcon(const controls::color_swatch& swatch) { return QIcon(new SwatchEngine(swatch)); }
