#include <gtest/gtest.h>

#include "micui/circle.h"
#include "micui/hit_path.h"
#include "micui/mixin.h"
#include "micui/resizer.h"
#include "micui/rhomb.h"
#include "micui/sizer.h"
#include "micui/triangle.h"
#include "tests/micui/canvas.h"

TEST(Frame, fills_below_its_outline) {
  EXPECT_EQ(canvas(1).drawn(*painted<micui::frame>(3, -2)),
            "polygon (0,0) (3,0) (3,-2) (0,-2) rgb 255,0,0\n"
            "polyline (0,0) (3,0) (3,-2) (0,-2) (0,0) rgb 0,0,255\n");
}

TEST(Frame, without_colours_draws_nothing_and_is_hit_all_the_same) {
  const auto edge = odNew<micui::frame>();
  edge->name = u"height edge";
  edge->width = edge->height = 5;
  EXPECT_EQ(canvas(1).drawn(*edge), "");
  EXPECT_EQ(micui::hit_path(*edge, {2, 2}).size(), 1u);
}

TEST(Polygon, looks_like_a_frame) {
  EXPECT_EQ(canvas(1).drawn(*painted<micui::polygon>(3, 2)), canvas(1).drawn(*painted<micui::frame>(3, 2)));
}

namespace {

/// The outline of a triangle of 6 by 4.
std::string triangle_to(std::uint64_t direction) {
  const auto made = painted<micui::triangle>(6, 4);
  made->direction = direction;
  made->fill_color = micui::no_color();
  made->border_color = OdCmEntityColor::fromIndex(1);
  return canvas(1).drawn(*made);
}

}  // namespace

TEST(Triangle, has_its_tip_where_its_direction_points_and_keeps_its_box) {
  EXPECT_EQ(triangle_to(0), "polyline (6,2) (0,4) (0,0) (6,2) color 1\n");
  EXPECT_EQ(triangle_to(1), "polyline (3,4) (0,0) (6,0) (3,4) color 1\n");
  EXPECT_EQ(triangle_to(2), "polyline (0,2) (6,0) (6,4) (0,2) color 1\n");
  EXPECT_EQ(triangle_to(3), "polyline (3,0) (6,4) (0,4) (3,0) color 1\n");
}

TEST(Triangle, of_direction_4_is_one_of_direction_0) { EXPECT_EQ(triangle_to(4), triangle_to(0)); }

TEST(Circle, stands_in_the_middle_of_its_box_and_touches_the_nearer_sides) {
  EXPECT_EQ(canvas(1).drawn(*painted<micui::circle>(5, 10)),
            "circle (2.5,5) r 2.5 filled rgb 255,0,0\n"
            "circle (2.5,5) r 2.5 rgb 0,0,255\n");
}

TEST(Rhomb, that_is_vertical_has_its_first_arrow_above_with_the_tip_at_the_top) {
  const auto arrows = painted<micui::rhomb>(6, 8);
  arrows->vertical = true;
  arrows->border_color = micui::no_color();
  arrows->layout();
  EXPECT_EQ(canvas(1).drawn(*arrows),
            "polygon (3,8) (0,4) (6,4) rgb 255,0,0\n"
            "polygon (3,0) (6,4) (0,4) rgb 255,0,0\n");
  EXPECT_EQ(arrows->child<micui::triangle>(u"first")->y, 4);
}

TEST(Rhomb, that_is_not_vertical_points_left_and_right) {
  const auto arrows = painted<micui::rhomb>(8, 6);
  arrows->border_color = micui::no_color();
  arrows->layout();
  EXPECT_EQ(canvas(1).drawn(*arrows),
            "polygon (0,3) (4,0) (4,6) rgb 255,0,0\n"
            "polygon (8,3) (4,6) (4,0) rgb 255,0,0\n");
}

TEST(Sizer, is_a_triangle_hatched_by_two_smaller_ones) {
  const auto grip = painted<micui::sizer>(6, 6);
  grip->corner = 1;
  EXPECT_EQ(canvas(1).drawn(*grip),
            "polygon (6,6) (6,0) (0,0) rgb 255,0,0\n"
            "polyline (6,6) (6,0) (0,0) (6,6) rgb 0,0,255\n"
            "polyline (6,4) (6,0) (2,0) (6,4) rgb 0,0,255\n"
            "polyline (6,2) (6,0) (4,0) (6,2) rgb 0,0,255\n");
}

TEST(Sizer, with_a_negative_height_keeps_the_meaning_of_its_corner) {
  const auto grip = painted<micui::sizer>(6, -6);
  grip->border_color = micui::no_color();
  const char* const at_corner[] = {
      "polygon (0,0) (6,0) (6,-6) rgb 255,0,0\n", "polygon (6,0) (6,-6) (0,-6) rgb 255,0,0\n",
      "polygon (6,-6) (0,-6) (0,0) rgb 255,0,0\n", "polygon (0,-6) (0,0) (6,0) rgb 255,0,0\n"};
  for (std::uint32_t corner = 0; corner < 8; ++corner) {
    grip->corner = corner;
    EXPECT_EQ(canvas(1).drawn(*grip), at_corner[corner % 4]) << "corner " << corner;
  }
}

TEST(Mixin, is_the_shape_and_something_that_can_be_dragged) {
  using handle = micui::mixin<micui::sizer, mtext::resizer>;
  const auto root = odNew<micui::control>();
  root->add_child<handle>(u"sizer")->cursor = mtext::resizer::kNorthwestSoutheast;
  const auto* found = dynamic_cast<const mtext::resizer*>(root->children.front().get());
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->cursor, 2u);
}
