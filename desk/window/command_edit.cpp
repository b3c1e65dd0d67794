#include "desk/window/command_edit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

CommandEdit::CommandEdit(QWidget* parent)
    : QLineEdit(parent), m_completer(new QCompleter(this)), m_names(new QStringListModel(this)) {
  m_completer->setModel(m_names);
  m_completer->setCaseSensitivity(Qt::CaseInsensitive);
  m_completer->setCompletionMode(QCompleter::PopupCompletion);
  m_completer->setWidget(this);
  connect(m_completer, qOverload<const QString&>(&QCompleter::activated), this, &QLineEdit::setText);
  connect(this, &QLineEdit::textEdited, this, &CommandEdit::complete);
}

void CommandEdit::setCommandNames(const QStringList& names) { m_names->setStringList(names); }

void CommandEdit::setAwaitsCommand(bool awaits) {
  m_awaits_command = awaits;
  if (!awaits) m_completer->popup()->hide();
}

void CommandEdit::takeKey(QKeyEvent* event) { keyPressEvent(event); }

/// Tab would leave for the next widget before `keyPressEvent` sees it.
bool CommandEdit::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
    takeCompletion();
    return true;
  }
  return QLineEdit::event(event);
}

void CommandEdit::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (m_completer->popup()->isVisible() && takePopupKey(key)) {
    event->ignore();
  } else if (key == Qt::Key_Return || key == Qt::Key_Enter || (key == Qt::Key_Space && m_awaits_command)) {
    enter();
  } else if (key == Qt::Key_Escape) {
    cancel();
  } else if (key == Qt::Key_Up) {
    setText(m_history.older(text()));
  } else if (key == Qt::Key_Down) {
    setText(m_history.newer(text()));
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

/// Keys that the list of completions works on; it gets those that are left alone here.
bool CommandEdit::takePopupKey(int key) {
  const bool chosen = m_completer->popup()->currentIndex().isValid();
  return chosen && (key == Qt::Key_Return || key == Qt::Key_Enter);
}

void CommandEdit::complete(const QString& typed) {
  m_completer->setCompletionPrefix(typed);
  const bool useful = m_awaits_command && !typed.isEmpty() && m_completer->completionCount() > 0 &&
                      m_completer->currentCompletion().compare(typed, Qt::CaseInsensitive) != 0;
  if (useful) {
    m_completer->complete();
  } else {
    m_completer->popup()->hide();
  }
}

void CommandEdit::takeCompletion() {
  if (!m_awaits_command || text().isEmpty()) return;
  const QModelIndex chosen = m_completer->popup()->currentIndex();
  m_completer->setCompletionPrefix(text());
  const QString name = chosen.isValid() ? chosen.data().toString() : m_completer->currentCompletion();
  if (!name.isEmpty()) setText(name);
  m_completer->popup()->hide();
}

void CommandEdit::enter() {
  m_completer->popup()->hide();
  const QString line = text();
  m_history.add(line);
  clear();
  emit entered(line);
}

void CommandEdit::cancel() {
  m_completer->popup()->hide();
  clear();
  emit cancelled();
}
