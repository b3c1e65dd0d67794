#include "editor/letter_toggle.h"

#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

using editing::letter_toggle;

TEST(LetterToggle, gives_to_all_what_only_a_part_has_and_takes_it_from_all_that_have_it) {
  edited_text text("[ab]");
  text.text().setContents(u"\\La\\lb");
  text.text().load();
  text.text().selectRange(0, -1, /*snap=*/false, /*keep=*/false);
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_TRUE(editing::toggle(text.text(), letter_toggle::underline));
  EXPECT_EQ(text.codes(), "{\\Lab}");
  EXPECT_FALSE(editing::toggle(text.text(), letter_toggle::underline));
  EXPECT_EQ(text.codes(), "ab");
}

TEST(LetterToggle, at_a_caret_it_is_for_what_is_typed_next_and_a_second_one_takes_it_back) {
  edited_text text("a|");
  EXPECT_TRUE(editing::toggle(text.text(), letter_toggle::overline));
  EXPECT_FALSE(editing::toggle(text.text(), letter_toggle::overline));
  text.keys("b");
  EXPECT_EQ(text.codes(), "ab");
}

TEST(LetterToggle, keys_toggle_nothing_in_a_single_line) {
  edited_text text("[ab]");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  text.keys("Ctrl+u");
  EXPECT_EQ(text.codes(), "ab");
}

TEST(ChangeCase, changes_letters_of_words_and_stacks_and_leaves_labels_and_fields) {
  auto text = edited_text::on_codes(u"a.\tab\\Sc/d;%<\\AcVar Date>%\\Pef");
  text.text().selectRange(0, -1, /*snap=*/false, /*keep=*/false);
  text.text().changeCase(/*to_upper=*/true);
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_EQ(text.codes(), "a.\tAB{\\H1.4286x;{\\H0.7x;\\SC/D;}}%<\\AcVar Date>%\\PEF");
}
