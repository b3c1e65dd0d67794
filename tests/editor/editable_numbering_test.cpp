#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

namespace {

std::string numbered(std::string_view before, int kind, std::size_t alphabet = 0) {
  edited_text text(before);
  text.text().setNumbering(kind, alphabet);
  text.text().endOfEdit(/*relayout=*/true);
  return text.drawn();
}

}  // namespace

TEST(SetNumbering, makes_items_of_the_paragraphs_that_a_selection_touches) {
  EXPECT_EQ(numbered("x¶a[a¶b]b¶y", 0), "x¶1.→a[a¶2.→b]b¶y");
  EXPECT_EQ(numbered("x¶a[a¶b]b¶y", 1), "x¶a.→a[a¶b.→b]b¶y");
  EXPECT_EQ(numbered("x¶a[a¶b]b¶y", 2), "x¶A.→a[a¶B.→b]b¶y");
  EXPECT_EQ(numbered("x¶a[a¶b]b¶y", 3), "x¶·→a[a¶·→b]b¶y");
}

TEST(SetNumbering, puts_the_caret_behind_the_label) {
  EXPECT_EQ(numbered("|ab", 0), "1.→|ab");
  EXPECT_EQ(numbered("|", 0), "1.→|");
}

TEST(SetNumbering, hangs_the_label) {
  edited_text text("ab|");
  text.text().setNumbering(0);
  EXPECT_EQ(text.codes(), "\\pxi-3,l3,t3;1.\tab");
}

TEST(SetNumbering, changes_the_kind_of_items_and_keeps_their_levels) {
  EXPECT_EQ(numbered("1.→a[a¶2.→b]b", 2), "A.→a[a¶B.→b]b");
  EXPECT_EQ(numbered("1.→a¶1.1.→b|b", 1), "1.→a¶1.a.→b|b");
}

TEST(SetNumbering, goes_on_counting_an_earlier_list_of_the_kind) {
  EXPECT_EQ(numbered("1.→a¶x¶b|", 0), "1.→a¶x¶2.→b|");
}

TEST(SetNumbering, off_makes_a_plain_paragraph_and_counts_what_is_left) {
  EXPECT_EQ(numbered("1.→a¶2.→b|b¶3.→c", -1), "1.→a¶b|b¶2.→c");
  auto text = edited_text::on_codes("\\pxi-3,l3,t3;1.\tab");
  text.text().setNumbering(-1);
  EXPECT_EQ(text.codes(), "ab");
}

TEST(SetNumbering, off_on_plain_text_does_nothing) { EXPECT_EQ(numbered("a|b¶c", -1), "a|b¶c"); }

TEST(SetNumbering, takes_the_alphabet_that_is_asked_for_and_the_first_for_one_that_is_not_there) {
  edited_text text("x|");
  auto letters = text.text().letters();
  letters.push_back({u"xyz", u"", u"бв", u"БВ"});
  text.text().setLetters(letters);
  text.text().setNumbering(1, 1);
  EXPECT_EQ(text.drawn(), "б.→x|");
  EXPECT_EQ(numbered("x|", 1, 7), "a.→x|");
}

TEST(SetNumbering, leaves_a_selection_that_ends_at_the_start_of_a_paragraph_behind_its_label) {
  EXPECT_EQ(numbered("a[b¶]c", 0), "1.→a[b¶2.→]c");
}
