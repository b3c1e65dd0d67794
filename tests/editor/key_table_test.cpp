#include <gtest/gtest.h>

#include <set>

#include "editor/key_table.h"
#include "tests/editor/edited_text.h"

TEST(KeyTable, every_row_says_what_it_does_and_does_it) {
  for (const editing::key_row& row : editing::key_table()) {
    EXPECT_FALSE(std::u16string_view(row.help).empty()) << row.key;
    EXPECT_EQ(row.action == nullptr, row.effect == editing::key_effect::passes) << row.key;
  }
}

TEST(KeyTable, a_row_without_a_condition_is_the_last_for_its_key) {
  std::set<unsigned> closed;
  for (const editing::key_row& row : editing::key_table()) {
    EXPECT_FALSE(closed.contains(row.key)) << row.key;
    if (!row.applies) closed.insert(row.key);
  }
}

TEST(KeyTable, ctrl_and_alt_together_are_no_shortcut) {
  EXPECT_EQ(edit("a|b", "Ctrl+Alt+a"), "a|b");
  EXPECT_EQ(edit("one two|", "Ctrl+Alt+Left"), "one tw|o");
}

TEST(KeyTable, enter_accepts_an_existing_single_line_text) {
  edited_text text("ab|c");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  text.keys("Enter");
  EXPECT_EQ(text.ended(), "accept");
  EXPECT_EQ(text.drawn(), "ab|c");
}

TEST(KeyTable, enter_in_a_new_single_line_text_begins_a_line_and_behind_an_empty_one_accepts) {
  edited_text text("|");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/false);
  text.keys("a Enter");
  EXPECT_EQ(text.ended(), "");
  EXPECT_EQ(text.keys("Enter").ended(), "accept");
  EXPECT_EQ(text.drawn(), "a¶|");
}

TEST(KeyTable, a_tab_in_a_single_line_text_is_ignored) {
  edited_text text("a|");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  EXPECT_EQ(text.keys("Tab").drawn(), "a|");
}
