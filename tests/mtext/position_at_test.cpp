#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

TEST(PositionAt, a_text_with_no_parts_gives_its_only_position) {
  const text_hit hit = decoded(u"").position_at(3, -4);
  EXPECT_EQ(hit.at, 0u);
  EXPECT_EQ(hit.line, text_hit::no_line);
  EXPECT_EQ(hit.column, 1u);
  EXPECT_TRUE(hit.outside);
}

TEST(PositionAt, before_the_first_layout_every_point_is_outside) {
  const text_hit hit = geom_multitext().position_at(0, 0);
  EXPECT_EQ(hit.at, 0u);
  EXPECT_EQ(hit.column, 0u);
  EXPECT_TRUE(hit.outside);
}

TEST(PositionAt, the_right_half_of_a_character_gives_the_position_behind_it) {
  const geom_multitext text = decoded(u"ab");
  EXPECT_EQ(text.position_at(7, -5).at, 1u);
  EXPECT_EQ(text.position_at(9, -5).at, 1u);
  EXPECT_EQ(text.position_at(10, -5).at, 2u);
}

TEST(PositionAt, on_the_paragraph_end_it_is_its_own_position) {
  const geom_multitext text = decoded(u"ab\\Pcd");
  EXPECT_EQ(text.position_at(15, -5).at, 2u);
}

TEST(PositionAt, to_the_right_of_a_line_with_a_terminator_it_is_the_start_of_the_next) {
  EXPECT_EQ(decoded(u"ab\\Pcd").position_at(100, -5).at, 3u);
}

TEST(PositionAt, a_point_in_the_line_is_inside) { EXPECT_FALSE(decoded(u"ab").position_at(5, -5).outside); }

TEST(PositionAt, a_point_above_below_or_beside_the_line_is_outside) {
  const geom_multitext text = decoded(u"ab");
  EXPECT_TRUE(text.position_at(5, 1).outside);
  EXPECT_TRUE(text.position_at(5, -20).outside);
  EXPECT_TRUE(text.position_at(-1, -5).outside);
  EXPECT_TRUE(text.position_at(13, -5).outside);
}

TEST(PositionAt, the_width_of_the_column_counts_as_inside) {
  EXPECT_FALSE(decoded(u"ab", frame(50)).position_at(40, -5).outside);
}

TEST(PositionAt, of_equally_near_lines_the_later_wins) {
  const geom_multitext text = decoded(u"ab\\Pcd");
  const double border = text.lines[1].y + text.lines[1].size.above;
  EXPECT_EQ(text.position_at(0, border).line, 1u);
}

TEST(PositionAt, takes_the_line_of_the_nearest_column) {
  convert_info info = frame(12);
  info.columns.gutter = 10;
  info.columns.heights = {16.7, 16.7};
  const geom_multitext text = decoded(u"ab cd", info);
  ASSERT_EQ(columns_of(text), (texts{"ab ", "cd"}));
  EXPECT_EQ(text.position_at(16, -5).line, 0u);
  EXPECT_EQ(text.position_at(18, -5).line, 1u);
  EXPECT_EQ(text.position_at(23, -5).at, 3u);
  EXPECT_EQ(text.position_at(23, -5).column, 1u);
}

TEST(PositionAt, behind_a_terminator_at_the_end_of_the_text_it_is_in_the_empty_line) {
  const text_hit hit = decoded(u"ab\\P").position_at(0, -25);
  EXPECT_EQ(hit.line, 1u);
  EXPECT_EQ(hit.at, 3u);
  EXPECT_EQ(hit.column, 1u);
}

}  // namespace
}  // namespace mtext
