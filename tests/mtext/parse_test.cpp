#include "mtext/parse.h"

#include <gtest/gtest.h>

#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline;
using mtext_test::outline_of;
using mtext_test::part_at;
using mtext_test::read;

TEST(Parse, the_empty_string_gives_no_parts_a_default_paragraph_and_true) {
  multitext text;

  EXPECT_TRUE(parse(u"", format::string(), text, {}));

  EXPECT_EQ(outline(text), "");
  EXPECT_TRUE(text.paragraph.relative);
}

TEST(Parse, drops_what_the_target_held) {
  auto text = read(u"\\pi1;old\\Ptext");

  parse(u"new", format::string(), text, {});

  EXPECT_EQ(outline(text), "[new]");
  EXPECT_TRUE(text.paragraph.relative);
  EXPECT_EQ(text.paragraph.indent, 0.0);
}

TEST(Parse, ends_at_the_first_null_character) { EXPECT_EQ(outline_of(std::u16string(u"ab\0cd", 5)), "[ab]"); }

TEST(Parse, the_range_form_reads_past_a_null_character_and_joins_nothing) {
  std::u16string input(u"{a}{b}\0", 7);
  multitext text;

  parse(input.data(), input.data() + input.size(), format::string(), text, {});

  ASSERT_EQ(text.parts.size(), 3u);
  EXPECT_EQ(part_at<string>(text, 2).text, std::u16string(1, u'\0'));
}

TEST(Parse, a_brace_alone_gives_no_parts) {
  EXPECT_EQ(outline_of(u"}"), "");
  EXPECT_EQ(outline_of(u"{"), "");
}

TEST(Parse, an_unclosed_group_ends_with_the_input) { EXPECT_EQ(outline_of(u"{abc"), "[abc]"); }

TEST(Parse, a_closing_brace_without_partner_is_dropped_and_reading_goes_on) {
  auto text = read(u"a}\\C1;b}c");

  EXPECT_EQ(outline(text), "[a] [bc]");
  EXPECT_EQ(part_at<string>(text, 1).format.color.index, 1);
}

TEST(Parse, a_group_that_changes_nothing_leaves_one_word) { EXPECT_EQ(outline_of(u"ab{cd}ef"), "[abcdef]"); }

TEST(Parse, a_group_scopes_its_character_format) {
  auto text = read(u"a{\\H2;b}c");

  EXPECT_EQ(outline(text), "[a] [b] [c]");
  EXPECT_EQ(text.parts[1].format.height, 2.0);
  EXPECT_EQ(text.parts[2].format.height, 1.0);
}

TEST(Parse, nested_groups_give_each_level_its_format_back) {
  auto text = read(u"{\\C1;a{{\\C2;b}c}}d");

  ASSERT_EQ(outline(text), "[a] [b] [c] [d]");
  EXPECT_EQ(text.parts[1].format.color.index, 2);
  EXPECT_EQ(text.parts[2].format.color.index, 1);
  EXPECT_EQ(text.parts[3].format.color.kind, 1u);
}

TEST(Parse, the_paragraph_format_is_not_scoped_by_groups) {
  auto text = read(u"{\\pxl2;a}\\Pb");

  EXPECT_EQ(text.paragraph.left, 2.0);
  EXPECT_EQ(part_at<new_paragraph>(text, 1).paragraph.left, 2.0);
}

TEST(Parse, a_format_at_the_end_of_the_input_leaves_no_trace) { EXPECT_EQ(outline_of(u"\\H2;"), ""); }

TEST(Parse, a_backslash_alone_is_text) { EXPECT_EQ(outline_of(u"\\"), "[\\]"); }

TEST(Parse, a_run_of_blanks_is_counted) { EXPECT_EQ(outline_of(u"a  b"), "[a] _2 [b]"); }

TEST(Parse, a_blank_that_does_not_break_stays_inside_the_word) { EXPECT_EQ(outline_of(u"a\\~b"), "[a b]"); }

TEST(Parse, braces_and_backslashes_are_escaped_by_a_backslash) {
  EXPECT_EQ(outline_of(u"\\{\\}\\\\"), "[{}\\]");
}

TEST(Parse, tabs_and_line_feeds_are_parts_and_a_carriage_return_is_text) {
  EXPECT_EQ(outline_of(u"a\tb\nc\rd"), "[a] tab [b] line [c\rd]");
}

TEST(Parse, two_percent_signs_are_text_and_a_third_may_begin_a_symbol) {
  EXPECT_EQ(outline_of(u"%%"), "[%%]");
  EXPECT_EQ(part_at<string>(read(u"%%%d"), 0).text, u"%\u00B0");
}

TEST(Parse, symbols_are_read_in_either_case) {
  EXPECT_EQ(part_at<string>(read(u"%%c%%C%%d%%D%%p%%P%%x"), 0).text,
            u"\u2205\u2205\u00B0\u00B0\u00B1\u00B1%%x");
}

TEST(Parse, a_code_unit_joins_a_neighbouring_word_as_a_symbol_does) {
  EXPECT_EQ(outline_of(u"x\\U+0041y"), "[xAy]");
  EXPECT_EQ(part_at<string>(read(u"x%%dy"), 0).text, u"x\u00B0y");
}

TEST(Parse, a_code_unit_of_a_blank_counts_as_a_blank) {
  EXPECT_EQ(outline_of(u"a\\U+0020\\u+0020b"), "[a] _2 [b]");
}

TEST(Parse, a_code_unit_without_four_digits_ends_the_reading) {
  EXPECT_EQ(outline_of(u"ab\\U+12"), "[ab]");
  EXPECT_EQ(outline_of(u"ab\\U+12gh cd"), "[ab]");
}

TEST(Parse, a_broken_code_unit_ends_all_open_groups_at_once) {
  EXPECT_EQ(outline_of(u"{a{b\\u+00}c}d"), "[ab]");
}

TEST(Parse, an_unknown_code_is_text_backslash_included) {
  EXPECT_EQ(outline_of(u"\\Z1;a"), "[\\Z1;a]");
  EXPECT_EQ(outline_of(u"\\Ka"), "[\\Ka]");
}

TEST(Parse, a_column_end_and_a_paragraph_end_are_told_apart) {
  EXPECT_EQ(outline_of(u"a\\Pb\\Nc"), "[a] P [b] N [c]");
}
