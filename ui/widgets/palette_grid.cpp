#include "ui/widgets/palette_grid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "od/cm/palette.h"

namespace {

constexpr int kColumns = 24;
constexpr int kCell = 15;
constexpr int kLast = 255;
/// The first nine colours stand in a row of their own, since the others form groups of ten.
constexpr int kFirstOfGroups = 10;
constexpr int kRows = 12;

}  // namespace

PaletteGrid::PaletteGrid(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(sizeHint());
}

QSize PaletteGrid::sizeHint() const { return {kColumns * kCell + 1, kRows * kCell + 1}; }

QRect PaletteGrid::cell(int index) const {
  int column = index - 1, row = 0;
  if (index >= 250) {
    column = index - 250 + kFirstOfGroups + 1;
  } else if (index >= kFirstOfGroups) {
    column = index / 10 - 1;
    row = index % 10 + 2;
  }
  return {column * kCell, row * kCell, kCell, kCell};
}

void PaletteGrid::select(int index) {
  m_selected = index;
  update();
}

void PaletteGrid::choose(int index) {
  if (index < 1 || index > kLast) return;
  select(index);
  if (chosen) chosen(index);
}

void PaletteGrid::mousePressEvent(QMouseEvent* event) {
  for (int index = 1; index <= kLast; ++index)
    if (cell(index).contains(event->position().toPoint())) return choose(index);
}

void PaletteGrid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      return choose(m_selected - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
      return choose(m_selected + 1);
    default:
      QWidget::keyPressEvent(event);
  }
}

void PaletteGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (int index = 1; index <= kLast; ++index) {
    painter.setPen(Qt::gray);
    painter.setBrush(QColor::fromRgb(odPaletteColor(index)));
    painter.drawRect(cell(index));
  }
  if (m_selected < 1) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
  painter.drawRect(cell(m_selected));
}
