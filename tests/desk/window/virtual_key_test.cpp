#include "desk/window/virtual_key.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace {
int numberOf(int qtKey, Qt::KeyboardModifiers held = Qt::NoModifier) {
  return virtualKeyOf(QKeyEvent(QEvent::KeyPress, qtKey, held));
}
}  // namespace

TEST(VirtualKey, letters_and_digits_are_their_own_numbers) {
  EXPECT_EQ(numberOf(Qt::Key_A), 65);
  EXPECT_EQ(numberOf(Qt::Key_Z, Qt::ControlModifier), 90);
  EXPECT_EQ(numberOf(Qt::Key_7), 55);
}

TEST(VirtualKey, the_keys_of_the_editor_have_their_numbers) {
  EXPECT_EQ(numberOf(Qt::Key_Backspace), 8);
  EXPECT_EQ(numberOf(Qt::Key_Return), 13);
  EXPECT_EQ(numberOf(Qt::Key_Enter), 13);
  EXPECT_EQ(numberOf(Qt::Key_Escape), 27);
  EXPECT_EQ(numberOf(Qt::Key_PageUp), 33);
  EXPECT_EQ(numberOf(Qt::Key_Down), 40);
  EXPECT_EQ(numberOf(Qt::Key_Insert), 45);
  EXPECT_EQ(numberOf(Qt::Key_Delete), 46);
  EXPECT_EQ(numberOf(Qt::Key_F1), 112);
}

TEST(VirtualKey, shift_with_tab_is_tab) { EXPECT_EQ(numberOf(Qt::Key_Backtab, Qt::ShiftModifier), 9); }

TEST(VirtualKey, a_key_of_another_script_is_a_composed_one) { EXPECT_EQ(numberOf(0x0416), 231); }
