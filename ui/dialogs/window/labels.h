#pragma once

#include <QString>
#include <initializer_list>
#include <map>

class QAbstractButton;
class QWidget;

namespace dialogs {

/// The strings of these numbers in the user's language, each with a mnemonic of its own.
std::map<int, QString> labels_of(std::initializer_list<int> numbers);

/// Names a control by its number, and tells those who do not see the dialog what it is: `label` may have a
/// mnemonic and a colon.
void name_control(QWidget& control, int number, const QString& label);

/// A click on a button shall not leave the edit before the button has been let go: what the edit refuses
/// would be told in the midst of the click.
void keep_focus_on_click(QWidget& control);

}  // namespace dialogs
