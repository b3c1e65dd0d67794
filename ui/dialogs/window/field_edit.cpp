#include "ui/dialogs/window/field_edit.h"

#include <QFocusEvent>

void FieldEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const bool another_window = event->reason() == Qt::ActiveWindowFocusReason ||
                              event->reason() == Qt::PopupFocusReason ||
                              event->reason() == Qt::MenuBarFocusReason;
  if (!another_window && left) left();
}
