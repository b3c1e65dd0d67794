#include "mtext/column_sequence.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

/// Columns 20 wide with gaps of 5.
convert_info columns(std::uint32_t kind, std::vector<double> heights) {
  convert_info info = frame(20);
  info.columns.gutter = 5;
  info.columns.kind = kind;
  info.columns.heights = std::move(heights);
  return info;
}

constexpr double two_lines = 34;
constexpr double one_line = 17;

TEST(Columns, lines_that_exceed_the_height_go_to_the_next_column) {
  const geom_multitext text = decoded(u"a\\Pb\\Pc\\Pd", columns(0, {two_lines, two_lines}));
  EXPECT_EQ(columns_of(text), (texts{"a|b|", "c|d"}));
  EXPECT_EQ(text.columns[1].x, 25);
  EXPECT_EQ(text.columns[1].width, 20);
  EXPECT_EQ(text.parts[4].x, 25);
  EXPECT_DOUBLE_EQ(text.lines[2].y, -10);
  EXPECT_DOUBLE_EQ(text.columns[0].height, 100 / 3.0);
}

TEST(Columns, the_first_line_of_each_column_stays_even_if_it_alone_exceeds_the_height) {
  EXPECT_EQ(columns_of(decoded(u"a\\Pb\\Pc", columns(0, {1, 1, 1}))), (texts{"a|", "b|", "c"}));
}

TEST(Columns, of_kind_0_with_two_heights_never_open_a_third) {
  EXPECT_EQ(columns_of(decoded(u"a\\Pb\\Pc\\Pd", columns(0, {one_line, one_line}))), (texts{"a|", "b|c|d"}));
}

TEST(Columns, of_kind_0_read_the_first_height_for_every_column) {
  const convert_info info = columns(0, {two_lines, one_line, one_line});
  EXPECT_EQ(columns_of(decoded(u"a\\Pb\\Pc\\Pd\\Pe", info)), (texts{"a|b|", "c|d|", "e"}));
}

TEST(Columns, of_kind_1_have_a_height_each) {
  const convert_info info = columns(1, {two_lines, one_line, two_lines});
  EXPECT_EQ(columns_of(decoded(u"a\\Pb\\Pc\\Pd\\Pe", info)), (texts{"a|b|", "c|", "d|e"}));
}

TEST(Columns, of_kind_1_exist_up_to_the_first_height_of_0) {
  column_settings settings;
  settings.kind = 1;
  settings.heights = {5, 0, 5};
  const column_sequence sequence(settings);
  EXPECT_TRUE(sequence.exists(0));
  EXPECT_TRUE(sequence.exists(1));
  EXPECT_FALSE(sequence.exists(2));
}

TEST(Columns, of_kind_1_exist_one_beyond_the_heights) {
  column_settings settings;
  settings.kind = 1;
  settings.heights = {5};
  const column_sequence sequence(settings);
  EXPECT_TRUE(sequence.exists(1));
  EXPECT_EQ(sequence.height_limit(1), 0);
  EXPECT_FALSE(sequence.exists(2));
}

TEST(Columns, of_kind_1_always_have_a_first) {
  column_settings settings;
  settings.kind = 1;
  settings.heights = {0};
  EXPECT_TRUE(column_sequence(settings).exists(0));
  EXPECT_FALSE(column_sequence(settings).exists(1));
}

TEST(Columns, of_kind_2_go_on_without_end) {
  EXPECT_EQ(decoded(u"a\\Pb\\Pc\\Pd", columns(2, {one_line})).columns.size(), 4u);
}

TEST(Columns, of_an_unknown_kind_do_not_exist) {
  EXPECT_EQ(columns_of(decoded(u"a\\Pb", columns(9, {1}))), (texts{"a|b"}));
}

TEST(Columns, a_column_break_opens_the_next_column) {
  const geom_multitext text = decoded(u"a\\Nb", columns(0, {two_lines, two_lines}));
  EXPECT_EQ(columns_of(text), (texts{"a|", "b"}));
  EXPECT_EQ(text.parts[2].x, 25);
  EXPECT_DOUBLE_EQ(text.lines[1].y, -10);
}

TEST(Columns, a_column_break_in_the_last_column_has_no_effect) {
  EXPECT_EQ(columns_of(decoded(u"a\\Nb", columns(0, {two_lines}))), (texts{"a|b"}));
}

TEST(Columns, text_hangs_from_the_top_stands_in_the_middle_or_at_the_bottom) {
  convert_info info = columns(0, {100});
  const double height = 50 / 3.0;
  const double expected[] = {0, -(100 - height) * 0.5, -(100 - height)};
  for (std::uint32_t vertical : {0u, 1u, 2u}) {
    info.vertical = vertical;
    const geom_multitext text = decoded(u"a", info);
    EXPECT_DOUBLE_EQ(text.columns[0].y, expected[vertical]);
    EXPECT_DOUBLE_EQ(text.lines[0].y, expected[vertical] - 10);
    EXPECT_DOUBLE_EQ(text.parts[0].y, expected[vertical] - 10);
  }
}

TEST(Columns, without_a_set_height_the_bottom_of_the_text_stands_at_the_origin) {
  convert_info info = columns(0, {0});
  info.vertical = 2;
  EXPECT_DOUBLE_EQ(decoded(u"a", info).columns[0].y, 50 / 3.0);
}

TEST(Columns, the_empty_line_at_the_end_moves_with_its_column) {
  convert_info info = columns(0, {100});
  info.vertical = 2;
  const geom_multitext text = decoded(u"a\\P", info);
  EXPECT_DOUBLE_EQ(text.lines[1].y, text.lines[0].y - 50 / 3.0);
}

TEST(Columns, each_column_is_attached_by_its_own_height) {
  convert_info info = columns(0, {two_lines, two_lines});
  info.vertical = 2;
  const geom_multitext text = decoded(u"a\\Pb\\Pc\\P{\\H0.5x;d}", info);
  ASSERT_EQ(columns_of(text), (texts{"a|b|", "c|d"}));
  EXPECT_DOUBLE_EQ(text.columns[0].y, -(two_lines - 100 / 3.0));
  EXPECT_DOUBLE_EQ(text.columns[1].y, -(two_lines - 75 / 3.0));
}

TEST(Columns, a_line_that_moved_and_stayed_alone_is_measured_from_the_column_it_left) {
  const geom_multitext text = decoded(u"a\\Pb\\Pc", columns(0, {two_lines, two_lines}));
  EXPECT_DOUBLE_EQ(text.columns[1].height, 3 * 50 / 3.0);
}

}  // namespace
}  // namespace mtext
