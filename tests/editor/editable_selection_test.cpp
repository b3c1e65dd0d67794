#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

TEST(Moves, left_and_right_go_one_part) {
  EXPECT_EQ(edit("ab|cd", "Left"), "a|bcd");
  EXPECT_EQ(edit("ab|cd", "Right*2"), "abcd|");
}

TEST(Moves, left_at_position_0_does_nothing_and_right_at_the_text_end_does_nothing) {
  EXPECT_EQ(edit("|ab", "Left"), "|ab");
  EXPECT_EQ(edit("ab|", "Right"), "ab|");
}

TEST(Moves, left_with_a_selection_and_no_shift_puts_the_caret_at_its_begin_and_not_one_further) {
  EXPECT_EQ(edit("ab[cd]e", "Left"), "ab|cde");
  EXPECT_EQ(edit("ab[cd]e", "Right"), "abcd|e");
}

TEST(Moves, shift_keeps_the_anchor) {
  EXPECT_EQ(edit("ab|cd", "Shift+Left"), "a{b}cd");
  EXPECT_EQ(edit("ab|cd", "Shift+Left Shift+Right*2"), "ab[c]d");
}

TEST(Moves, ctrl_left_stops_at_the_starts_of_words) {
  EXPECT_EQ(edit("one two|", "Ctrl+Left"), "one |two");
  EXPECT_EQ(edit("one two|", "Ctrl+Left*2"), "|one two");
}

TEST(Moves, ctrl_left_directly_after_a_line_break_stops_before_the_break) {
  EXPECT_EQ(edit("ab¶|cd", "Ctrl+Left"), "ab|¶cd");
  EXPECT_EQ(edit("ab↵|cd", "Ctrl+Left"), "ab|↵cd");
}

TEST(Moves, ctrl_right_goes_behind_the_blanks_of_a_word) {
  EXPECT_EQ(edit("|one  two", "Ctrl+Right"), "one  |two");
}

TEST(Moves, a_stack_is_a_letter_of_its_word) { EXPECT_EQ(edit("|a½b c", "Ctrl+Right"), "a½b |c"); }

TEST(Moves, page_up_with_shift_selects_from_the_anchor_to_the_text_start) {
  EXPECT_EQ(edit("ab¶c|d", "Shift+PageUp"), "{ab¶c}d");
}

TEST(Moves, page_keys_go_to_the_ends_of_the_text) {
  EXPECT_EQ(edit("a¶b|¶c", "PageDown"), "a¶b¶c|");
  EXPECT_EQ(edit("a¶b|¶c", "PageUp"), "|a¶b¶c");
}

TEST(Moves, home_and_end_stay_on_their_line) {
  EXPECT_EQ(edit("ab¶cd|e¶f", "Home"), "ab¶|cde¶f");
  EXPECT_EQ(edit("ab¶c|de¶f", "End"), "ab¶cde|¶f");
}

TEST(Moves, end_at_a_soft_wrap_shows_the_caret_on_the_upper_line) {
  edited_text text("a|aaa bbbb cccc", wrapping(16));
  text.keys("End");
  EXPECT_EQ(text.drawn(), "aaaa bbbb |cccc");
  EXPECT_TRUE(text.text().selections()[0].at_line_end);
}

TEST(Moves, down_on_the_last_line_goes_to_the_end_of_the_text) {
  EXPECT_EQ(edit("ab¶c|de", "Down"), "ab¶cde|");
}

TEST(Moves, up_on_the_first_line_goes_to_position_0) { EXPECT_EQ(edit("ab|c", "Up"), "|abc"); }

TEST(Moves, up_and_down_read_the_caret_s_place_afresh_at_each_step) {
  EXPECT_EQ(edit("abcd¶e¶fgh|i", "Up*2"), "a|bcd¶e¶fghi");
}

TEST(Moves, ctrl_alt_down_adds_a_caret_below) {
  EXPECT_EQ(edit("ab|cd¶efgh", "Ctrl+Alt+Down"), "ab|cd¶ef|gh");
}

TEST(Moves, ctrl_alt_up_adds_a_caret_above) { EXPECT_EQ(edit("abcd¶ef|gh", "Ctrl+Alt+Up"), "ab|cd¶ef|gh"); }

TEST(Moves, several_carets_move_together_and_meet) {
  EXPECT_EQ(edit("a|b|c", "Right"), "ab|c|");
  EXPECT_EQ(edit("a|b|c", "Left*2"), "|abc");
}

TEST(Moves, ctrl_a_selects_the_whole_text) { EXPECT_EQ(edit("a|b¶c", "Ctrl+a"), "[ab¶c]"); }

TEST(Moves, esc_with_several_selections_keeps_the_first) {
  edited_text text("[a]b[c]");
  EXPECT_EQ(text.keys("Esc").drawn(), "[a]bc");
  EXPECT_EQ(text.ended(), "");
  text.keys("Esc");
  EXPECT_EQ(text.ended(), "cancel");
}

TEST(Moves, left_and_right_movement_jump_over_a_field) {
  auto text = edited_text::on_codes("a%<F>%b");
  EXPECT_EQ(text.keys("Right*2").drawn(), "a----|b");
  EXPECT_EQ(text.keys("Left").drawn(), "a|----b");
}
