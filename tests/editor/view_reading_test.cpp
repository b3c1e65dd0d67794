#include "editor/view_reading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr double degree = std::numbers::pi / 180;

/// 800 by 600 pixels, ten pixels to a drawing unit, seen from `position`.
OdGsView view_from(const OdGePoint3d& position, const OdGeVector3d& up = OdGeVector3d::kYAxis) {
  OdGsView view;
  view.setDeviceRect({0, 0, 800, 600});
  view.setView(position, {0, 0, 0}, up, 80, 60);
  return view;
}

text_frame turned_by(double radians) {
  text_frame frame;
  frame.direction = OdGeVector3d::kXAxis.rotatedBy(radians, frame.normal);
  return frame;
}

editing::view_reading read(const OdGsView& view, const text_frame& frame, double height) {
  return editing::read_view(view, OdGeVector3d::kYAxis, frame, height);
}

}  // namespace

TEST(ViewReading, an_upright_text_of_thirteen_pixels_is_readable_and_needs_no_magnification) {
  const auto reading = read(view_from({0, 0, 1}), {}, 1.3);
  EXPECT_TRUE(reading.readable());
  EXPECT_DOUBLE_EQ(reading.magnification, 1);
  EXPECT_EQ(reading.caret_pixels, 13);
}

TEST(ViewReading, a_turn_of_27_degrees_is_readable_and_more_is_not) {
  EXPECT_FALSE(read(view_from({0, 0, 1}), turned_by(26.9 * degree), 2).turned);
  EXPECT_TRUE(read(view_from({0, 0, 1}), turned_by(27.1 * degree), 2).turned);
  EXPECT_FALSE(read(view_from({0, 0, 1}), turned_by(-26.9 * degree), 2).turned);
  EXPECT_TRUE(read(view_from({0, 0, 1}), turned_by(180 * degree), 2).turned);
}

TEST(ViewReading, a_view_that_was_turned_by_more_than_45_degrees_since_the_start_turns_the_text) {
  const OdGeVector3d up = OdGeVector3d::kYAxis.rotatedBy(46 * degree, OdGeVector3d::kZAxis);
  EXPECT_TRUE(read(view_from({0, 0, 1}, up), {}, 2).turned);
}

TEST(ViewReading, a_view_along_the_text_s_plane_shows_nothing_readable) {
  EXPECT_TRUE(read(view_from({0, -1, 0}, OdGeVector3d::kZAxis), {}, 2).turned);
}

TEST(ViewReading, lines_below_a_tenth_under_thirteen_pixels_are_too_small) {
  EXPECT_FALSE(read(view_from({0, 0, 1}), {}, 1.19).too_small());
  EXPECT_TRUE(read(view_from({0, 0, 1}), {}, 1.18).too_small());
}

TEST(ViewReading, lines_higher_than_half_the_view_are_too_big) {
  EXPECT_FALSE(read(view_from({0, 0, 1}), {}, 29.9).too_big());
  EXPECT_TRUE(read(view_from({0, 0, 1}), {}, 30.1).too_big());
}

TEST(ViewReading, the_wanted_height_grows_only_in_a_view_of_next_to_no_pixels) {
  OdGsView view = view_from({0, 0, 1});
  view.setDeviceRect({0, 0, 1e-4, 1e-4});
  EXPECT_NEAR(read(view, {}, 1).caret_pixels, 0.005 / (1e-4 * std::sqrt(2.0)), 1e-9);
}
