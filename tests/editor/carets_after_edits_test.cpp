#include <gtest/gtest.h>

#include "host/key_code.h"
#include "tests/editor/edited_text.h"

// Where carets and selections stand behind an edit, and when they are tidied.

namespace {

mtext::format::string_partial red() {
  mtext::format::string_partial change;
  change.color = mtext::format::text_color{.kind = 0, .index = 1};
  return change;
}

HostWindowMessage at(unsigned number, double x, bool shift = false) {
  return {.number = number, .point = {x, -1, 0}, .shift = shift};
}

}  // namespace

TEST(CaretsAfterEdits, that_an_erasure_brings_together_stay_two_until_a_move_writes_them_back) {
  edited_text text("a|b|c");
  EXPECT_EQ(text.keys("Backspace").drawn(), "||c");
  EXPECT_EQ(text.keys("x").drawn(), "xx||c");
  EXPECT_EQ(text.keys("Left").drawn(), "x|xc");
}

TEST(CaretsAfterEdits, of_an_erased_selection_keep_their_side_and_typing_gives_it_up) {
  edited_text text("a{bc}d");
  EXPECT_EQ(text.keys("Backspace").drawn(), "a|d");
  EXPECT_TRUE(text.text().selections()[0].caret_at_begin);
  EXPECT_FALSE(text.keys("x").text().selections()[0].caret_at_begin);
}

TEST(CaretsAfterEdits, an_erasure_leaves_the_caret_at_the_line_end) {
  edited_text text("a|aaa bbbb cccc", wrapping(16));
  text.keys("End");
  ASSERT_TRUE(text.text().selections()[0].at_line_end);
  EXPECT_TRUE(text.keys("Backspace").text().selections()[0].at_line_end);
}

TEST(CaretsAfterEdits, moves_leave_the_line_end_and_end_and_up_and_down_reach_it) {
  const auto at_line_end = [](const char* keys) {
    edited_text text("|aaaa bbbb cccc dddd eeee", wrapping(16));
    return text.keys(keys).text().selections()[0].at_line_end;
  };
  EXPECT_TRUE(at_line_end("End"));
  EXPECT_FALSE(at_line_end("End Left Right"));
  EXPECT_TRUE(at_line_end("End Down"));
  EXPECT_TRUE(at_line_end("End Down Up"));
  EXPECT_TRUE(at_line_end("End Shift+Down"));
}

TEST(CaretsAfterEdits, end_with_shift_does_not_reach_the_line_end) {
  edited_text text("|aaaa bbbb cccc", wrapping(16));
  text.keys("Shift+End");
  EXPECT_EQ(text.drawn(), "[aaaa bbbb ]cccc");
  EXPECT_FALSE(text.text().selections()[0].at_line_end);
}

TEST(CaretsAfterEdits, end_on_an_empty_last_line_goes_in_front_of_the_break_that_opened_it) {
  EXPECT_EQ(edit("ab¶|", "End"), "ab|¶");
}

TEST(CaretsAfterEdits, shift_and_a_press_move_the_selection_that_is_last_in_the_text) {
  edited_text text("[a]b|cdef", wrapping(60));
  text.send(at(WM_LBUTTONDOWN, 6.1, /*shift=*/true));
  EXPECT_EQ(text.drawn(), "[a]b[cd]ef");
}

TEST(CaretsAfterEdits, a_press_and_a_double_click_leave_the_format_that_waits_and_a_release_drops_it) {
  const auto typed_behind = [](const std::vector<HostWindowMessage>& messages) {
    edited_text text("|ab", wrapping(60));
    text.text().applyFormat(red());
    for (const auto& message : messages) text.send(message);
    text.send({.number = WM_CHAR, .code = u'x'});
    return text.codes();
  };
  EXPECT_EQ(typed_behind({at(WM_LBUTTONDOWN, 1.6)}), "a{\\C1;x}b");
  EXPECT_EQ(typed_behind({at(WM_LBUTTONDOWN, 1.6), at(WM_LBUTTONUP, 1.6)}), "axb");
  EXPECT_EQ(typed_behind({at(WM_LBUTTONDBLCLK, 1.6)}), "{\\C1;x}");
}

TEST(CaretsAfterEdits, undo_leaves_the_format_that_waits) {
  edited_text text("a|");
  text.keys("x");
  text.text().applyFormat(red());
  text.keys("Ctrl+z");
  text.send({.number = WM_CHAR, .code = u'y'});
  EXPECT_EQ(text.codes(), "a{\\C1;y}");
}

TEST(CaretsAfterEdits, a_key_that_is_not_handled_closes_what_went_before) {
  auto text = edited_text::on_codes("3.\ta\\P5.\tb");
  text.send({.number = WM_KEYDOWN, .code = 0x70});
  EXPECT_EQ(text.codes(), "1.\ta\\P2.\tb");
}

TEST(CaretsAfterEdits, undo_and_redo_leave_labels_as_they_are_until_the_next_key) {
  auto text = edited_text::on_codes("3.\ta\\P5.\tb");
  EXPECT_EQ(text.keys("Ctrl+z Ctrl+y").codes(), "3.\ta\\P5.\tb");
  EXPECT_EQ(text.keys("Left").codes(), "1.\ta\\P2.\tb");
}

TEST(CaretsAfterEdits, a_field_whose_characters_are_erased_is_none_any_more) {
  auto text = edited_text::on_codes("a%<F>%b");
  ASSERT_TRUE(text.text().hasFields());
  text.text().setSelections({mtext::marks::selection(0, 5)});
  EXPECT_EQ(text.keys("Delete").drawn(), "|b");
  EXPECT_FALSE(text.text().hasFields());
}

TEST(CaretsAfterEdits, delete_takes_a_field_that_then_stands_at_the_caret_with_the_character_before_it) {
  auto text = edited_text::on_codes("xy%<F>%z");
  EXPECT_EQ(text.keys("Right Delete").drawn(), "x|z");
}

TEST(CaretsAfterEdits, a_tab_over_a_selection_reaches_the_paragraph_that_its_end_stands_in) {
  EXPECT_EQ(edit("a[b¶]c", "Tab"), "→a[b¶]→c");
}

TEST(CaretsAfterEdits, backspace_gives_a_paragraph_without_an_alignment_one_before_it_joins_it) {
  EXPECT_EQ(edit("a¶|b", "Backspace"), "a¶|b");
  EXPECT_EQ(edit("a¶|b", "Backspace*2"), "a|b");
}

TEST(CaretsAfterEdits, ctrl_backspace_at_several_carets_counts_the_labels_at_once) {
  EXPECT_EQ(edit("1.→a¶2.→b c|¶3.→d e|", "Ctrl+Backspace"), "1.→a¶2.→b |¶3.→d |");
  EXPECT_EQ(edit("1.→a¶2.→|¶3.→d e|", "Ctrl+Backspace"), "1.→a¶|¶2.→d |");
}
