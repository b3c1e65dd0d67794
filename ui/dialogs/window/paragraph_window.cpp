#include "ui/dialogs/window/paragraph_window.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/dialogs/CParagraphDlg.h"
#include "ui/dialogs/window/button_row.h"
#include "ui/dialogs/window/field_edit.h"
#include "ui/dialogs/window/labels.h"
#include "ui/widgets/qt_text.h"

namespace {

constexpr int kTitle = 1300, kEnabled = 1301, kStyle = 1302, kValue = 1303;
constexpr int kStyleNames[] = {1095, 1096, 1097};  // in the order of dialogs::kSpacingStyles
constexpr int kEnabledControl = 1031, kStyleControl = 1009, kValueControl = 1008;

}  // namespace

ParagraphWindow::ParagraphWindow(CParagraphDlg& dialog, QWidget* parent)
    : QDialog(parent),
      m_dialog(dialog),
      m_enabled(new QGroupBox(this)),
      m_style(new QComboBox(m_enabled)),
      m_value(new FieldEdit(m_enabled)) {
  build();
  connectControls();
  showAll();
}

void ParagraphWindow::build() {
  setWindowTitle(qtString(kTitle));
  const auto labels = dialogs::labels_of({kEnabled, kStyle, kValue});
  m_enabled->setCheckable(true);
  m_enabled->setTitle(labels.at(kEnabled));
  for (const int name : kStyleNames) m_style->addItem(qtString(name));
  auto* const form = new QFormLayout(m_enabled);
  form->addRow(labels.at(kStyle), m_style);
  form->addRow(labels.at(kValue), m_value);
  dialogs::name_control(*m_enabled, kEnabledControl, labels.at(kEnabled));
  dialogs::name_control(*m_style, kStyleControl, labels.at(kStyle));
  dialogs::name_control(*m_value, kValueControl, labels.at(kValue));
  dialogs::keep_focus_on_click(*m_enabled);
  dialogs::keep_focus_on_click(*m_style);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_enabled);
  layout->addWidget(dialogs::button_row(*this, {}));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ParagraphWindow::connectControls() {
  connect(m_enabled, &QGroupBox::clicked, [this](bool on) {
    m_dialog.setEnabled(on);
    showAll();
  });
  connect(m_style, &QComboBox::activated, [this](int row) {
    if (leaveValue()) m_dialog.setStyle(dialogs::kSpacingStyles[row]);
    showAll();
  });
  m_value->left = [this] {
    leaveValue();
    showAll();
  };
}

bool ParagraphWindow::leaveValue() {
  if (m_dialog.leaveValue(fromQt(m_value->text()))) return true;
  m_value->setFocus();
  m_value->selectAll();
  return false;
}

void ParagraphWindow::showAll() {
  m_enabled->setChecked(m_dialog.isEnabled());
  const auto row = std::ranges::find(dialogs::kSpacingStyles, m_dialog.style());
  const bool has_row = row != std::end(dialogs::kSpacingStyles);
  m_style->setCurrentIndex(has_row ? static_cast<int>(row - std::begin(dialogs::kSpacingStyles)) : -1);
  const QString value = toQt(m_dialog.valueText());
  if (m_value->text() != value) m_value->setText(value);
}

void ParagraphWindow::accept() {
  if (leaveValue()) QDialog::accept();
}

/// The window goes, and the edit with it: that is no leaving.
void ParagraphWindow::done(int result) {
  m_value->left = nullptr;
  QDialog::done(result);
}
