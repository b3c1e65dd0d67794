#include "desk/window/command_panel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "desk/window/command_edit.h"

namespace {
constexpr int kScrollbackLines = 5000;
constexpr int kVisibleLines = 4;
constexpr int kMargin = 4;
}  // namespace

CommandPanel::CommandPanel(QWidget* parent)
    : QWidget(parent),
      m_scrollback(new QPlainTextEdit(this)),
      m_prompt(new QLabel(this)),
      m_edit(new CommandEdit(this)) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_scrollback->setReadOnly(true);
  m_scrollback->setFocusPolicy(Qt::ClickFocus);
  m_scrollback->setMaximumBlockCount(kScrollbackLines);
  m_scrollback->setMinimumHeight(fontMetrics().lineSpacing() * kVisibleLines + 2 * kMargin);
  m_scrollback->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  m_edit->setFrame(false);
  m_prompt->setTextFormat(Qt::PlainText);

  auto* line = new QHBoxLayout;
  line->addWidget(m_prompt);
  line->addWidget(m_edit, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, 0, kMargin, kMargin);
  column->addWidget(m_scrollback, 1);
  column->addLayout(line);
  connect(m_edit, &CommandEdit::entered, this, &CommandPanel::echo);
}

void CommandPanel::write(const QString& text) { m_scrollback->appendPlainText(text); }

void CommandPanel::showPrompt(const QString& prompt) { m_prompt->setText(prompt); }

void CommandPanel::echo(const QString& typed) { write(m_prompt->text() + " " + typed); }
