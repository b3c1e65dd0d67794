#include "editor/dead_zone.h"

#include <gtest/gtest.h>

using editing::dead_zone;
using editing::nudge_into_view;
using editing::pull_to_box;

TEST(DeadZone, a_caret_within_three_eighths_of_the_view_moves_nothing) {
  dead_zone zone;
  zone.follow(37.5, 100);
  EXPECT_EQ(zone.center(), 0);
  zone.follow(-37.5, 100);
  EXPECT_EQ(zone.center(), 0);
}

TEST(DeadZone, a_caret_beyond_it_pushes_the_zone_just_so_far) {
  dead_zone zone;
  zone.follow(40, 100);
  EXPECT_DOUBLE_EQ(zone.center(), 2.5);
  zone.follow(-40, 100);
  EXPECT_DOUBLE_EQ(zone.center(), -2.5);
}

TEST(DeadZone, a_box_that_reaches_beyond_both_ends_of_the_view_pulls_nothing) {
  EXPECT_EQ(pull_to_box(/*zone_center=*/50, /*box_center=*/50, /*box_size=*/200, /*view_size=*/100), 0);
}

TEST(DeadZone, a_zone_near_one_end_of_the_box_is_pulled_by_what_lies_beyond_the_other) {
  // The view around the box's middle reaches from 0 to 100, the box around the zone from -170.5 to 30.5.
  EXPECT_DOUBLE_EQ(pull_to_box(-70, 50, 200, 100), 100 - 30.5);
  EXPECT_DOUBLE_EQ(pull_to_box(170, 50, 200, 100), 0 - (170 - 100.5));
}

TEST(DeadZone, a_box_within_the_view_is_not_nudged) {
  EXPECT_EQ(nudge_into_view(/*box_center=*/50, /*half_box=*/20, /*view_size=*/100), 0);
}

TEST(DeadZone, a_box_beyond_an_edge_is_nudged_in_with_a_margin) {
  EXPECT_DOUBLE_EQ(nudge_into_view(95, 20, 100), -15.5);
  EXPECT_DOUBLE_EQ(nudge_into_view(10, 20, 100), 10.5);
}
