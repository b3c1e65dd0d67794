#include "ui/widgets/edit_link.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "ui/controls/CEditEx.h"
#include "ui/widgets/qt_text.h"

EditLink::EditLink(QLineEdit& line, CEditEx& edit) : QObject(&line), m_line(line), m_edit(edit) {
  const auto show = [this] { m_line.setText(toQt(m_edit.text())); };
  m_edit.shown = show;
  show();
  connect(&m_line, &QLineEdit::textEdited, this, [this](const QString& text) { m_edit.type(fromQt(text)); });
  m_line.installEventFilter(this);
  // In a combo the combo has the focus, and passes keys on behind the back of filters.
  if (QWidget* combo = m_line.focusProxy()) combo->installEventFilter(this);
}

EditLink::~EditLink() { m_edit.shown = nullptr; }

bool EditLink::isEnter(const QEvent& event) const {
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool EditLink::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      event->accept();  // keys are for the box, not for the menus of the application
      return true;
    case QEvent::KeyPress:
      return isEnter(*event);  // it counts when it is let go
    case QEvent::KeyRelease:
      if (isEnter(*event) && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) m_edit.enter();
      return isEnter(*event);
    case QEvent::FocusOut:
      // The list that a box opens is part of the box.
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) m_edit.leave();
      return false;
    default:
      return false;
  }
}
