#include "ui/dialogs/window/columns_window.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "ui/dialogs/window/button_row.h"
#include "ui/dialogs/window/field_edit.h"
#include "ui/dialogs/window/labels.h"
#include "ui/widgets/qt_text.h"

namespace {

constexpr int kTitle = 1310;
constexpr int kDynamic = 1311, kAutoHeight = 1312, kManualHeight = 1313, kStatic = 1314, kNone = 1315;
constexpr int kCount = 1316, kHeight = 1317, kWidth = 1318, kColumn = 1319, kGutter = 1320, kTotal = 1321;
constexpr int kDynamicControl = 1029, kStaticControl = 1030, kNoneControl = 1031;
constexpr int kAutoHeightControl = 1032, kManualHeightControl = 1033;
constexpr int kIndent = 20;  // pixels

bool is_enter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// The radio button of a type of columns.
int control_of(std::uint32_t type) {
  if (type == 2) return kDynamicControl;
  return type == 1 ? kStaticControl : kNoneControl;
}

}  // namespace

ColumnsWindow::ColumnsWindow(CMTextColumnsDlg& dialog, QWidget* parent) : QDialog(parent), m_dialog(dialog) {
  build();
  showAll();
}

void ColumnsWindow::build() {
  setWindowTitle(qtString(kTitle));
  const Labels labels = dialogs::labels_of({kDynamic, kAutoHeight, kManualHeight, kStatic, kNone, kCount,
                                            kHeight, kColumn, kGutter, kTotal, dialogs::kHelpLabel});
  auto* const upper = new QHBoxLayout;
  upper->setSpacing(kIndent);
  upper->addLayout(typeColumn(labels));
  upper->addLayout(fieldColumn(labels));
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(upper);
  layout->addWidget(dialogs::button_row(*this, {.cancelling = [this] { showAll(); },
                                                .help_label = labels.at(dialogs::kHelpLabel),
                                                .show_help = [this] { m_dialog.showHelp(); }}));
  layout->setSizeConstraint(QLayout::SetFixedSize);
  findChild<QPushButton*>("1")->installEventFilter(this);
}

QLayout* ColumnsWindow::typeColumn(const Labels& labels) {
  auto* const types = new QButtonGroup(this);
  auto* const heights = new QButtonGroup(this);
  auto* const indented = new QVBoxLayout;
  indented->setContentsMargins(kIndent, 0, 0, 0);
  auto* const column = new QVBoxLayout;
  column->addWidget(radio(*types, kDynamicControl, labels.at(kDynamic)));
  column->addLayout(indented);
  indented->addWidget(radio(*heights, kAutoHeightControl, labels.at(kAutoHeight)));
  indented->addWidget(radio(*heights, kManualHeightControl, labels.at(kManualHeight)));
  column->addWidget(radio(*types, kStaticControl, labels.at(kStatic)));
  column->addWidget(radio(*types, kNoneControl, labels.at(kNone)));
  column->addStretch();
  return column;
}

QLayout* ColumnsWindow::fieldColumn(const Labels& labels) {
  auto* const column = new QVBoxLayout;
  for (const auto& [which, label] : {std::pair(field::count, kCount), std::pair(field::height, kHeight)}) {
    auto* const box = new QGroupBox(labels.at(label), this);
    auto* const layout = new QVBoxLayout(box);
    layout->addWidget(edit(which, labels.at(label)));
    column->addWidget(box);
  }
  auto* const widths = new QGroupBox(qtString(kWidth), this);
  auto* const form = new QFormLayout(widths);
  for (const auto& [which, label] : {std::pair(field::column_width, kColumn),
                                     std::pair(field::gutter, kGutter), std::pair(field::total, kTotal)})
    form->addRow(labels.at(label), edit(which, labels.at(label)));
  column->addWidget(widths);
  return column;
}

QRadioButton* ColumnsWindow::radio(QButtonGroup& group, int control, const QString& label) {
  auto* const made = new QRadioButton(label, this);
  group.addButton(made);
  dialogs::name_control(*made, control, label);
  connect(made, &QRadioButton::clicked, [this, control] { choose(control); });
  return m_radios[control] = made;
}

FieldEdit* ColumnsWindow::edit(field which, const QString& label) {
  auto* const made = new FieldEdit(this);
  dialogs::name_control(*made, static_cast<int>(which), label);
  made->left = [this, which, made] {
    if (leave(which)) return;
    made->setFocus();
    made->selectAll();
  };
  return m_edits[which] = made;
}

/// A text that is refused keeps the user from going on to another type.
void ColumnsWindow::choose(int control) {
  if (leaveCurrent()) {
    if (control == kDynamicControl) m_dialog.setType(2);
    if (control == kStaticControl) m_dialog.setType(1);
    if (control == kNoneControl) m_dialog.setType(0);
    if (control == kAutoHeightControl) m_dialog.setAutoHeight(true);
    if (control == kManualHeightControl) m_dialog.setAutoHeight(false);
  }
  showAll();
}

bool ColumnsWindow::leave(field which) {
  const column_values before = m_dialog.values();
  const bool accepted = m_dialog.leave(which, fromQt(m_edits.at(which)->text()));
  m_dialog.values() == before ? showField(which) : showAll();
  return accepted;
}

bool ColumnsWindow::leaveCurrent() {
  const auto current =
      std::ranges::find_if(m_edits, [](const auto& each) { return each.second->hasFocus(); });
  return current == m_edits.end() || leave(current->first);
}

/// All of them, also those that cannot be changed now.
bool ColumnsWindow::leaveAll() {
  return std::ranges::all_of(CMTextColumnsDlg::kFields, [this](field each) { return leave(each); });
}

void ColumnsWindow::showAll() {
  m_radios.at(control_of(m_dialog.values().type))->setChecked(true);
  m_radios.at(m_dialog.values().auto_height ? kAutoHeightControl : kManualHeightControl)->setChecked(true);
  for (const int control : {kAutoHeightControl, kManualHeightControl})
    m_radios.at(control)->setEnabled(m_dialog.isHeightModeEnabled());
  // Tab goes to what is chosen of several, the arrows from there to the others.
  for (const auto& [control, radio] : m_radios)
    radio->setFocusPolicy(radio->isChecked() ? Qt::TabFocus : Qt::NoFocus);
  for (const field each : CMTextColumnsDlg::kFields) showField(each);
}

void ColumnsWindow::showField(field which) {
  FieldEdit& edit = *m_edits.at(which);
  edit.setEnabled(m_dialog.isEnabled(which));
  const QString text = toQt(m_dialog.shown(which));
  if (edit.text() != text) edit.setText(text);
}

bool ColumnsWindow::eventFilter(QObject* target, QEvent* event) {
  return (is_enter(*event) && !leaveAll()) || QDialog::eventFilter(target, event);
}

void ColumnsWindow::keyPressEvent(QKeyEvent* event) {
  if (!is_enter(*event) || leaveAll()) QDialog::keyPressEvent(event);
}

void ColumnsWindow::accept() {
  if (leaveCurrent()) QDialog::accept();
}

/// What stands in the edits is forgotten before they are left, so that nothing is refused any more.
void ColumnsWindow::reject() {
  showAll();
  QDialog::reject();
}

/// The window goes, and the edits with it: that is no leaving.
void ColumnsWindow::done(int result) {
  for (const auto& [which, edit] : m_edits) edit->left = nullptr;
  QDialog::done(result);
}
