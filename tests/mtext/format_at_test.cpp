#include "mtext/format_at.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

using boost::logic::indeterminate;

/// The default format of the text: one that no character of the tests has.
format::string base() {
  format::string format;
  format.height = 99;
  format.height_kind = 0;
  return format;
}

double typed_height(const geom_multitext& text, std::size_t at) {
  return format::insertion_format(text, base(), at).height;
}

double typed_height(const geom_multitext& text, std::size_t begin, std::size_t end) {
  return format::insertion_format(text, base(), marks::mark(begin, end)).height;
}

/// "1." and a tab of height 20 before "ab" of height 30, behind a paragraph end of height 10.
geom_multitext labelled() {
  geom_multitext text = decoded(u"x\\P\\H2x;1.\t\\H1.5x;ab");
  text.marks.push_back(new marks::numbering(2, 5, {{1, 0, 0}}));
  return text;
}

TEST(InsertionFormat, in_an_empty_text_every_form_gives_the_base) {
  const geom_multitext text;
  EXPECT_EQ(typed_height(text, 0), 99);
  EXPECT_EQ(typed_height(text, 0, 0), 99);
  EXPECT_EQ(format::current_format(text, base(), marks::mark(0, 0)).height->first, 99);
  EXPECT_EQ(format::current_paragraph_format(text, marks::mark(0, 0)).left, 0.0);
}

TEST(InsertionFormat, at_the_start_of_a_text_is_the_base) { EXPECT_EQ(typed_height(decoded(u"ab"), 0), 99); }

TEST(InsertionFormat, is_that_of_the_character_to_the_left) {
  EXPECT_EQ(typed_height(decoded(u"a{\\H2x;b}c"), 2), 20);
  EXPECT_EQ(typed_height(decoded(u"a{\\H2x;b}c"), 3), 10);
}

TEST(InsertionFormat, directly_behind_a_field_is_that_of_its_last_character) {
  EXPECT_EQ(typed_height(decoded(u"a{\\H2x;%<code>%}b"), 5), 20);
}

TEST(InsertionFormat, right_after_a_paragraph_end_is_that_of_the_end) {
  geom_multitext text = decoded(u"a\\Pb");
  text.parts[1].part().format.height = 40;
  EXPECT_EQ(typed_height(text, 2), 40);
}

TEST(InsertionFormat, at_the_end_of_the_text_is_that_of_the_last_part) {
  EXPECT_EQ(typed_height(decoded(u"a\\H2x;b"), 2), 20);
}

TEST(InsertionFormat, behind_a_label_jumps_over_it_to_the_paragraph_end) {
  EXPECT_EQ(typed_height(labelled(), 5), 10);
  EXPECT_EQ(typed_height(labelled(), 4), 10);
  EXPECT_EQ(typed_height(labelled(), 6), 30);
}

TEST(InsertionFormat, at_the_end_of_a_text_that_ends_in_a_label_jumps_over_it) {
  geom_multitext text = decoded(u"\\H2x;1.\t");
  text.marks.push_back(new marks::numbering(0, 3, {{1, 0, 0}}));
  EXPECT_EQ(typed_height(text, 3), 99);
}

TEST(InsertionFormat, over_a_selection_is_that_of_its_first_character) {
  EXPECT_EQ(typed_height(decoded(u"a{\\H2x;b}c"), 1, 3), 20);
  EXPECT_EQ(typed_height(labelled(), 2, 6), 30);
}

TEST(InsertionFormat, of_a_selection_wholly_inside_a_label_is_the_base) {
  EXPECT_EQ(typed_height(labelled(), 2, 4), 99);
  EXPECT_EQ(format::current_format(labelled(), base(), marks::mark(2, 4)).height->first, 99);
}

TEST(CurrentFormat, keeps_what_agrees_and_empties_what_differs) {
  const geom_multitext text = decoded(u"\\fArial|b1|i0|c0|p34;a\\H2x;b");
  const format::string_partial common = format::current_format(text, base(), marks::mark(0, 2));
  EXPECT_EQ(common.font, u"Arial");
  EXPECT_TRUE(common.bold == true);
  EXPECT_FALSE(common.height);
}

TEST(CurrentFormat, of_flags_that_differ_is_indeterminate) {
  const geom_multitext text = decoded(u"\\La\\lb");
  EXPECT_TRUE(indeterminate(format::current_format(text, base(), marks::mark(0, 2)).underline));
}

TEST(CurrentFormat, of_a_caret_is_that_of_the_character_before_it) {
  EXPECT_EQ(format::current_format(decoded(u"a\\H2x;b"), base(), marks::mark(2, 2)).height->first, 20);
}

TEST(CurrentFormat, skips_labels) {
  EXPECT_EQ(format::current_format(labelled(), base(), marks::mark(2, 7)).height->first, 30);
}

TEST(CurrentParagraphFormat, is_the_paragraph_in_force_met_with_those_that_the_selection_opens) {
  const geom_multitext text = decoded(u"\\pxi1,l2;ab\\P\\pxl3;cd");
  const format::paragraph_partial common = format::current_paragraph_format(text, marks::mark(1, 4));
  EXPECT_EQ(common.indent, 1.0);
  EXPECT_FALSE(common.left);
  EXPECT_EQ(format::current_paragraph_format(text, marks::mark(3, 5)).left, 3.0);
}

TEST(CurrentParagraphFormat, has_the_tabs_of_the_last_paragraph) {
  const geom_multitext text = decoded(u"\\pxt1;ab\\P\\pxt2,3;cd");
  EXPECT_EQ(format::current_paragraph_format(text, marks::mark(0, 4)).tabs->size(), 2u);
}

TEST(FormatAt, places_beyond_the_text_throw) {
  const geom_multitext text = decoded(u"ab");
  EXPECT_THROW(format::current_format(text, base(), marks::mark(0, 3)), std::invalid_argument);
  EXPECT_THROW(format::current_paragraph_format(text, marks::mark(3, 3)), std::invalid_argument);
  EXPECT_THROW(format::insertion_format(text, base(), marks::mark(0, 3)), std::invalid_argument);
  EXPECT_THROW(format::insertion_format(text, base(), std::size_t{3}), std::invalid_argument);
}

}  // namespace
}  // namespace mtext
