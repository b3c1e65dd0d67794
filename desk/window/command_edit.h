#pragma once

#include <QLineEdit>

#include "desk/window/command_history.h"

class QCompleter;
class QStringListModel;

/// The line in which commands and answers are typed.
///
/// Enter gives the line away, Esc cancels, Up and Down walk through the history, Tab takes the completion.
/// While a command name is awaited names are completed and a blank counts as Enter.
class CommandEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit CommandEdit(QWidget* parent = nullptr);

  /// The names that can be completed.
  void setCommandNames(const QStringList& names);
  /// Whether a command name is what is asked for now.
  void setAwaitsCommand(bool awaits);
  /// Takes a key that another widget got: it arrives as if typed here.
  void takeKey(QKeyEvent* event);

 signals:
  /// A line was ended with Enter; it may be empty.
  void entered(const QString& line);
  /// Esc was pressed.
  void cancelled();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void complete(const QString& typed);
  void takeCompletion();
  void enter();
  void cancel();
  bool takePopupKey(int key);

  CommandHistory m_history;
  QCompleter* m_completer;
  QStringListModel* m_names;
  bool m_awaits_command = true;
};
