#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "ui/widgets/edit_link.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/svg_icon.h"
#include "ui/widgets/toolbar_boxes.h"

namespace {

constexpr QSize kArrowSize(14, 11);
constexpr int kEditWidth = 54;

/// The keys and the wheel that move by a step.
class SpinLine : public QLineEdit {
 public:
  SpinLine(CUpDownWithEdit& spin, QWidget* parent) : QLineEdit(parent), m_spin(spin) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Up)
      m_spin.arrow(1);
    else if (event->key() == Qt::Key_Down)
      m_spin.arrow(-1);
    else
      QLineEdit::keyPressEvent(event);
  }
  void wheelEvent(QWheelEvent* event) override {
    const int delta = event->angleDelta().y();
    if (delta != 0) m_spin.arrow(delta > 0 ? 1 : -1);
  }

 private:
  CUpDownWithEdit& m_spin;
};

QToolButton* arrow(CUpDownWithEdit& spin, int delta, const QString& name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
  button->setFixedSize(kArrowSize);
  button->setAutoRaise(true);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAccessibleName(name + QString::fromUtf16(delta > 0 ? u" +" : u" \u2212"));
  QObject::connect(button, &QToolButton::clicked, button, [&spin, delta] { spin.arrow(delta); });
  return button;
}

}  // namespace

QWidget* spinBox(CUpDownWithEdit& spin, int icon, const QString& name, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  auto* picture = new QLabel(box);
  picture->setPixmap(svgIcon(icon).pixmap({16, 16}, box->devicePixelRatioF()));
  row->addWidget(picture);
  auto* line = new SpinLine(spin, box);
  line->setFixedWidth(kEditWidth);
  line->setAlignment(Qt::AlignRight);
  new EditLink(*line, spin.edit());
  row->addWidget(line);
  auto* arrows = new QVBoxLayout;
  arrows->setSpacing(0);
  arrows->addWidget(arrow(spin, 1, name, box));
  arrows->addWidget(arrow(spin, -1, name, box));
  row->addLayout(arrows);
  box->setFocusProxy(line);
  box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return box;
}
