#include "desk/window/qt_events.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include "host/help.h"

namespace {

/// Asks, and presses a key when the question stands there.
HostBoxAnswer answerTo(int key, Qt::KeyboardModifiers modifiers = {}) {
  QWidget window;
  HostHelpLog help;
  QtEvents events(window, help);
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    if (!box) return;
    timer.stop();
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(box, &press);
  });
  timer.start(20);
  return static_cast<HostBoxAnswer>(events.box(kBoxQuestion, u"Save?", nullptr, 0));
}

}  // namespace

TEST(QtEvents, a_question_is_answered_by_the_first_letter_of_a_button) {
  EXPECT_EQ(answerTo(Qt::Key_Y), kBoxYes);
  EXPECT_EQ(answerTo(Qt::Key_N), kBoxNo);
  EXPECT_EQ(answerTo(Qt::Key_C), kBoxCancel);
}

TEST(QtEvents, enter_says_yes_and_esc_cancels) {
  EXPECT_EQ(answerTo(Qt::Key_Return), kBoxYes);
  EXPECT_EQ(answerTo(Qt::Key_Escape), kBoxCancel);
}
