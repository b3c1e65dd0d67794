#include "desk/script/step_messages.h"

#include <gtest/gtest.h>

#include <sstream>

#include "desk/script/script_reader.h"

namespace {

std::string shown(const HostWindowMessage& message) {
  std::ostringstream out;
  out << message.number << ":" << message.code;
  if (message.shift) out << "s";
  if (message.ctrl) out << "c";
  if (message.alt) out << "a";
  return out.str();
}

/// The messages of one script line, as `number:code` with the held keys.
std::string messagesOfLine(std::string_view line) {
  const Script script = readScript(line, "test");
  std::vector<HostWindowMessage> messages;
  const auto& what = script.at(0).what;
  if (const auto* mouse = std::get_if<MouseStep>(&what)) messages = messagesOf(*mouse);
  if (const auto* type = std::get_if<TypeCharacters>(&what)) messages = messagesOf(*type);
  if (const auto* key = std::get_if<PressKey>(&what)) messages = messagesOf(*key);
  std::string all;
  for (const HostWindowMessage& message : messages) all += (all.empty() ? "" : " ") + shown(message);
  return all;
}

}  // namespace

TEST(StepMessages, a_letter_is_pressed_sent_and_released) {
  EXPECT_EQ(messagesOfLine("@type a"), "256:65 258:97 257:65");
}

TEST(StepMessages, a_capital_is_typed_with_shift_held) {
  EXPECT_EQ(messagesOfLine("@type A"), "256:16s 256:65s 258:65s 257:65s 257:16");
}

TEST(StepMessages, a_letter_of_no_key_comes_composed_unit_by_unit) {
  EXPECT_EQ(messagesOfLine("@type \xF0\x9D\x84\x9E"), "256:231 258:55348 257:231 256:231 258:56606 257:231");
}

TEST(StepMessages, a_chord_presses_and_releases_its_modifiers) {
  EXPECT_EQ(messagesOfLine("@key Ctrl+Shift+Left"), "256:17c 256:16sc 256:37sc 257:37sc 257:16c 257:17");
}

TEST(StepMessages, control_enter_sends_a_line_feed) {
  EXPECT_EQ(messagesOfLine("@key Ctrl+Enter"), "256:17c 256:13c 258:10c 257:13c 257:17");
}

TEST(StepMessages, a_click_goes_there_presses_and_releases) {
  EXPECT_EQ(messagesOfLine("@click 1,2"), "32:0 512:0 513:0 514:0");
}

TEST(StepMessages, a_right_click_goes_there_presses_and_releases_the_other_button) {
  EXPECT_EQ(messagesOfLine("@right 1,2"), "32:0 512:0 516:0 517:0");
}

TEST(StepMessages, a_double_click_is_two_presses_the_second_of_its_own_kind) {
  EXPECT_EQ(messagesOfLine("@double 1,2"), "32:0 512:0 513:0 514:0 515:0 514:0");
}

TEST(StepMessages, a_drag_moves_with_the_held_keys) {
  EXPECT_EQ(messagesOfLine("@drag Shift+3,4"), "512:0s");
  const std::vector<HostWindowMessage> messages =
      messagesOf(MouseStep{.action = MouseAction::drag, .x = 3, .y = 4, .held = {.shift = true}});
  EXPECT_EQ(messages.at(0).point, (OdGePoint3d{3, 4, 0}));
}
