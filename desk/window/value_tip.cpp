#include "desk/window/value_tip.h"

#include <QToolTip>

namespace {

constexpr int kDistance = 16;
constexpr int kMargin = 3;

/// Behind the mouse if that is within the view, else before it; at the edge beyond which the mouse has left.
int placed(int mouse, int length, int room) {
  const int behind = mouse + kDistance;
  const int wanted = behind + length <= room ? behind : mouse - kDistance - length;
  return std::max(0, std::min(wanted, room - length));
}

}  // namespace

ValueTip::ValueTip(QWidget& view) : QLabel(&view) {
  hide();
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAutoFillBackground(true);
  setPalette(QToolTip::palette());
  setForegroundRole(QPalette::ToolTipText);
  setBackgroundRole(QPalette::ToolTipBase);
  setFont(QToolTip::font());
  setTextFormat(Qt::PlainText);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setMargin(kMargin);
}

void ValueTip::showAt(QPoint mouse, const QString& text) {
  setText(text);
  adjustSize();
  const QSize room = parentWidget()->size();
  move(placed(mouse.x(), width(), room.width()), placed(mouse.y(), height(), room.height()));
  show();
}
