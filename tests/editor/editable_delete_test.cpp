#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

TEST(Delete, backspace_takes_the_part_before_the_caret) { EXPECT_EQ(edit("ab|c", "Backspace"), "a|c"); }

TEST(Delete, backspace_takes_a_selection) { EXPECT_EQ(edit("a[bc]d", "Backspace"), "a|d"); }

TEST(Delete, ctrl_backspace_takes_the_word) { EXPECT_EQ(edit("one two|", "Ctrl+Backspace"), "one |"); }

TEST(Delete, backspace_at_the_start_of_an_indented_paragraph_removes_the_indent_and_leaves_the_break) {
  auto text = edited_text::on_codes("ab\\P\\pxi2,l3;cd");
  text.text().setSelections({mtext::marks::selection(3)});
  EXPECT_EQ(text.keys("Backspace").codes(), "ab\\P\\pxql;cd");
}

TEST(Delete, the_next_backspace_joins_the_paragraphs) {
  auto text = edited_text::on_codes("ab\\P\\pxi2,l3;cd");
  text.text().setSelections({mtext::marks::selection(3)});
  EXPECT_EQ(text.keys("Backspace Backspace").drawn(), "ab|cd");
}

TEST(Delete, backspace_at_0_resets_the_first_paragraph_and_erases_nothing) {
  auto text = edited_text::on_codes("\\pxi2,qc,t4;abc");
  EXPECT_EQ(text.keys("Backspace").codes(), "\\pxql;abc");
}

TEST(Delete, backspace_behind_a_field_takes_it_whole) {
  auto text = edited_text::on_codes("a%<F>%b");
  text.text().setSelections({mtext::marks::selection(5)});
  EXPECT_EQ(text.keys("Backspace").drawn(), "a|b");
}

TEST(Delete, delete_takes_the_part_behind_the_caret) {
  EXPECT_EQ(edit("a|bc", "Delete"), "a|c");
  EXPECT_EQ(edit("ab|", "Delete"), "ab|");
}

TEST(Delete, delete_in_front_of_a_field_removes_the_field_whole) {
  auto text = edited_text::on_codes("a%<F>%b");
  text.text().setSelections({mtext::marks::selection(1)});
  EXPECT_EQ(text.keys("Delete").drawn(), "a|b");
}

TEST(Delete, deleting_a_field_s_first_character_deletes_all_of_it_and_keeps_the_next_field) {
  auto text = edited_text::on_codes("%<F>%%<G>%");
  EXPECT_EQ(text.keys("Delete").codes(), "%<G>%");
}

TEST(Delete, delete_at_a_paragraph_end_joins_the_paragraphs) { EXPECT_EQ(edit("ab|¶cd", "Delete"), "ab|cd"); }
