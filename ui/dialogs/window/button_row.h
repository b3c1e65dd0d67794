#pragma once

#include <QString>
#include <functional>

class QDialog;
class QWidget;

namespace dialogs {

/// String of the button that shows help; it takes part in the mnemonics of its dialog.
inline constexpr int kHelpLabel = 1306;

/// What the last row of a dialog has besides its two buttons.
struct ButtonRow {
  int accept_label = 1304;             ///< string of the button that accepts
  std::function<void()> cancelling{};  ///< told when the button that cancels is pressed down; may be empty
  QString help_label{};
  std::function<void()> show_help{};  ///< behind a third button and F1; empty for none
};

/// The row of buttons, connected to `dialog`, which owns it: accepting is what Enter does, cancelling Esc.
QWidget* button_row(QDialog& dialog, const ButtonRow& row);

}  // namespace dialogs
