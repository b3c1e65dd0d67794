#include <gtest/gtest.h>

#include "host/key_code.h"
#include "tests/editor/edited_text.h"

TEST(Typing, inserts_at_the_caret) { EXPECT_EQ(edit("ab|cd", "x Left y"), "aby|xcd"); }

TEST(Typing, with_two_carets_inserts_at_both) { EXPECT_EQ(edit("a|b|", "x y"), "axy|bxy|"); }

TEST(Typing, with_a_selection_replaces_it) { EXPECT_EQ(edit("a[bc]d", "x"), "ax|d"); }

TEST(Typing, over_a_selection_takes_the_format_of_its_begin) {
  auto text = edited_text::on_codes("a{\\C1;b}cd");
  text.text().setSelections({mtext::marks::selection(1, 3)});
  EXPECT_EQ(text.keys("x").codes(), "a{\\C1;x}d");
}

TEST(Typing, a_held_key_inserts_as_many_characters_as_the_repeat_count_tells) {
  EXPECT_EQ(edit("a|b", "x*4"), "axxxx|b");
}

TEST(Typing, a_character_beyond_the_basic_plane_comes_as_two_messages_and_is_one_in_the_contents) {
  edited_text text("a|b");
  text.send({.number = WM_CHAR, .code = 0xD83D});
  text.send({.number = WM_CHAR, .code = 0xDE00});
  EXPECT_EQ(text.codes(),
            "a\xF0\x9F\x98\x80"
            "b");
}

TEST(Typing, codes_are_letters) {
  edited_text text("|");
  text.keys("\\ P { }");
  EXPECT_EQ(text.codes(), "\\\\P\\{\\}");
}

TEST(Typing, is_ignored_while_ctrl_is_held) { EXPECT_EQ(edit("a|b", "Ctrl+q"), "a|b"); }

TEST(Typing, the_character_of_a_handled_key_is_ignored_until_the_key_is_up) {
  edited_text text("ab|");
  text.send({.number = WM_KEYDOWN, .code = VK_BACK});
  text.send({.number = WM_CHAR, .code = VK_BACK});
  EXPECT_EQ(text.drawn(), "a|");
  text.send({.number = WM_KEYUP, .code = VK_BACK});
  text.send({.number = WM_CHAR, .code = u'x'});
  EXPECT_EQ(text.drawn(), "ax|");
}

TEST(Typing, enter_ends_the_paragraph_and_copies_its_format) {
  auto text = edited_text::on_codes("\\pxi2,qc;abcd");
  text.text().setSelections({mtext::marks::selection(2)});
  EXPECT_EQ(text.keys("Enter").codes(), "\\pxi2qc;ab\\Pcd");
}

TEST(Typing, shift_enter_breaks_the_line) { EXPECT_EQ(edit("ab|cd", "Shift+Enter"), "ab↵|cd"); }

TEST(Typing, ctrl_shift_space_is_a_word_for_the_line_breaker) {
  EXPECT_EQ(edit("a|b", "Ctrl+Shift+Space"), "a~|b");
  edited_text text("aaaa bbbb|cc", wrapping(16));
  EXPECT_EQ(text.keys("Ctrl+Shift+Space Home").drawn(), "aaaa |bbbb~cc");
}

TEST(Typing, a_tab_is_a_tab) { EXPECT_EQ(edit("a|b", "Tab"), "a→|b"); }

TEST(Typing, a_tab_over_selected_text_indents_its_paragraphs_and_shift_takes_it_back) {
  EXPECT_EQ(edit("a[b¶c]d¶e", "Tab"), "→a[b¶→c]d¶e");
  EXPECT_EQ(edit("→a[b¶→c]d¶e", "Shift+Tab"), "a[b¶c]d¶e");
}

TEST(Typing, ctrl_t_breaks_the_column) { EXPECT_EQ(edit("a|b", "Ctrl+t"), "a‖|b"); }

TEST(Typing, ctrl_t_is_refused_at_100_columns) {
  mtext::convert_info info;
  info.columns.heights.assign(100, 10.0);
  EXPECT_EQ(edited_text("a|b", info).keys("Ctrl+t").drawn(), "a|b");
  info.columns.heights.assign(99, 10.0);
  EXPECT_EQ(edited_text("a|b", info).keys("Ctrl+t").drawn(), "a‖|b");
}

TEST(Typing, several_carets_equal_one_caret_repeated_from_the_end) {
  for (const char* keys :
       {"x", "Enter", "Shift+Enter", "Backspace", "Delete", "Tab", "x y Backspace", "Ctrl+Shift+Space"}) {
    edited_text together("ab|cd ef|gh¶ij|kl");
    together.keys(keys);
    edited_text one("abcd efgh¶ij|kl");
    one.keys(keys);
    for (const std::size_t at : {7U, 2U}) {
      one.text().setSelections({mtext::marks::selection(at)});
      one.keys(keys);
    }
    EXPECT_EQ(together.codes(), one.codes()) << keys;
  }
}

TEST(Typing, what_is_laid_out_after_an_edit_equals_what_is_laid_out_from_scratch) {
  edited_text edited("aaaa |bbbb cccc", wrapping(16));
  edited.keys("x Space Enter y End z");
  const auto fresh = edited_text::on_codes(edited.text().contentsText(), wrapping(16));
  const auto& a = edited.text().text();
  const auto& b = fresh.text().text();
  ASSERT_EQ(a.parts.size(), b.parts.size());
  for (std::size_t i = 0; i < a.parts.size(); ++i) {
    EXPECT_DOUBLE_EQ(a.parts[i].x, b.parts[i].x) << i;
    EXPECT_DOUBLE_EQ(a.parts[i].y, b.parts[i].y) << i;
  }
}
