#include "od/fonts/flatten_curve.h"

#include <gtest/gtest.h>

TEST(FlattenCurve, an_arc_ends_at_its_end_and_strays_no_further_than_the_tolerance) {
  OdFontLine line{{10, 0}};
  odFlattenArc(line, {0, 0}, 10, 0, M_PI / 2, 0.01);

  EXPECT_NEAR(line.back().x, 0, 1e-9);
  EXPECT_NEAR(line.back().y, 10, 1e-9);
  for (std::size_t i = 1; i < line.size(); ++i) {
    OdGePoint2d middle = line[i - 1] + (line[i] - line[i - 1]) * 0.5;
    EXPECT_LE(10 - middle.distanceTo({0, 0}), 0.01 + 1e-12);
  }
}

TEST(FlattenCurve, a_quadratic_passes_through_its_quarter_points) {
  OdFontLine line{{0, 0}};
  odFlattenQuadratic(line, {1, 2}, {2, 0}, 0.001);
  // The curve is y = 2x - x^2, so each point can be checked.
  ASSERT_GT(line.size(), 8u);
  for (const OdGePoint2d& p : line) EXPECT_NEAR(p.y, 2 * p.x - p.x * p.x, 1e-12);
  EXPECT_EQ(line.back(), (OdGePoint2d{2, 0}));
}

TEST(FlattenCurve, a_cubic_that_is_a_raised_quadratic_gives_the_same_curve) {
  OdFontLine line{{0, 0}};
  odFlattenCubic(line, {2.0 / 3, 4.0 / 3}, {4.0 / 3, 4.0 / 3}, {2, 0}, 0.001);
  for (const OdGePoint2d& p : line) EXPECT_NEAR(p.y, 2 * p.x - p.x * p.x, 1e-9);
}

TEST(FlattenCurve, a_straight_curve_is_one_piece) {
  OdFontLine line{{0, 0}};
  odFlattenQuadratic(line, {1, 1}, {2, 2}, 0.001);
  EXPECT_EQ(line.size(), 2u);
}

TEST(FlattenCurve, a_bulge_of_one_is_a_half_circle_to_the_right_of_its_chord) {
  OdFontLine line{{0, 0}};
  odFlattenBulge(line, {0, 0}, {2, 0}, 1, 0.001);
  double lowest = 0;
  for (const OdGePoint2d& p : line) {
    EXPECT_NEAR(p.distanceTo({1, 0}), 1, 1e-9);
    lowest = std::min(lowest, p.y);
  }
  EXPECT_NEAR(lowest, -1, 0.001);
}

TEST(FlattenCurve, a_bulge_beyond_one_is_more_than_a_half_circle) {
  OdFontLine line{{0, 0}};
  odFlattenBulge(line, {0, 0}, {2, 0}, 3, 0.001);
  double lowest = 0;
  for (const OdGePoint2d& p : line) lowest = std::min(lowest, p.y);
  EXPECT_NEAR(lowest, -3, 0.01) << "the arc's height over half its chord is the bulge";
}
