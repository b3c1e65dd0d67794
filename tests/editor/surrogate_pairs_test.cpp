#include <gtest/gtest.h>

#include "host/key_code.h"
#include "mtext/surrogate_pair.h"
#include "tests/editor/edited_text.h"

namespace {

/// A press on the part at `at`, at `share` of the width of its character, where it is seen.
HostWindowMessage press_on(edited_text& text, std::size_t at, double share) {
  const auto& part = text.text().text().parts[at];
  const OdGePoint2d place{part.x + share * part.size.advance, part.y + 0.1};
  return {.number = WM_LBUTTONDOWN, .point = text.session().worldPoint(place)};
}

}  // namespace

TEST(SurrogatePairs, an_emoji_stays_two_parts_of_which_the_first_has_the_width) {
  edited_text text("a😀|b");
  const auto& parts = text.text().text().parts;
  ASSERT_EQ(parts.size(), 4U);
  EXPECT_GT(parts[1].size.advance, 0);
  EXPECT_EQ(parts[2].size.advance, 0);
  EXPECT_EQ(parts[3].x, parts[1].x + parts[1].size.advance);
}

TEST(SurrogatePairs, left_and_right_step_over_an_emoji) {
  EXPECT_EQ(edit("a😀|b", "Left"), "a|😀b");
  EXPECT_EQ(edit("a|😀b", "Right"), "a😀|b");
  EXPECT_EQ(edit("|😀😀", "Right*2 Left"), "😀|😀");
}

TEST(SurrogatePairs, shift_selects_an_emoji_whole) {
  EXPECT_EQ(edit("a😀|b", "Shift+Left"), "a{😀}b");
  EXPECT_EQ(edit("a|😀b", "Shift+Right"), "a[😀]b");
}

TEST(SurrogatePairs, word_moves_take_an_emoji_as_a_letter) {
  EXPECT_EQ(edit("a b😀c|", "Ctrl+Left"), "a |b😀c");
  EXPECT_EQ(edit("|b😀c d", "Ctrl+Right"), "b😀c |d");
}

TEST(SurrogatePairs, home_and_end_stand_outside_an_emoji) {
  EXPECT_EQ(edit("a|b😀", "End"), "ab😀|");
  EXPECT_EQ(edit("😀a|b", "Home"), "|😀ab");
}

TEST(SurrogatePairs, up_and_down_go_to_the_nearer_side_of_an_emoji) {
  EXPECT_EQ(edit("l|x¶😀y", "Down"), "lx¶|😀y");
  EXPECT_EQ(edit("w|x¶😀y", "Down"), "wx¶😀|y");
  EXPECT_EQ(edit("😀y¶w|x", "Up"), "😀|y¶wx");
}

TEST(SurrogatePairs, backspace_and_delete_take_an_emoji_whole) {
  EXPECT_EQ(edit("a😀|b", "Backspace"), "a|b");
  EXPECT_EQ(edit("a|😀b", "Delete"), "a|b");
  EXPECT_EQ(edit("😀😀|", "Backspace*2"), "|");
  EXPECT_EQ(edit("a b😀|", "Ctrl+Backspace"), "a |");
}

TEST(SurrogatePairs, several_carets_delete_an_emoji_each) {
  EXPECT_EQ(edit("😀|a😀|", "Backspace"), "|a|");
  EXPECT_EQ(edit("|😀a|😀", "Delete"), "|a|");
}

TEST(SurrogatePairs, a_press_puts_the_caret_to_the_nearer_side_of_an_emoji) {
  edited_text text("a😀b|");
  text.send(press_on(text, 1, 0.3));
  EXPECT_EQ(text.drawn(), "a|😀b");
  text.send(press_on(text, 1, 0.8));
  EXPECT_EQ(text.drawn(), "a😀|b");
}

TEST(SurrogatePairs, a_drag_never_ends_inside_an_emoji) {
  edited_text text("a😀b|");
  text.send(press_on(text, 3, 0.9));
  HostWindowMessage move = press_on(text, 1, 0.8);
  move.number = WM_MOUSEMOVE;
  text.send(move);
  EXPECT_EQ(text.drawn(), "a😀{b}");
  move = press_on(text, 1, 0.2);
  move.number = WM_MOUSEMOVE;
  text.send(move);
  EXPECT_EQ(text.drawn(), "a{😀b}");
}

TEST(SurrogatePairs, what_selects_half_an_emoji_selects_it_whole) {
  edited_text text("a😀b|");
  text.text().selectRange(0, 2, /*snap=*/false, /*keep=*/false);
  EXPECT_EQ(text.drawn(), "[a😀]b");
  text.text().selectRange(2, 2, /*snap=*/false, /*keep=*/false);
  EXPECT_EQ(text.drawn(), "a[😀b]");
  text.text().setSelections({mtext::marks::selection(2)});
  EXPECT_EQ(text.drawn(), "a😀|b");
}

TEST(SurrogatePairs, an_emoji_arrives_when_its_second_unit_does) {
  edited_text text("a|b");
  text.send({.number = WM_CHAR, .code = 0xD83D});
  EXPECT_EQ(text.drawn(), "a|b");
  EXPECT_TRUE(text.session().undo().is_empty());
  text.send({.number = WM_CHAR, .code = 0xDE00});
  EXPECT_EQ(text.drawn(), "a😀|b");
}

TEST(SurrogatePairs, an_emoji_that_a_held_key_types_comes_as_often_as_it_is_held) {
  EXPECT_EQ(edit("a|b", "😀*3"), "a😀😀😀|b");
}

TEST(SurrogatePairs, undo_never_takes_half_an_emoji_away) {
  EXPECT_EQ(edit("a|", "Backspace 😀 Ctrl+z"), "|");
  EXPECT_EQ(edit("|", "x 😀 Left Ctrl+z"), "|");
}

TEST(SurrogatePairs, half_a_character_is_none) {
  edited_text text("a|b");
  text.send({.number = WM_CHAR, .code = 0xDE00});
  text.send({.number = WM_CHAR, .code = 0xD83D});
  text.keys("x");
  text.send({.number = WM_CHAR, .code = 0xDE00});
  EXPECT_EQ(text.drawn(), "ax|b");
}

TEST(SurrogatePairs, a_key_between_the_halves_drops_the_first) {
  edited_text text("ab|c");
  text.send({.number = WM_CHAR, .code = 0xD83D});
  text.keys("Left");
  text.send({.number = WM_CHAR, .code = 0xDE00});
  EXPECT_EQ(text.drawn(), "a|bc");
}

TEST(SurrogatePairs, the_width_of_an_emoji_is_counted_once_after_every_change) {
  const auto width_is_whole = [](const edited_text& text, std::size_t at) {
    const auto& parts = text.text().text().parts;
    return mtext::splits_pair(parts, at + 1) && parts[at].size.advance > 0 && parts[at + 1].size.advance == 0;
  };
  edited_text text("a[😀]b");
  text.text().applyFormat({.height = std::pair(5.0, 0U)});
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_TRUE(width_is_whole(text, 1));
  EXPECT_TRUE(width_is_whole(text.keys("Home x"), 2));
  EXPECT_TRUE(width_is_whole(text.keys("Ctrl+z"), 1));
}

TEST(SurrogatePairs, halves_that_a_deletion_brings_together_are_one_character) {
  auto text = edited_text::on_codes(OdString(std::u16string{0xD83D, u'x', 0xDE00, u'y'}));
  text.text().setSelections({mtext::marks::selection(1)});
  text.keys("Delete");
  EXPECT_EQ(text.text().text().parts[1].size.advance, 0);
  EXPECT_EQ(text.keys("End Left Left").drawn(), "|😀y");
}
