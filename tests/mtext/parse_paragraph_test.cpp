#include <gtest/gtest.h>

#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline_of;
using mtext_test::part_at;
using mtext_test::read;

namespace {

/// The first paragraph's format.
format::paragraph paragraph_of(const std::u16string& text) { return read(text).paragraph; }

}  // namespace

TEST(ParseParagraph, a_small_negative_indent_loses_its_sign) {
  EXPECT_EQ(paragraph_of(u"\\pxi-0.5,l1;").indent, 0.5);
}

TEST(ParseParagraph, a_negative_indent_is_clamped_at_the_left_margin) {
  auto paragraph = paragraph_of(u"\\pxi-1.5,l1;");

  EXPECT_EQ(paragraph.left, 1.0);
  EXPECT_EQ(paragraph.indent, -1.0);
}

TEST(ParseParagraph, a_negative_left_margin_becomes_0) {
  EXPECT_EQ(paragraph_of(u"\\pxl-2,i3;").left, 0.0);
  EXPECT_EQ(paragraph_of(u"\\pxl-2,i3;").indent, 3.0);
}

TEST(ParseParagraph, reads_all_its_items_with_and_without_commas) {
  auto paragraph = paragraph_of(u"\\pxi1l2,r3 b4a5qcsm1.5t4,c8;");

  EXPECT_EQ(paragraph.indent, 1.0);
  EXPECT_EQ(paragraph.left, 2.0);
  EXPECT_EQ(paragraph.right, 3.0);
  EXPECT_EQ(paragraph.before, 4.0);
  EXPECT_EQ(paragraph.after, 5.0);
  EXPECT_EQ(paragraph.alignment, 2u);
  EXPECT_EQ(paragraph.spacing, (format::line_spacing{3, 1.5}));
  EXPECT_TRUE(equal_tabs(paragraph.tabs, {{4.0, 0}, {8.0, 1}}));
}

TEST(ParseParagraph, a_length_whose_number_fails_is_0) {
  EXPECT_EQ(paragraph_of(u"\\pxr3;\\pxr5.;").right, 0.0);
}

TEST(ParseParagraph, paragraphs_without_x_keep_drawing_units) {
  auto text = read(u"\\pi1;\\P\\pi2;");

  EXPECT_FALSE(text.paragraph.relative);
  EXPECT_FALSE(part_at<new_paragraph>(text, 0).paragraph.relative);
}

TEST(ParseParagraph, an_x_met_once_holds_for_all_codes_behind_it) {
  EXPECT_TRUE(paragraph_of(u"\\px;\\pi2;").relative);
}

TEST(ParseParagraph, a_later_x_marks_all_paragraphs_but_the_first) {
  auto text = read(u"\\pi1;a\\Pb\\P\\pxi2;c");

  EXPECT_FALSE(text.paragraph.relative);
  EXPECT_TRUE(part_at<new_paragraph>(text, 1).paragraph.relative);
  EXPECT_EQ(part_at<new_paragraph>(text, 1).paragraph.indent, 1.0);
  EXPECT_TRUE(part_at<new_paragraph>(text, 3).paragraph.relative);
}

TEST(ParseParagraph, a_code_without_its_end_takes_the_rest_of_the_input) {
  EXPECT_EQ(outline_of(u"a\\pxi1 xyz"), "[a]");
}

TEST(ParseParagraph, alignment_and_spacing_take_the_character_behind_them_whatever_it_is) {
  EXPECT_EQ(outline_of(u"\\pxq;l2;a"), "[a]");
  EXPECT_EQ(paragraph_of(u"\\pxq;l2;a").left, 2.0);
  EXPECT_EQ(paragraph_of(u"\\pxs;l2;a").left, 2.0);
}

TEST(ParseParagraph, a_star_takes_alignment_and_spacing_back) {
  auto paragraph = paragraph_of(u"\\pxqc,sm2;\\pq*,s*;");

  EXPECT_EQ(paragraph.alignment, 0u);
  EXPECT_EQ(paragraph.spacing, format::line_spacing());
}

TEST(ParseParagraph, a_spacing_whose_number_fails_changes_nothing) {
  EXPECT_EQ(paragraph_of(u"\\pxsm2;\\pxse5.;").spacing, (format::line_spacing{3, 2.0}));
}

TEST(ParseTabs, the_kinds_are_told_by_their_letters) {
  EXPECT_TRUE(equal_tabs(paragraph_of(u"\\pxt1,c2,r3,D,4;").tabs, {{1, 0}, {2, 1}, {3, 2}, {4, 3, u','}}));
}

TEST(ParseTabs, a_list_without_numbers_gives_one_left_stop_at_0) {
  EXPECT_TRUE(equal_tabs(paragraph_of(u"\\pxt;").tabs, {{0, 0}}));
  EXPECT_TRUE(equal_tabs(paragraph_of(u"\\pxt").tabs, {{0, 0}}));
}

TEST(ParseTabs, z_clears_the_list) {
  EXPECT_TRUE(paragraph_of(u"\\pxt4;\\ptz;").tabs.empty());
  EXPECT_TRUE(equal_tabs(paragraph_of(u"\\pxt4,z,8;").tabs, {{8, 0}}));
}

TEST(ParseTabs, a_stop_that_fails_is_read_as_an_item) {
  auto paragraph = paragraph_of(u"\\pxt4,r5.;");

  EXPECT_TRUE(equal_tabs(paragraph.tabs, {{4, 0}}));
  EXPECT_EQ(paragraph.right, 0.0);
}

TEST(ParseTabs, the_separator_is_the_character_behind_its_letter_whatever_it_is) {
  EXPECT_TRUE(equal_tabs(paragraph_of(u"\\pxtD;4,8;").tabs, {{4, 3, u';'}, {8, 0}}));
}

TEST(ParseTabs, an_input_that_ends_at_the_separator_letter_gives_no_stop) {
  EXPECT_TRUE(paragraph_of(u"\\pxtD").tabs.empty());
}
