#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

namespace {

const char* const kThreeItems = "\\pxi-3,l3,t3;1.\talpha\\P2.\tbeta\\P3.\tgamma";

/// A text of codes with a caret at `at`.
edited_text at(const char* codes, std::size_t position) {
  auto text = edited_text::on_codes(codes);
  text.text().setSelections({mtext::marks::selection(position)});
  return text;
}

}  // namespace

// Starting a list.

TEST(Lists, a_list_prefix_and_tab_at_the_start_of_a_paragraph_start_a_list) {
  EXPECT_EQ(edited_text("|").keys("1 . Tab x").codes(), "\\pxi-3,l3,t3;1.\tx");
  EXPECT_EQ(edited_text("ab¶|").keys("A . Tab x").codes(), "ab\\P\\pxi-3,l3,t3;A.\tx");
}

TEST(Lists, a_word_that_does_not_parse_stays_a_word_with_a_tab) {
  EXPECT_EQ(edited_text("|").keys("1 Tab x").codes(), "1\tx");
  EXPECT_EQ(edited_text("|").keys("a b Tab x").codes(), "ab\tx");
}

TEST(Lists, a_blank_between_prefix_and_tab_starts_none) {
  EXPECT_EQ(edited_text("|").keys("1 . Space Tab x").codes(), "1. \tx");
}

TEST(Lists, a_list_counts_from_1_whatever_was_typed) {
  EXPECT_EQ(edit("|", "5 . Tab x"), "1.→x|");
  EXPECT_EQ(edit("1.→a¶|", "7 . Tab x"), "1.→a¶2.→x|");
}

TEST(Lists, two_carets_start_two_items) { EXPECT_EQ(edit("|a¶|b", "1 . Tab"), "1.→|a¶2.→|b"); }

TEST(Lists, characters_that_make_a_label_of_an_older_tab_put_the_caret_behind_it) {
  EXPECT_EQ(edit("|→ab", "1 ."), "1.→|ab");
}

TEST(Lists, letters_are_those_of_the_session) {
  edited_text text("|");
  text.text().setLetters({{u"xyz", u"", u"бв", u"БВ"}});
  EXPECT_EQ(text.keys("a . Tab x Enter").drawn(), "a.→x¶|");
  text.text().setContents(u"б.\tx");
  text.text().load();
  EXPECT_EQ(text.keys("PageDown Enter y").drawn(), "б.→x¶в.→y|");
}

// Items.

TEST(Lists, enter_behind_an_item_opens_the_next_one) {
  EXPECT_EQ(edit("1.→a|", "Enter b"), "1.→a¶2.→b|");
  EXPECT_EQ(edit("y.→a¶z.→b|", "Enter"), "a.→a¶b.→b¶c.→|");
  EXPECT_EQ(edit("·→a|", "Enter b"), "·→a¶·→b|");
}

TEST(Lists, enter_in_an_item_splits_it) { EXPECT_EQ(edit("1.→al|pha", "Enter x"), "1.→al¶2.→x|pha"); }

TEST(Lists, enter_leaves_the_items_behind_at_their_numbers_until_the_next_typing) {
  EXPECT_EQ(edit("1.→a|¶2.→b", "End Enter"), "1.→a¶2.→|¶2.→b");
  EXPECT_EQ(edit("1.→a|¶2.→b", "End Enter x"), "1.→a¶2.→x|¶3.→b");
}

TEST(Lists, enter_on_an_empty_list_item_ends_the_list_and_leaves_an_empty_plain_paragraph) {
  auto text = at(kThreeItems, 25);
  EXPECT_EQ(text.keys("Enter").drawn(), "1.→alpha¶2.→beta¶3.→gamma¶4.→|");
  EXPECT_EQ(text.keys("Enter").drawn(), "1.→alpha¶2.→beta¶3.→gamma¶¶|");
  EXPECT_EQ(text.codes(), std::string(kThreeItems) + "\\P\\pi0,l0,tz;\\P");
}

TEST(Lists, enter_over_selected_text_across_items_goes_on_in_the_first) {
  EXPECT_EQ(edit("1.→al[pha¶2.→be]ta¶3.→c", "Enter x"), "1.→al¶2.→x|ta¶3.→c");
}

TEST(Lists, ctrl_t_puts_the_next_item_into_the_next_column) {
  EXPECT_EQ(edit("1.→a|", "Ctrl+t b"), "1.→a‖2.→b|");
}

TEST(Lists, shift_enter_stays_in_the_item) { EXPECT_EQ(edit("1.→a|", "Shift+Enter b"), "1.→a↵b|"); }

TEST(Lists, typing_behind_a_label_takes_the_format_of_the_paragraph_before_it) {
  auto text = at("a{\\C1;\\P}1.\tb", 5);
  EXPECT_EQ(text.keys("x").codes(), "a{\\C1;\\P1.\tx}b");
}

// Levels.

TEST(Lists, tab_behind_a_label_puts_the_item_a_level_deeper_and_shift_tab_takes_it_back) {
  auto text = at(kThreeItems, 20);
  EXPECT_EQ(text.keys("Tab").codes(), "\\pxi-3,l3,t3;1.\talpha\\P2.\tbeta\\P\\pi-5,l6,t6;2.1.\tgamma");
  EXPECT_EQ(text.drawn(), "1.→alpha¶2.→beta¶2.1.→|gamma");
  EXPECT_EQ(text.keys("Shift+Tab").codes(), kThreeItems);
}

TEST(Lists, shift_tab_on_the_first_level_makes_a_plain_paragraph) {
  auto text = at(kThreeItems, 12);
  EXPECT_EQ(text.keys("Shift+Tab").drawn(), "1.→alpha¶|beta¶2.→gamma");
  EXPECT_EQ(text.codes(), "\\pxi-3,l3,t3;1.\talpha\\P\\pi0,l0,tz;beta\\P\\pi-3,l3,t3;2.\tgamma");
}

TEST(Lists, tab_elsewhere_in_an_item_is_a_tab_and_shift_tab_nothing) {
  EXPECT_EQ(edit("1.→al|pha", "Tab"), "1.→al→|pha");
  EXPECT_EQ(edit("1.→al|pha", "Shift+Tab"), "1.→al|pha");
}

TEST(Lists, tab_over_selected_items_puts_each_a_level_deeper_and_shift_takes_it_back) {
  EXPECT_EQ(edit("1.→a¶2.→b[b¶3.→c]c", "Tab"), "1.→a¶1.1.→b[b¶1.2.→c]c");
  EXPECT_EQ(edit("1.→a¶1.1.→b[b¶1.2.→c]c", "Shift+Tab"), "1.→a¶2.→b[b¶3.→c]c");
}

TEST(Lists, tab_over_items_and_plain_paragraphs_gives_the_plain_ones_a_tab) {
  EXPECT_EQ(edit("1.→a[a¶b¶2.→c]c", "Tab"), "1.1.→a[a¶→b¶1.2.→c]c");
  EXPECT_EQ(edit("1.→a[a¶→b¶2.→c]c", "Shift+Tab"), "a[a¶b¶c]c");
}

TEST(Lists, an_item_behind_a_deeper_one_goes_on_counting) {
  EXPECT_EQ(edit("1.→a¶2.→b¶2.1.→c|", "Enter d Enter Shift+Tab e"), "1.→a¶2.→b¶2.1.→c¶2.2.→d¶3.→e|");
}

// Deleting.

TEST(Lists, backspace_behind_a_label_takes_it_whole_then_the_indent_then_the_break) {
  auto text = at(kThreeItems, 20);
  EXPECT_EQ(text.keys("Backspace").codes(), "\\pxi-3,l3,t3;1.\talpha\\P2.\tbeta\\Pgamma");
  EXPECT_EQ(text.keys("Backspace").codes(), "\\pxi-3,l3,t3;1.\talpha\\P2.\tbeta\\P\\pi0,l0ql,tz;gamma");
  EXPECT_EQ(text.keys("Backspace").drawn(), "1.→alpha¶2.→beta|gamma");
}

TEST(Lists, the_items_behind_a_deleted_label_count_anew) {
  EXPECT_EQ(edit("1.→a¶2.→|b¶3.→c", "Backspace"), "1.→a¶|b¶2.→c");
}

TEST(Lists, ctrl_backspace_behind_a_label_takes_it_whole) {
  EXPECT_EQ(edit("1.→a¶2.→|b¶3.→c", "Ctrl+Backspace"), "1.→a¶|b¶2.→c");
}

TEST(Lists, delete_behind_an_item_takes_the_next_label_with_the_break) {
  EXPECT_EQ(edit("1.→a|¶2.→b¶3.→c", "Delete"), "1.→a|b¶2.→c");
}

TEST(Lists, deleting_across_items_counts_what_is_left) {
  EXPECT_EQ(edit("1.→al[pha¶2.→be]ta¶3.→c", "Delete"), "1.→al|ta¶2.→c");
}

TEST(Lists, undo_brings_labels_back_and_they_go_on_counting) {
  edited_text text("1.→a¶2.→|b¶3.→c");
  EXPECT_EQ(text.keys("Backspace Ctrl+z").drawn(), "1.→a¶2.→|b¶3.→c");
  EXPECT_EQ(text.keys("PageDown Enter d").drawn(), "1.→a¶2.→b¶3.→c¶4.→d|");
}
