#include <gtest/gtest.h>

#include <numbers>

#include "micui/frame.h"
#include "tests/micui/canvas.h"

TEST(DrawTree, draws_a_control_before_its_children_in_their_order) {
  const auto root = painted<micui::frame>(4, 4);
  root->border_color = micui::no_color();
  for (const int x : {1, 2}) {
    const auto child = root->add_child<micui::frame>(u"child");
    child->x = x;
    child->width = child->height = 1;
    child->fill_color = blue;
  }
  EXPECT_EQ(canvas(1).drawn(*root),
            "polygon (0,0) (4,0) (4,4) (0,4) rgb 255,0,0\n"
            "polygon (1,0) (2,0) (2,1) (1,1) rgb 0,0,255\n"
            "polygon (2,0) (3,0) (3,1) (2,1) rgb 0,0,255\n");
}

TEST(DrawTree, places_children_in_the_turned_coordinates_of_their_parent) {
  const auto root = odNew<micui::control>();
  root->x = 10;
  root->rotation = std::numbers::pi / 2;
  {
    const auto child = root->add_child<micui::frame>(u"child");
    child->x = 2;
    child->width = 3;
    child->height = 1;
    child->border_color = red;
  }
  EXPECT_EQ(canvas(1).drawn(*root), "polyline (10,2) (10,5) (9,5) (9,2) (10,2) rgb 255,0,0\n");
}

TEST(DrawTree, draws_nothing_of_what_is_not_visible_nor_below_it) {
  const auto root = painted<micui::frame>(4, 4);
  root->visible = false;
  root->add_child<micui::frame>(u"child")->fill_color = blue;
  EXPECT_EQ(canvas(1).drawn(*root), "");
}

TEST(DrawTree, leaves_no_transform_behind) {
  const auto root = painted<micui::frame>(4, 4);
  root->x = 5;
  canvas view(1);
  view.drawn(*root);
  EXPECT_EQ(view.pen.getModelToWorldTransform(), OdGeMatrix3d::kIdentity);
}

TEST(DrawTree, is_what_a_view_draws_of_the_drawable) {
  const auto root = painted<micui::frame>(4, 4);
  root->fill_color = micui::no_color();
  canvas view(1);
  view.pen.record(*root, view.context, &view.view);
  EXPECT_EQ(view.pen.count(OdGiPrimitive::kPolyline), 1);
}
