#include "editor/stored_text.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/editor/edited_text.h"
#include "tests/editor/random_session.h"

namespace {

std::string letters(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; text.size() < count; ++i) text += i % 40 == 39 ? "word¶" : "word ";
  return text;
}

/// Parts that one more step holds for itself, behind an edit that a key made.
std::size_t own_parts(edited_text& text, const char* keys) {
  text.keys("Left Right");
  const std::size_t before = stored_parts(text.session().undo());
  text.keys(keys);
  return stored_parts(text.session().undo()) - before;
}

}  // namespace

TEST(StoredText, comes_back_as_it_was) {
  edited_text text("ab¶1.→c[d½]e↵f~g|");
  const stored_text stored(text.text().text());
  const mtext::geom_multitext restored = stored.restored();
  EXPECT_EQ(restored.parts.size(), text.text().text().parts.size());
  EXPECT_EQ(restored.lines.size(), text.text().text().lines.size());
  EXPECT_EQ(restored.marks.size(), text.text().text().marks.size());
}

TEST(StoredText,
     a_step_of_one_letter_in_the_middle_of_a_long_text_holds_little_however_the_text_repeats_itself) {
  edited_text text(letters(10000) + "|");
  text.text().setSelections({mtext::marks::selection(5000)});
  text.keys("x");
  EXPECT_LT(own_parts(text, "y"), 300U);
  EXPECT_LT(own_parts(text, "Backspace"), 300U);
  EXPECT_LT(own_parts(text, "Enter"), 300U);
}

TEST(StoredText, a_step_of_several_carets_holds_what_is_around_them) {
  random_keys random(3);
  std::string words;
  while (words.size() < 20000) words += random.text(100, /*with_items=*/false);
  edited_text text("a|b" + words + "a|b");
  text.keys("x");
  ASSERT_EQ(text.text().selectionCount(), 2U);
  EXPECT_LT(own_parts(text, "y"), 400U);
}

TEST(StoredText, edits_without_end_leave_no_crumbs) {
  edited_text text(letters(1000) + "|");
  for (int i = 0; i < 300; ++i) text.keys(i % 3 == 0 ? "Ctrl+Left x" : "Left Backspace");
  const auto& last = text.session().undo().undo_steps().last().geometry;
  EXPECT_LT(last.pieces().size(), text.text().text().parts.size() / 4);
}

TEST(StoredText, equal_texts_share_all_they_have) {
  edited_text text(letters(500) + "|");
  const stored_text first(text.text().text());
  const stored_text second(text.text().text(), &first);
  EXPECT_EQ(first.pieces(), second.pieces());
}
