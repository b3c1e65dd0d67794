#include "ui/dialogs/window/button_row.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

#include "ui/dialogs/window/labels.h"
#include "ui/widgets/qt_text.h"

namespace dialogs {
namespace {

constexpr int kCancel = 1305;
constexpr int kAcceptControl = 1, kCancelControl = 2, kHelpControl = 9;

QPushButton* button(QWidget& parent, int control, const QString& label) {
  auto* const made = new QPushButton(label, &parent);
  name_control(*made, control, label);
  keep_focus_on_click(*made);
  return made;
}

void add_help(QDialog& dialog, QWidget& widget, const ButtonRow& row) {
  QPushButton* const help = button(widget, kHelpControl, row.help_label);
  help->setAutoDefault(false);
  widget.layout()->addWidget(help);
  auto* const key = new QShortcut(QKeySequence(Qt::Key_F1), &dialog);
  QObject::connect(help, &QPushButton::clicked, row.show_help);
  QObject::connect(key, &QShortcut::activated, row.show_help);
}

}  // namespace

QWidget* button_row(QDialog& dialog, const ButtonRow& row) {
  auto* const widget = new QWidget(&dialog);
  auto* const layout = new QHBoxLayout(widget);
  layout->setContentsMargins({});
  layout->addStretch();
  QPushButton* const accept = button(*widget, kAcceptControl, qtString(row.accept_label));
  QPushButton* const cancel = button(*widget, kCancelControl, qtString(kCancel));
  accept->setDefault(true);
  layout->addWidget(accept);
  layout->addWidget(cancel);
  QObject::connect(accept, &QPushButton::clicked, &dialog, &QDialog::accept);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  if (row.cancelling) QObject::connect(cancel, &QPushButton::pressed, row.cancelling);
  if (row.show_help) add_help(dialog, *widget, row);
  return widget;
}

}  // namespace dialogs
