#include "ui/widgets/painted_icon.h"

#include <QPainter>
#include <QPixmap>

QPixmap PaintedIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  QPixmap drawn(size);
  drawn.fill(Qt::transparent);
  QPainter painter(&drawn);
  paint(&painter, QRect(QPoint(), size), mode, state);
  return drawn;
}
