#include "mtext/layout_line.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

TEST(LayoutLine, width_0_breaks_at_line_and_paragraph_ends_only) {
  EXPECT_EQ(lines_of(decoded(u"aaaa bbbb\ncccc\\Pdddd")), (texts{"aaaa bbbb/", "cccc|", "dddd"}));
}

TEST(LayoutLine, with_width_0_a_tab_in_the_first_place_goes_to_0_and_a_later_one_ends_the_line) {
  const geom_multitext text = decoded(u"\ta\tb");
  EXPECT_EQ(lines_of(text), (texts{">a", ">b"}));
  EXPECT_EQ(places_of(text), (places{0, 0, 0, 0}));
  EXPECT_EQ(text.parts[0].size.advance, 0);
}

TEST(LayoutLine, with_width_0_tabs_stand_on_the_default_grid_where_a_negative_margin_makes_room) {
  const geom_multitext text = decoded(u"\\pxr-10;a\tb");
  EXPECT_EQ(lines_of(text), (texts{"a>b"}));
  EXPECT_EQ(places_of(text), (places{0, 6, 40}));
}

TEST(LayoutLine, words_that_fit_share_a_line) {
  EXPECT_EQ(lines_of(decoded(u"aa bb cc", frame(28))), (texts{"aa bb ", "cc"}));
}

TEST(LayoutLine, a_word_fits_by_its_ink_and_not_by_its_advance) {
  // "aa bb" advances by 27 and has ink of 26: half a unit of bearing at each end.
  EXPECT_EQ(lines_of(decoded(u"aa bb", frame(26.5))), (texts{"aa bb"}));
  EXPECT_EQ(lines_of(decoded(u"aa bb", frame(25.5))), (texts{"aa ", "bb"}));
}

TEST(LayoutLine, a_word_wider_than_the_width_stands_alone_and_overflows_trailing_blanks_included) {
  EXPECT_EQ(lines_of(decoded(u"a bbbbbb  c", frame(20))), (texts{"a ", "bbbbbb  ", "c"}));
}

TEST(LayoutLine, a_run_of_blanks_at_the_wrap_point_stays_on_the_upper_line) {
  EXPECT_EQ(lines_of(decoded(u"aaa     bbb", frame(20))), (texts{"aaa     ", "bbb"}));
}

TEST(LayoutLine, a_blank_at_the_start_of_a_line_counts_as_ink) {
  EXPECT_EQ(lines_of(decoded(u"   aa", frame(22))), (texts{"   aa"}));
  EXPECT_EQ(lines_of(decoded(u"   aa", frame(20))), (texts{"   ", "aa"}));
}

TEST(LayoutLine, a_line_end_behind_blanks_that_overflow_stays_with_them) {
  EXPECT_EQ(lines_of(decoded(u"aaaa  \nb", frame(20))), (texts{"aaaa  /", "b"}));
}

TEST(LayoutLine, a_paragraph_end_behind_blanks_that_overflow_opens_its_paragraph_all_the_same) {
  const geom_multitext text = decoded(u"aaaa  \\P\\pxi1;b", frame(20));
  EXPECT_EQ(lines_of(text), (texts{"aaaa  |", "b"}));
  EXPECT_EQ(text.parts[7].x, 10);
}

TEST(LayoutLine, a_paragraph_end_behind_blanks_that_overflow_sorts_the_stops_of_its_paragraph) {
  const geom_multitext text = decoded(u"aaaa  \\P\\pxt9,2;\tb", frame(20));
  EXPECT_EQ(lines_of(text), (texts{"aaaa  |", ">b"}));
  EXPECT_EQ(text.parts[8].x, 20);
}

TEST(LayoutLine, a_stack_breaks_like_a_word) {
  EXPECT_EQ(lines_of(decoded(u"aa \\S1/2; bb", frame(20))), (texts{"aa ", "# ", "bb"}));
}

TEST(LayoutLine, a_blank_inside_a_word_does_not_break) {
  EXPECT_EQ(lines_of(decoded(u"aa\\~bb c", frame(20))), (texts{"aa bb ", "c"}));
}

TEST(LayoutLine, the_first_line_of_a_paragraph_starts_at_its_indent_the_others_at_its_margin) {
  const geom_multitext text = decoded(u"\\pxi1,l2;aa bb\\Pcc", frame(50));
  EXPECT_EQ(lines_of(text), (texts{"aa ", "bb|", "cc"}));
  EXPECT_EQ(text.lines[0].x, 30);
  EXPECT_EQ(text.lines[1].x, 20);
  EXPECT_EQ(text.lines[2].x, 30);
}

TEST(LayoutLine, a_line_end_alone_on_its_line_stands_at_0) {
  EXPECT_EQ(decoded(u"\\pxl2;a\n\nb").lines[1].x, 0);
}

TEST(LayoutLine, the_right_margin_narrows_the_line) {
  EXPECT_EQ(lines_of(decoded(u"\\pxr1;aa bb", frame(35))), (texts{"aa ", "bb"}));
}

TEST(LayoutLine, the_tallest_part_gives_its_line_all_four_heights_together) {
  const geom_multitext text = decoded(u"{\\fTall|b0|i0|c0|p0;a}\\H2x;b");
  EXPECT_DOUBLE_EQ(text.lines[0].size.above, 20);
  EXPECT_DOUBLE_EQ(text.lines[0].size.head, 0);
  EXPECT_DOUBLE_EQ(decoded(u"{\\fTall|b0|i0|c0|p0;a}b").lines[0].size.head, 2);
}

TEST(LayoutLine, small_parts_stand_at_the_bottom_the_middle_or_the_top_of_a_tall_line) {
  const geom_multitext text = decoded(u"\\H2x;M{\\H0.5x;\\A0;a\\A1;b\\A2;c}");
  const double baseline = text.parts[0].y;
  EXPECT_DOUBLE_EQ(text.parts[1].y, baseline);
  EXPECT_DOUBLE_EQ(text.parts[2].y, baseline + 5);
  EXPECT_DOUBLE_EQ(text.parts[3].y, baseline + 10);
}

}  // namespace
}  // namespace mtext
