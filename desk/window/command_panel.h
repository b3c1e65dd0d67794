#pragma once

#include <QWidget>

class CommandEdit;
class QLabel;
class QPlainTextEdit;

/// The foot of the window: what was said and typed before, the prompt, and the line to type in.
class CommandPanel : public QWidget {
  Q_OBJECT

 public:
  explicit CommandPanel(QWidget* parent = nullptr);

  CommandEdit& edit() { return *m_edit; }
  /// Adds lines to the scrollback.
  void write(const QString& text);
  /// Shows the question that is asked now; the one before goes into the scrollback with its answer.
  void showPrompt(const QString& prompt);

 private:
  void echo(const QString& typed);

  QPlainTextEdit* m_scrollback;
  QLabel* m_prompt;
  CommandEdit* m_edit;
};
