#pragma once

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include "tests/ui/dialogs/dialog_host.h"

/// A window on the screen, in front of all others, until it is out of scope.
template <class Window>
struct ShownWindow : Window {
  template <class Dialog>
  explicit ShownWindow(Dialog& dialog) : Window(dialog, nullptr) {
    this->show();
    this->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(this));
  }

  /// The control of a number.
  template <class Control>
  Control& control(int number) {
    return *this->template findChild<Control*>(QString::number(number));
  }
  /// What a person does: puts the focus on an edit, replaces its text, and leaves it by the Tab key.
  void type(QLineEdit& edit, const QString& text) {
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
  }
  /// Number of the control that has the focus.
  int focused() const { return this->focusWidget() ? this->focusWidget()->objectName().toInt() : 0; }
};
