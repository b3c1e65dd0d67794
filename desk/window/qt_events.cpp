#include "desk/window/qt_events.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "desk/window/qt_text.h"
#include "host/help.h"
#include "host/translate.h"

namespace {

/// Its first letter answers, with Alt or without.
void addButton(QMessageBox& box, QMessageBox::StandardButton which, const std::u16string& text) {
  box.addButton(which)->setText(toQt(u"&" + text));
}

void makeQuestion(QMessageBox& box) {
  box.setIcon(QMessageBox::Question);
  addButton(box, QMessageBox::Yes, Supp_Translate(u"Yes"));
  addButton(box, QMessageBox::No, Supp_Translate(u"No"));
  addButton(box, QMessageBox::Cancel, Supp_Translate(u"Cancel"));
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::Cancel);
}

void makeAlert(QMessageBox& box) {
  box.setIcon(QMessageBox::Warning);
  addButton(box, QMessageBox::Ok, Supp_Translate(u"OK"));
  box.setEscapeButton(QMessageBox::Ok);
}

HostBoxAnswer answerOf(int button) {
  if (button == QMessageBox::No) return kBoxNo;
  return button == QMessageBox::Cancel ? kBoxCancel : kBoxYes;
}

}  // namespace

int QtEvents::box(int level, std::u16string_view text, HostWindow*, int) {
  const HostBoxText parts = splitBoxText(text);
  QWidget* const dialog = QApplication::activeModalWidget();
  QWidget& below = dialog ? *dialog : m_parent;
  QMessageBox box(&below);
  box.setTextFormat(Qt::PlainText);
  box.setText(toQt(parts.shown));
  level == kBoxQuestion ? makeQuestion(box) : makeAlert(box);
  if (!parts.help_key.empty()) addButton(box, QMessageBox::Help, Supp_Translate(u"Help"));
  const HostBoxAnswer answered = answerOf(answer(box, parts.help_key));
  // Not every window manager gives the keys back by itself.
  below.activateWindow();
  if (answered == kBoxCancel) m_on_cancel();
  return answered;
}

int QtEvents::answer(QMessageBox& box, const std::u16string& help_key) {
  int button = box.exec();
  for (; button == QMessageBox::Help; button = box.exec()) m_help.show(help_key);
  return button;
}
