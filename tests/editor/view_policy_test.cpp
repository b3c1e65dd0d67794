#include "editor/view_policy.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using outcome = view_policy::outcome;

/// A text of five by two units at a place of a view of 80 by 60 units and 800 by 600 pixels.
struct placed_text {
  OdGsView view;
  editing::shown_text text;
  view_policy policy;

  placed_text() {
    view.setDeviceRect({0, 0, 800, 600});
    view.setView({0, 0, 1}, {0, 0, 0}, OdGeVector3d::kYAxis, 80, 60);
    sized(2);
  }

  /// A line of five letters, as high as told, with the caret behind it.
  void sized(double height) {
    text.height = height;
    text.extents = OdGeExtents3d();
    text.extents.addPoint({0, 0, 0});
    text.extents.addPoint({2.5 * height, -height, 0});
    text.caret_top = {2.5 * height, 0};
    text.caret_bottom = {2.5 * height, -height};
  }

  void turn(double radians, const OdGeVector3d& axis = OdGeVector3d::kZAxis) {
    text.frame.direction = text.frame.direction.rotatedBy(radians, axis);
    text.frame.normal = text.frame.normal.rotatedBy(radians, axis);
  }

  /// Where a point of the text is seen, in pixels.
  OdGePoint2d seen(double x, double y) const {
    return view.toDevice(policy.edit_transform() * (text.frame.text_to_world() * OdGePoint3d{x, y, 0}));
  }

  outcome changed(bool turn_text) { return policy.text_changed(view, text, turn_text); }
  void begin() { policy.begin(view); }
};

}  // namespace

TEST(ViewPolicy, a_readable_text_with_its_caret_in_sight_is_left_as_it_lies) {
  placed_text placed;
  placed.begin();
  EXPECT_EQ(placed.changed(true), outcome::kLeft);
  EXPECT_EQ(placed.changed(false), outcome::kLeft);
  EXPECT_FALSE(placed.policy.is_facing());
}

TEST(ViewPolicy, text_rotated_90_degrees_reads_horizontally_on_screen) {
  placed_text placed;
  placed.turn(std::numbers::pi / 2);
  placed.begin();
  EXPECT_EQ(placed.changed(true), outcome::kTextFacing);
  const OdGePoint2d start = placed.seen(0, 0), end = placed.seen(5, 0);
  EXPECT_NEAR(start.y, end.y, 1e-9);
  EXPECT_GT(end.x, start.x);
}

TEST(ViewPolicy, a_facing_line_is_thirteen_pixels_high) {
  for (const double height : {0.001, 0.02, 1000.0, 1e6}) {
    placed_text placed;
    placed.sized(height);
    placed.begin();
    EXPECT_EQ(placed.changed(true), outcome::kTextFacing) << height;
    EXPECT_NEAR(placed.seen(0, -height).y - placed.seen(0, 0).y, 13, 1e-6) << height;
  }
}

TEST(ViewPolicy, a_facing_text_has_its_caret_in_sight) {
  placed_text placed;
  placed.text.frame.location = {300, -200, 0};
  placed.turn(1);
  placed.begin();
  placed.changed(true);
  const OdGePoint2d caret = placed.seen(5, -1);
  EXPECT_TRUE(placed.view.deviceRect().contains(caret)) << caret.x << ' ' << caret.y;
}

TEST(ViewPolicy, a_facing_text_moves_no_further_into_the_view_than_its_tools_reach) {
  placed_text placed;
  placed.sized(0.2);
  placed.text.frame.location = {39.9, 0, 0};
  placed.text.tools = [](double pixel) { return OdGeExtents3d({0, 0, 0}, {0.5 + 30 * pixel, 0, 0}); };
  placed.turn(std::numbers::pi);
  placed.begin();
  ASSERT_EQ(placed.changed(true), outcome::kTextFacing);
  EXPECT_NEAR(placed.seen(0.5, 0).x + 30, 796, 1e-9) << "with a margin of 0.5 % of the view";
}

TEST(ViewPolicy, the_insertion_point_of_a_facing_text_in_sight_stays_where_it_is) {
  for (int attachment = 0; attachment < 9; ++attachment) {
    placed_text placed;
    placed.text.frame.attachment = attachment;
    placed.text.frame.width = 10;
    placed.text.frame.height = 6;
    placed.text.frame.location = {1, 2, 0};
    placed.turn(std::numbers::pi);
    placed.begin();
    ASSERT_EQ(placed.changed(true), outcome::kTextFacing);
    const OdGePoint3d moved = placed.policy.edit_transform() * placed.text.frame.location;
    EXPECT_TRUE(moved.isEqualTo(placed.text.frame.location)) << attachment;
  }
}

TEST(ViewPolicy, once_it_has_acted_it_acts_at_each_change) {
  placed_text placed;
  placed.turn(1);
  placed.begin();
  EXPECT_EQ(placed.changed(true), outcome::kTextFacing);
  placed.turn(-1);
  EXPECT_EQ(placed.changed(true), outcome::kTextFacing);
}

TEST(ViewPolicy, zooming_out_leaves_the_text_where_it_is_until_the_next_change) {
  placed_text placed;
  placed.begin();
  EXPECT_EQ(placed.changed(true), outcome::kLeft);
  placed.view.setView({0, 0, 1}, {0, 0, 0}, OdGeVector3d::kYAxis, 800, 600);
  EXPECT_EQ(placed.policy.edit_transform(), OdGeMatrix3d());
  EXPECT_EQ(placed.changed(true), outcome::kTextFacing);
}

TEST(ViewPolicy, a_moved_view_looks_straight_on_a_tilted_text_upright) {
  placed_text placed;
  placed.turn(2, OdGeVector3d{1, 1, 0}.normal());
  placed.text.frame.location = {50, 20, 7};
  placed.begin();
  EXPECT_EQ(placed.changed(false), outcome::kViewMoved);
  EXPECT_TRUE(placed.view.viewDir().isEqualTo(placed.text.frame.normal));
  EXPECT_TRUE(placed.view.upVector().isEqualTo(placed.text.frame.up()));
  EXPECT_NEAR(placed.seen(0, -2).y - placed.seen(0, 0).y, 13, 1e-6);
  EXPECT_EQ(placed.policy.edit_transform(), OdGeMatrix3d());
}

TEST(ViewPolicy, a_moved_view_shows_a_small_text_in_its_middle) {
  placed_text placed;
  placed.text.frame.location = {500, 300, 0};
  placed.begin();
  EXPECT_EQ(placed.changed(false), outcome::kViewMoved);
  const OdGePoint2d middle = placed.seen(2.5, -1);
  EXPECT_NEAR(middle.x, 400, 1e-6);
  EXPECT_NEAR(middle.y, 300, 1e-6);
}

TEST(ViewPolicy, a_moved_view_follows_the_caret_through_a_text_wider_than_the_view) {
  placed_text placed;
  placed.text.extents.addPoint({5000, -2, 0});
  placed.begin();
  placed.text.frame.location = {-4000, 0, 0};
  for (const double x : {0.0, 1000.0, 4990.0, 2000.0}) {
    placed.text.caret_top = {x, 0};
    placed.text.caret_bottom = {x, -2};
    ASSERT_EQ(placed.changed(false), outcome::kViewMoved);
    EXPECT_TRUE(placed.view.deviceRect().contains(placed.seen(x, -1))) << x;
  }
}

TEST(ViewPolicy, a_view_along_the_text_s_plane_turns_to_it_or_turns_the_text) {
  for (const bool turn_text : {true, false}) {
    placed_text placed;
    placed.view.setView({0, -1, 0}, {0, 0, 0}, OdGeVector3d::kZAxis, 80, 60);
    placed.begin();
    EXPECT_NE(placed.changed(turn_text), outcome::kLeft);
    EXPECT_NEAR(placed.seen(0, -2).y - placed.seen(0, 0).y, 13, 1e-6);
  }
}

TEST(ViewPolicy, a_text_without_a_height_is_left_alone) {
  placed_text placed;
  placed.sized(0);
  placed.begin();
  EXPECT_EQ(placed.changed(true), outcome::kLeft);
}
