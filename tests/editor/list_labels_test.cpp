#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

// The caret around labels, and how labels look.

TEST(ListLabels, home_in_a_numbered_paragraph_stops_after_the_number_text) {
  EXPECT_EQ(edit("1.→a¶2.→bet|a", "Home"), "1.→a¶2.→|beta");
  EXPECT_EQ(edit("1.→alp|ha", "Home"), "1.→|alpha");
  EXPECT_EQ(edit("1.→a¶2.→bet|a", "Shift+Home"), "1.→a¶2.→{bet}a");
}

TEST(ListLabels, end_of_an_item_without_text_stands_behind_the_label) {
  EXPECT_EQ(edit("1.→|¶b", "End"), "1.→|¶b");
}

TEST(ListLabels, left_goes_from_behind_a_label_to_the_end_of_the_paragraph_before) {
  EXPECT_EQ(edit("1.→a¶2.→|b", "Left"), "1.→a|¶2.→b");
  EXPECT_EQ(edit("1.→a|¶2.→b", "Right"), "1.→a¶2.→|b");
}

TEST(ListLabels, a_label_at_the_start_of_the_text_keeps_the_caret_behind_it) {
  EXPECT_EQ(edit("1.→|a", "Left"), "1.→|a");
  EXPECT_EQ(edit("1.→ab|c", "PageUp"), "1.→|abc");
  EXPECT_EQ(edited_text::on_codes("1.\ta").drawn(), "1.→|a");
}

TEST(ListLabels, up_and_down_into_a_label_go_behind_it) {
  EXPECT_EQ(edit("1.→ab¶|xyzw", "Up"), "1.→|ab¶xyzw");
  EXPECT_EQ(edit("|xyzw¶1.→ab", "Down"), "xyzw¶1.→|ab");
}

TEST(ListLabels, a_selection_is_pushed_out_of_labels) {
  EXPECT_EQ(edited_text("1.→a[lpha¶]2.→b").drawn(), "1.→a[lpha]¶2.→b");
  EXPECT_EQ(edited_text("1[.→al]pha").drawn(), "1.→[al]pha");
}

TEST(ListLabels, a_press_on_a_label_puts_the_caret_beside_it) {
  edited_text text("1.→a¶2.→b|", wrapping(60));
  text.send({.number = WM_LBUTTONDOWN, .point = {0.1, -5, 0}});
  text.send({.number = WM_LBUTTONUP, .point = {0.1, -5, 0}});
  EXPECT_EQ(text.drawn(), "1.→a|¶2.→b");
}

TEST(ListLabels, a_double_click_on_a_label_selects_it_whole_with_the_break_before) {
  edited_text text("x¶10.→b|", wrapping(60));
  const auto& label = text.text().text().parts[2];
  text.text().selectWordAt({label.x + 0.1, label.y + 0.1});
  EXPECT_EQ(text.drawn(), "x[¶10.→]b");
}

TEST(ListLabels, are_counted_by_the_first_key_after_the_text_was_opened) {
  auto text = edited_text::on_codes("5.\ta\\P9.\tb");
  EXPECT_EQ(text.drawn(), "5.→|a¶9.→b");
  EXPECT_EQ(text.keys("Right").drawn(), "1.→a|¶2.→b");
}

TEST(ListLabels, stay_without_underline_when_all_of_a_text_is_underlined) {
  auto text = edited_text::on_codes("x\\P1.\tab");
  text.keys("Ctrl+a").text().applyFormat({.underline = true});
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_EQ(text.codes(), "{\\Lx\\P}1.\t{\\Lab}");
}

TEST(ListLabels, a_bullet_stays_in_its_font_and_is_measured_in_it) {
  edited_text text("|");
  text.keys("· Tab x Ctrl+a").text().applyFormat({.font = u"Tall"});
  text.text().endOfEdit(/*relayout=*/true);
  const auto& bullet = text.text().text().parts[0];
  EXPECT_EQ(bullet.part().format.font, u"Symbol");
  EXPECT_EQ(bullet.size.head, 0);
  EXPECT_GT(text.text().text().parts[2].size.head, 0);
}

TEST(ListLabels, take_the_format_of_the_text_behind_them) {
  auto text = edited_text::on_codes("1.\ta");
  text.text().setSelections({mtext::marks::selection(3, 4)});
  text.text().applyFormat({.color = mtext::format::text_color{.kind = 0, .index = 3}});
  EXPECT_EQ(text.keys("End x").codes(), "{\\C3;1.\tax}");
}

TEST(ListLabels, a_selection_that_ends_with_a_label_still_does_when_the_label_is_written_anew) {
  EXPECT_EQ(edit("1.→a[b¶2.→]c", "Tab"), "1.1.→a[b¶1.2.→]c");
  EXPECT_EQ(edit("1.→a[b¶2.→]c", "Tab x"), "1.1.→ax|c");
}
