#include "desk/window/key_messages.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace {

/// Each message as its number, its code, and the keys that are held.
std::string described(const std::vector<HostWindowMessage>& messages) {
  std::string result;
  for (const HostWindowMessage& each : messages) {
    if (!result.empty()) result += ' ';
    result += std::to_string(each.number) + ":" + std::to_string(each.code);
    if (each.repeat != 1) result += "*" + std::to_string(each.repeat);
    if (each.shift) result += 's';
    if (each.ctrl) result += 'c';
    if (each.alt) result += 'a';
  }
  return result;
}

std::string pressed(int key, Qt::KeyboardModifiers held, const QString& text, int count = 1) {
  return described(keyMessages(QKeyEvent(QEvent::KeyPress, key, held, text, count > 1, ushort(count))));
}

constexpr auto kBoth = Qt::ControlModifier | Qt::AltModifier;

}  // namespace

TEST(KeyMessages, a_letter_is_its_key_and_its_character) {
  EXPECT_EQ(pressed(Qt::Key_A, Qt::ShiftModifier, "A"), "256:65s 258:65s");
  EXPECT_EQ(pressed(Qt::Key_A, {}, "a", 3), "256:65*3 258:97*3");
}

TEST(KeyMessages, what_alt_gr_typed_is_a_character_without_ctrl_and_alt) {
  EXPECT_EQ(pressed(Qt::Key_At, kBoth, "@"), "256:231 258:64 257:231");
  EXPECT_EQ(pressed(Qt::Key_A, kBoth, QString(QChar(0x105))), "256:231 258:261 257:231");
  EXPECT_EQ(pressed(Qt::Key_E, kBoth, QString(QChar(0x20AC)), 2), "256:231 258:8364*2 257:231");
}

TEST(KeyMessages, ctrl_and_alt_themselves_stay_with_a_key_that_types_nothing) {
  EXPECT_EQ(pressed(Qt::Key_Down, kBoth, ""), "256:40ca");
  EXPECT_EQ(pressed(Qt::Key_A, kBoth, "\x01"), "256:65ca");
  EXPECT_EQ(pressed(Qt::Key_Delete, kBoth, "\x7f"), "256:46ca");
}

TEST(KeyMessages, a_key_with_alt_is_a_menu_s_and_types_nothing) {
  EXPECT_EQ(pressed(Qt::Key_F, Qt::AltModifier, "f"), "256:70a");
}

TEST(KeyMessages, tab_with_shift_types_a_tab_whether_the_system_gives_it_a_character_or_not) {
  EXPECT_EQ(pressed(Qt::Key_Backtab, Qt::ShiftModifier, ""), "256:9s 258:9s");
  EXPECT_EQ(pressed(Qt::Key_Backtab, Qt::ShiftModifier, "\t"), "256:9s 258:9s");
}

TEST(KeyMessages, composed_text_is_a_key_for_each_character) {
  EXPECT_EQ(described(composedMessages(QString::fromUtf8("é😀"))),
            "256:231 258:233 257:231 256:231 258:55357 258:56832 257:231");
}
