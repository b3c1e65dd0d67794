#include "od/gi/OdGiGeometry.h"

#include <gtest/gtest.h>

#include <limits>

#include "od/base/OdError.h"
#include "od/gi/OdGiRecorder.h"

TEST(OdGiGeometry, hands_a_polyline_to_the_device_as_it_is) {
  OdGiRecorder pen;
  pen.polyline({{0, 0, 0}, {2, 0, 0}, {2, 3, 1.5}});
  EXPECT_EQ(pen.describe(), "polyline (0,0) (2,0) (2,3,1.5)\n");
}

TEST(OdGiGeometry, fills_a_polygon_only_where_the_fill_type_asks_for_it) {
  OdGiRecorder pen;
  pen.polygon({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
  pen.traits().setFillType(kOdGiFillAlways);
  pen.polygon({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 0}});
  EXPECT_EQ(pen.describe(),
            "polyline (0,0) (1,0) (0,1) (0,0)\n"
            "polygon (0,0) (1,0) (0,1)\n");
}

TEST(OdGiGeometry, hands_on_several_contours_as_one_polygon) {
  OdGiRecorder pen;
  pen.traits().setFillType(kOdGiFillAlways);
  std::vector<OdGiContour> ring{{{0, 0, 0}, {9, 0, 0}, {0, 9, 0}}, {{1, 1, 0}, {1, 2, 0}, {2, 1, 0}}};
  pen.polyPolygon(ring);
  EXPECT_EQ(pen.describe(), "polygon (0,0) (9,0) (0,9) | (1,1) (1,2) (2,1)\n");
}

TEST(OdGiGeometry, draws_through_the_pushed_transforms_the_last_first) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::translation({10, 0, 0}));
  pen.pushModelTransform(OdGeMatrix3d::scaling(2));
  pen.polyline({{1, 1, 0}, {2, 2, 0}});
  pen.popModelTransform();
  pen.polyline({{1, 1, 0}, {2, 2, 0}});
  pen.popModelTransform();
  pen.polyline({{1, 1, 0}, {2, 2, 0}});
  EXPECT_EQ(pen.describe(),
            "polyline (12,2) (14,4)\n"
            "polyline (11,1) (12,2)\n"
            "polyline (1,1) (2,2)\n");
}

TEST(OdGiGeometry, tells_the_ways_between_model_and_world) {
  OdGiRecorder pen;
  OdGeMatrix3d there = OdGeMatrix3d::rotation(0.5, {0, 0, 1}, {1, 2, 0});
  pen.pushModelTransform(there);
  EXPECT_TRUE(pen.getModelToWorldTransform().isEqualTo(there));
  EXPECT_TRUE(pen.getWorldToModelTransform().isEqualTo(there.inverse()));
}

TEST(OdGiGeometry, a_pop_without_push_throws) {
  OdGiRecorder pen;
  EXPECT_THROW(pen.popModelTransform(), OdError);
}

TEST(OdGiGeometry, a_circle_stays_one_while_it_is_round) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::translation({5, 0, 0}) * OdGeMatrix3d::scaling(3));
  pen.circle({1, 1, 0}, 2, {0, 0, 1});
  EXPECT_EQ(pen.describe(), "circle (8,3) r 6\n");
}

TEST(OdGiGeometry, a_filled_circle_says_so) {
  OdGiRecorder pen;
  pen.traits().setFillType(kOdGiFillAlways);
  pen.circle({0, 0, 0}, 1, {0, 0, 1});
  EXPECT_EQ(pen.describe(), "circle (0,0) r 1 filled\n");
}

TEST(OdGiGeometry, a_squeezed_circle_becomes_a_closed_polyline_near_the_ellipse) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::scaling(2, 1, 1));
  pen.circle({0, 0, 0}, 1, {0, 0, 1});

  ASSERT_EQ(pen.primitives().size(), 1u);
  const OdGiPrimitive& ellipse = pen.primitives()[0];
  EXPECT_EQ(ellipse.kind, OdGiPrimitive::kPolyline);
  const OdGiContour& points = ellipse.contours[0];
  EXPECT_EQ(points.front(), points.back());
  for (std::size_t i = 1; i < points.size(); ++i) {
    auto level = [](const OdGePoint3d& p) { return p.x * p.x / 4 + p.y * p.y; };
    EXPECT_NEAR(level(points[i]), 1, 1e-9);
    EXPECT_GT(level(points[i - 1] + (points[i] - points[i - 1]) * 0.5), 0.99);
  }
}

TEST(OdGiGeometry, a_squeezed_circle_that_is_filled_becomes_a_polygon) {
  OdGiRecorder pen;
  pen.traits().setFillType(kOdGiFillAlways);
  pen.pushModelTransform(OdGeMatrix3d::scaling(2, 1, 1));
  pen.circle({0, 0, 0}, 1, {0, 0, 1});
  EXPECT_EQ(pen.count(OdGiPrimitive::kPolygon), 1);
}

TEST(OdGiGeometry, an_arc_starts_in_its_direction_and_sweeps_about_its_normal) {
  OdGiRecorder pen;
  pen.circularArc({1, 0, 0}, 2, {0, 0, 1}, {0, 5, 0}, M_PI / 2);
  EXPECT_EQ(pen.describe(), "arc (1,0) r 2 from (0,2) sweep 1.5708\n");
}

TEST(OdGiGeometry, a_mirrored_arc_turns_its_normal_and_keeps_its_sweep) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::scaling(-1, 1, 1));
  pen.circularArc({1, 0, 0}, 2, {0, 0, 1}, {1, 0, 0}, 1);
  EXPECT_EQ(pen.describe(), "arc (-1,0) r 2 normal (0,0,-1) from (-2,0) sweep 1\n");
}

TEST(OdGiGeometry, a_squeezed_arc_becomes_an_open_polyline_with_its_two_ends) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::scaling(3, 1, 1));
  pen.circularArc({0, 0, 0}, 1, {0, 0, 1}, {1, 0, 0}, M_PI / 2);
  ASSERT_EQ(pen.count(OdGiPrimitive::kPolyline), 1);
  const OdGiContour& points = pen.primitives()[0].contours[0];
  EXPECT_TRUE(points.front().isEqualTo({3, 0, 0}));
  EXPECT_TRUE(points.back().isEqualTo({0, 1, 0}));
}

TEST(OdGiGeometry, what_lies_at_no_finite_place_is_not_drawn) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  OdGiRecorder pen;
  pen.polyline({{0, 0, 0}, {kInfinite, 0, 0}});
  pen.polygon({{0, 0, 0}, {1, 0, 0}, {0, kNone, 0}});
  pen.circle({0, 0, 0}, 1e308, {0, 0, 1});
  pen.circle({kNone, 0, 0}, 1, {0, 0, 1});
  pen.circularArc({0, 0, 0}, 1, {0, 0, 1}, {1, 0, 0}, kInfinite);
  pen.pushModelTransform(OdGeMatrix3d::scaling(1e300));
  pen.circle({0, 0, 0}, 1e300, {0, 0, 1});
  pen.popModelTransform();
  EXPECT_EQ(pen.describe(), "");
}

TEST(OdGiGeometry, a_circle_in_a_block_of_no_size_is_drawn_as_a_point_without_harm) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::scaling(0));
  pen.circle({5, 5, 0}, 2, {0, 0, 1});
  pen.popModelTransform();
  EXPECT_EQ(pen.primitives().size(), 1u);
}
