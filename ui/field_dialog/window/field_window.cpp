#include "ui/field_dialog/window/field_window.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/widgets/qt_text.h"

namespace {

QString argumentLabel(fields::argument argument) {
  switch (argument) {
    case fields::argument::name:
      return qtTranslated(u"Name of the &variable:");
    case fields::argument::object:
      return qtTranslated(u"&Handle of the object:");
    case fields::argument::expression:
      return qtTranslated(u"&Expression:");
    case fields::argument::none:
      break;
  }
  return qtTranslated(u"&Argument:");
}

}  // namespace

FieldWindow::FieldWindow(CFieldDlg& choice, const QString& title, QWidget* parent)
    : QDialog(parent),
      m_choice(choice),
      m_kinds(new QListWidget),
      m_formats(new QListWidget),
      m_argument_label(new QLabel),
      m_argument(new QLineEdit),
      m_property(new QComboBox),
      m_code(new QLineEdit),
      m_preview(new QLabel) {
  setWindowTitle(title);
  for (const fields::kind_row& row : fields::kinds()) m_kinds->addItem(qtTranslated(row.label));
  for (const std::u16string_view name : fields::properties()) m_property->addItem(toQt(name));
  m_preview->setTextFormat(Qt::PlainText);
  m_preview->setMinimumWidth(300);
  m_preview->setWordWrap(true);
  layOut();
  connectWidgets();
  showChoice(nullptr);
}

void FieldWindow::layOut() {
  auto* lists = new QHBoxLayout;
  lists->addWidget(m_kinds);
  lists->addWidget(m_formats);
  auto* rows = new QFormLayout;
  rows->addRow(m_argument_label, m_argument);
  rows->addRow(qtTranslated(u"&Property:"), m_property);
  rows->addRow(qtTranslated(u"&Code:"), m_code);
  rows->addRow(qtTranslated(u"Shows:"), m_preview);
  m_argument_label->setBuddy(m_argument);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  m_ok = buttons->button(QDialogButtonBox::Ok);
  m_ok->setText(qtTranslated(u"OK"));
  buttons->button(QDialogButtonBox::Cancel)->setText(qtTranslated(u"Cancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* all = new QVBoxLayout(this);
  all->addLayout(lists);
  all->addLayout(rows);
  all->addWidget(buttons);
}

void FieldWindow::connectWidgets() {
  connect(m_kinds, &QListWidget::currentRowChanged, this, [this](int row) {
    if (m_showing || row < 0) return;
    m_choice.choose_kind(static_cast<std::size_t>(row));
    showChoice(m_kinds);
  });
  connect(m_formats, &QListWidget::currentRowChanged, this, [this](int row) {
    if (m_showing || row < 0) return;
    m_choice.choose_format(static_cast<std::size_t>(row));
    showChoice(m_formats);
  });
  connect(m_property, &QComboBox::activated, this, [this](int row) {
    m_choice.choose_property(static_cast<std::size_t>(row));
    showChoice(m_property);
  });
  connect(m_argument, &QLineEdit::textEdited, this, [this](const QString& text) {
    m_choice.set_argument(fromQt(text));
    showChoice(m_argument);
  });
  connect(m_code, &QLineEdit::textEdited, this, [this](const QString& text) {
    m_choice.set_code(fromQt(text));
    showChoice(m_code);
  });
}

void FieldWindow::showFormats() {
  m_formats->clear();
  for (const fields::format_row& row : m_choice.kind_row().formats)
    m_formats->addItem(qtTranslated(row.label));
  m_formats->setCurrentRow(static_cast<int>(m_choice.format()));
}

void FieldWindow::showChoice(const QWidget* writing) {
  m_showing = true;
  const fields::argument argument = m_choice.kind_row().argument;
  m_kinds->setCurrentRow(static_cast<int>(m_choice.kind()));
  if (writing != m_formats) showFormats();
  m_argument_label->setText(argumentLabel(argument));
  m_argument->setEnabled(argument != fields::argument::none);
  m_property->setEnabled(argument == fields::argument::object);
  m_property->setCurrentIndex(static_cast<int>(m_choice.property()));
  if (writing != m_argument) m_argument->setText(toQt(m_choice.argument()));
  if (writing != m_code) m_code->setText(toQt(m_choice.code()));
  m_preview->setText(toQt(m_choice.preview()));
  m_ok->setEnabled(m_choice.can_finish());
  m_showing = false;
}
