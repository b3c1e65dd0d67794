#pragma once

#include <QIconEngine>

/// The inside of an icon that is painted anew at each size, on nothing.
class PaintedIcon : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
};
