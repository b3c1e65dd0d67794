#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

TEST(Clipboard, copy_with_only_carets_does_not_touch_it) {
  edited_text text("a|b");
  text.application().clipboard().set(CF_UNICODETEXT, u"before");
  text.keys("Ctrl+c");
  EXPECT_EQ(text.application().clipboard().get(CF_UNICODETEXT), u"before");
}

TEST(Clipboard, copying_two_selections_gives_both_texts_joined_with_nothing_between) {
  edited_text text("[ab]c[d]");
  text.keys("Ctrl+c");
  EXPECT_EQ(text.application().clipboard().get(CF_UNICODETEXT), u"abd");
}

TEST(Clipboard, cut_and_paste_move_text_with_its_format) {
  auto text = edited_text::on_codes("a{\\C1;b}c");
  text.text().setSelections({mtext::marks::selection(1, 2)});
  EXPECT_EQ(text.keys("Ctrl+x End Ctrl+v").codes(), "ac{\\C1;b}");
}

TEST(Clipboard, codes_in_plain_text_stay_letters) {
  edited_text text("|");
  text.application().clipboard().set(CF_UNICODETEXT, u"a\\Pb");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "a\\Pb|");
}

TEST(Clipboard, plain_lines_become_paragraphs) {
  edited_text text("|");
  text.application().clipboard().set(CF_UNICODETEXT, u"a\r\nb");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "a¶b|");
}

TEST(Clipboard, plain_lines_become_blanks_in_an_existing_single_line_text) {
  edited_text text("x|");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  text.application().clipboard().set(CF_UNICODETEXT, u"a\r\nb");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "xa b|");
}
