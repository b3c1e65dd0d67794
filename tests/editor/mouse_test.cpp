#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

namespace {

/// A left button message at a point of the first line; letters are 1.5 wide.
HostWindowMessage at(unsigned number, double x, double y = -1, bool shift = false, bool ctrl = false) {
  return {.number = number, .point = {x, y, 0}, .shift = shift, .ctrl = ctrl};
}

std::string press(std::string_view before, const HostWindowMessage& message) {
  edited_text text(before, wrapping(60));
  text.send(message);
  text.send(at(WM_LBUTTONUP, 0));
  return text.drawn();
}

}  // namespace

TEST(Mouse, a_press_puts_the_caret_at_the_nearer_side_of_a_letter) {
  EXPECT_EQ(press("|abcd", at(WM_LBUTTONDOWN, 1.9)), "a|bcd");
  EXPECT_EQ(press("|abcd", at(WM_LBUTTONDOWN, 2.6)), "ab|cd");
}

TEST(Mouse, a_press_with_ctrl_adds_a_caret) {
  EXPECT_EQ(press("a|bcdef", at(WM_LBUTTONDOWN, 6.1, -1, false, true)), "a|bcd|ef");
}

TEST(Mouse, a_press_with_shift_moves_the_caret_of_the_last_selection) {
  EXPECT_EQ(press("ab|cdef", at(WM_LBUTTONDOWN, 7.4, -1, true)), "ab[cde]f");
}

TEST(Mouse, a_drag_selects_and_a_drag_back_gives_other_selections_back) {
  edited_text text("a[b]cdef|", wrapping(60));
  text.send(at(WM_LBUTTONDOWN, 7.4, -1, false, true));
  text.send(at(WM_MOUSEMOVE, 0.1));
  EXPECT_EQ(text.drawn(), "{abcde}f|");
  text.send(at(WM_MOUSEMOVE, 6.1));
  EXPECT_EQ(text.drawn(), "a[b]cd{e}f|");
  text.send(at(WM_LBUTTONUP, 6.1));
  text.send(at(WM_MOUSEMOVE, 0.1));
  EXPECT_EQ(text.drawn(), "a[b]cd{e}f|");
}

TEST(Mouse, a_click_on_a_soft_wrap_boundary_shows_the_caret_at_the_end_of_the_upper_line) {
  edited_text text("|aaaa bbbb cccc", wrapping(16));
  text.send(at(WM_LBUTTONDOWN, 15.9));
  text.send(at(WM_LBUTTONUP, 15.9));
  ASSERT_EQ(text.drawn(), "aaaa bbbb |cccc");
  EXPECT_TRUE(text.text().selections()[0].at_line_end);
  text.send(at(WM_LBUTTONDOWN, 0.1, -6));
  ASSERT_EQ(text.drawn(), "aaaa bbbb |cccc");
  EXPECT_FALSE(text.text().selections()[0].at_line_end);
}

TEST(Mouse, a_double_click_selects_the_word) {
  edited_text text("|ab cde fg", wrapping(60));
  text.send(at(WM_LBUTTONDBLCLK, 5.5));
  EXPECT_EQ(text.drawn(), "ab [cde] fg");
}

TEST(Mouse, a_double_click_on_a_blank_gives_a_caret) {
  edited_text text("|ab cd", wrapping(60));
  text.send(at(WM_LBUTTONDBLCLK, 3.2));
  EXPECT_EQ(text.drawn(), "ab| cd");
}

TEST(Mouse, a_single_click_in_a_field_puts_the_caret_at_its_nearer_end) {
  auto text = edited_text::on_codes("a%<F>%b", wrapping(60));
  text.send(at(WM_LBUTTONDOWN, 3.2));
  EXPECT_EQ(text.drawn(), "a|----b");
}

TEST(Mouse, a_single_click_in_the_right_half_of_a_field_puts_the_caret_behind_it) {
  auto text = edited_text::on_codes("a%<F>%b", wrapping(60));
  text.send(at(WM_LBUTTONDOWN, 5.7));
  EXPECT_EQ(text.drawn(), "a----|b");
}

TEST(Mouse, a_double_click_in_a_field_selects_it_from_end_to_end) {
  for (const double x : {4.8, 7.2}) {
    auto text = edited_text::on_codes("a %<F>% b", wrapping(60));
    text.send(at(WM_LBUTTONDBLCLK, x));
    EXPECT_EQ(text.drawn(), "a [----] b") << x;
  }
}

TEST(Mouse, a_press_tells_the_watchers) {
  struct : MTextEditor {
    void onChanged() override { ++changes; }
    HostWindow* window() override { return nullptr; }
    int changes = 0;
  } watcher;
  edited_text text("|ab", wrapping(60));
  text.text().addWatcher(watcher);
  text.send(at(WM_LBUTTONDOWN, 1.6));
  EXPECT_GE(watcher.changes, 1);
  text.text().removeWatcher(watcher);
}
