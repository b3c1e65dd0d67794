#include "ui/widgets/toolbar_grip.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kWidth = 8;
constexpr int kDotDistance = 4;

}  // namespace

ToolbarGrip::ToolbarGrip(QWidget* parent) : QWidget(parent) {
  setFixedWidth(kWidth);
  setCursor(Qt::SizeAllCursor);
}

void ToolbarGrip::mousePressEvent(QMouseEvent* event) {
  m_held = event->globalPosition().toPoint() - window()->pos();
}

void ToolbarGrip::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) window()->move(event->globalPosition().toPoint() - m_held);
}

void ToolbarGrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (int y = kDotDistance; y < height() - 2; y += kDotDistance)
    for (const int x : {1, 5}) painter.fillRect(x, y, 2, 2, palette().color(QPalette::Mid));
}
