#include "ui/dialogs/window/labels.h"

#include <QWidget>
#include <vector>

#include "host/translate.h"
#include "ui/dialogs/mnemonics.h"
#include "ui/widgets/qt_text.h"

namespace dialogs {

std::map<int, QString> labels_of(std::initializer_list<int> numbers) {
  std::vector<std::u16string> texts;
  for (const int number : numbers) texts.push_back(host::resource_string(number));
  texts = with_mnemonics(std::move(texts));
  std::map<int, QString> labels;
  for (auto text = texts.begin(); const int number : numbers) labels.emplace(number, toQt(*text++));
  return labels;
}

void name_control(QWidget& control, int number, const QString& label) {
  control.setObjectName(QString::number(number));
  QString name = label;
  name.remove(u'&');
  if (name.endsWith(u':')) name.chop(1);
  control.setAccessibleName(name);
}

void keep_focus_on_click(QWidget& control) { control.setFocusPolicy(Qt::TabFocus); }

}  // namespace dialogs
