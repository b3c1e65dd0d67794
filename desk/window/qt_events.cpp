#include "desk/window/qt_events.h"

#include <QMessageBox>

#include "desk/window/qt_text.h"

namespace {

int ask(QMessageBox& box) {
  box.setIcon(QMessageBox::Question);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::Cancel);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return kBoxYes;
    case QMessageBox::No:
      return kBoxNo;
    default:
      return kBoxCancel;
  }
}

int alert(QMessageBox& box) {
  box.setIcon(QMessageBox::Warning);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  return kBoxYes;
}

}  // namespace

int QtEvents::box(int level, std::u16string_view text, HostWindow*, int) {
  QMessageBox box(&m_parent);
  box.setTextFormat(Qt::PlainText);
  box.setText(toQt(splitBoxText(text).shown));
  if (level != kBoxQuestion) return alert(box);
  const int answer = ask(box);
  if (answer == kBoxCancel) m_on_cancel();
  return answer;
}
