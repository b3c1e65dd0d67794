#include "editor/gadgets/column_drags.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/editor/gadgets/laid_out.h"

using mtext::column_settings;

TEST(WidthSizer, of_one_column_sets_the_column_width) {
  const laid_out one(1, fixed_columns(1, 40, 3, 10), 5);
  const column_settings dragged = mtext::with_overall_width(*one.root, {31, 2});
  EXPECT_EQ(dragged.width, 31);
  EXPECT_EQ(dragged.gutter, 3);
  EXPECT_TRUE(one.named(u"dot").empty());
}

TEST(WidthSizer, of_two_columns_gives_the_change_to_the_gutter) {
  const laid_out two(2, fixed_columns(2, 10, 2, 10), 5);
  const column_settings dragged = mtext::with_overall_width(*two.root, {27, 2});
  EXPECT_EQ(dragged.width, 10);
  EXPECT_EQ(dragged.gutter, 7);
}

TEST(WidthSizer, dragged_below_the_width_of_the_columns_leaves_them_and_no_gutter) {
  const laid_out two(2, fixed_columns(2, 10, 2, 10), 5);
  const column_settings dragged = mtext::with_overall_width(*two.root, {15, 2});
  EXPECT_EQ(dragged.width, 10);
  EXPECT_EQ(dragged.gutter, 0);
}

TEST(WidthSizer, dragged_left_past_the_anchor_gives_the_text_height) {
  const laid_out one(1, fixed_columns(1, 40, 0, 10), 5);
  EXPECT_EQ(mtext::with_overall_width(*one.root, {-20, 2}).width, 2.5);
  EXPECT_EQ(mtext::with_overall_width(*one.root, {std::numeric_limits<double>::quiet_NaN(), 0}).width, 2.5);
}

TEST(WidthSizer, counts_double_from_the_centre_and_leftwards_from_the_right) {
  const laid_out centred(1, fixed_columns(1, 40, 0, 10), 5, 1);
  EXPECT_EQ(mtext::with_overall_width(*centred.root, {35, 2}).width, 30);
  const laid_out right(1, fixed_columns(1, 40, 0, 10), 5, 2);
  EXPECT_EQ(mtext::with_overall_width(*right.root, {-5, 2}).width, 45);
}

TEST(Dot, sets_the_column_width_and_leaves_the_gutter) {
  const laid_out two(2, fixed_columns(2, 10, 2, 10), 5);
  const column_settings dragged = mtext::with_column_width(*two.root, {17, 2});
  EXPECT_EQ(dragged.width, 17);
  EXPECT_EQ(dragged.gutter, 2);
}

TEST(HeightSizer, measures_from_the_anchor_with_middle_attachment_both_ways) {
  const laid_out top(1, fixed_columns(1, 40, 0, 10), 5, 0);
  EXPECT_EQ(mtext::height_from(*top.root, {0, -13}), 13);
  EXPECT_EQ(mtext::height_from(*top.root, {0, 13}), 0);
  const laid_out middle(1, fixed_columns(1, 40, 0, 10), 5, 3);
  EXPECT_EQ(mtext::height_from(*middle.root, {0, -12}), 14);
  const laid_out bottom(1, fixed_columns(1, 40, 0, 10), 5, 6);
  EXPECT_EQ(mtext::height_from(*bottom.root, {0, 3}), 13);
}

TEST(HeightSizer, of_fixed_columns_sets_the_height_of_all) {
  const laid_out two(2, fixed_columns(2, 10, 2, 10), 5);
  EXPECT_EQ(mtext::with_column_height(*two.root, 1, {0, -7}).heights, (std::vector<double>{7, 7}));
}

TEST(HeightSizer, of_a_manual_column_beyond_the_heights_leaves_the_missing_ones_at_0) {
  const laid_out six(6, {.width = 10, .gutter = 2, .kind = 1, .heights = {4, 5}}, 5);
  EXPECT_EQ(mtext::with_column_height(*six.root, 5, {0, -7}).heights,
            (std::vector<double>{4, 5, 0, 0, 0, 7}));
}

TEST(CornerGrip, sets_width_and_height_at_once) {
  const laid_out one(1, fixed_columns(1, 40, 0, 10), 5);
  const auto dragged = mtext::with_corner(*one.root, 0, 1, {33, -8});
  ASSERT_TRUE(dragged);
  EXPECT_EQ(dragged->width, 33);
  EXPECT_EQ(dragged->heights, std::vector<double>{8});
}

TEST(CornerGrip, shares_the_distance_among_the_columns_up_to_its_own) {
  const laid_out three(3, fixed_columns(3, 10, 2, 10), 5);
  EXPECT_EQ(mtext::with_corner(*three.root, 2, 1, {49, -8})->width, 15);
}

TEST(CornerGrip, of_the_middle_one_of_centred_columns_is_half_a_column_from_the_anchor) {
  const laid_out three(3, fixed_columns(3, 10, 2, 10), 5, 1);
  EXPECT_EQ(three.root->anchor.x, 17);
  EXPECT_EQ(mtext::with_corner(*three.root, 1, 1, {24, -8})->width, 14);
}

TEST(CornerGrip, that_is_nearer_than_0_3_columns_to_the_anchor_does_nothing) {
  const laid_out two(2, fixed_columns(2, 10, 2, 10), 5, 2);
  EXPECT_FALSE(mtext::with_corner(*two.root, 2, 2, {5, -8}));
}

TEST(CornerGrip, of_corner_3_moves_the_other_way_and_of_corner_2_does_not) {
  const laid_out right(1, fixed_columns(1, 40, 0, 10), 5, 2);
  EXPECT_EQ(mtext::with_corner(*right.root, 0, 3, {10, 8})->width, 30);
  EXPECT_EQ(mtext::with_corner(*right.root, 0, 2, {10, 8})->width, 2.5);
}

TEST(CornerGrip, never_goes_below_the_text_height_nor_0) {
  const laid_out one(1, fixed_columns(1, 40, 0, 10), 5);
  const auto dragged = mtext::with_corner(*one.root, 0, 1, {-3, 8});
  EXPECT_EQ(dragged->width, 2.5);
  EXPECT_EQ(dragged->heights, std::vector<double>{0});
}
