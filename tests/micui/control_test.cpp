#include "micui/control.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>

#include "micui/transform.h"

using micui::control;
using micui::extents;

namespace {

OdSmartPtr<control> box(double width, double height) {
  const OdSmartPtr<control> made = odNew<control>();
  made->width = width;
  made->height = height;
  return made;
}

}  // namespace

TEST(Control, of_no_size_contains_its_origin) {
  EXPECT_TRUE(box(0, 0)->contains({0, 0}));
  EXPECT_FALSE(box(0, 0)->contains({1e-9, 0}));
}

TEST(Control, with_a_negative_height_reaches_from_there_to_0) {
  EXPECT_TRUE(box(10, -5)->contains({3, -4}));
  EXPECT_TRUE(box(10, -5)->contains({3, -5}));
  EXPECT_FALSE(box(10, -5)->contains({3, 1}));
  EXPECT_FALSE(box(10, -5)->contains({3, -6}));
}

TEST(Control, contains_what_lies_a_hair_beyond_its_edge) {
  EXPECT_TRUE(box(10, 5)->contains({10 + 1e-12, 5 + 1e-12}));
  EXPECT_FALSE(box(10, 5)->contains({10 + 1e-10, 5}));
  EXPECT_FALSE(box(10, 5)->contains({-1e-300, 5})) << "beside 0 there is no slack";
}

TEST(Control, contains_nothing_that_is_no_number) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(box(10, 5)->contains({nan, 1}));
  EXPECT_FALSE(box(10, 5)->contains({1, nan}));
  EXPECT_FALSE(box(nan, 5)->contains({0, 1}));
  EXPECT_FALSE(box(10, nan)->contains({1, 0}));
  EXPECT_FALSE(box(10, 5)->contains({std::numeric_limits<double>::infinity(), 1}));
}

TEST(Control, begins_without_colours_and_shown_at_scale_1) {
  const auto made = odNew<control>();
  EXPECT_EQ(made->scale, 1.0);
  EXPECT_TRUE(made->visible);
  EXPECT_TRUE(micui::is_none(made->border_color));
  EXPECT_TRUE(micui::is_none(made->fill_color));
}

TEST(Control, a_colour_is_none_by_its_method_or_by_index_257) {
  EXPECT_TRUE(micui::is_none(OdCmEntityColor(OdCmEntityColor::kNone)));
  EXPECT_TRUE(micui::is_none(OdCmEntityColor::fromRaw(0xC3000101)));
  EXPECT_FALSE(micui::is_none(OdCmEntityColor::fromIndex(7)));
  EXPECT_FALSE(micui::is_none(OdCmEntityColor(0, 1, 1)));
}

TEST(Control, is_a_drawable_that_each_view_draws_on_its_own) {
  const auto made = odNew<control>();
  OdGiDrawable& drawable = *made;
  EXPECT_FALSE(drawable.isPersistent());
  EXPECT_EQ(drawable.gsNode(), nullptr);
  OdGsCache node;
  drawable.setGsNode(&node);
  EXPECT_EQ(drawable.gsNode(), &node);
}

TEST(Control, coordinates_go_into_a_turned_control_and_back) {
  const auto made = box(10, 5);
  made->x = 3;
  made->y = 4;
  made->rotation = std::numbers::pi / 2;
  const OdGePoint2d local = micui::to_local(*made, {2, 6});
  EXPECT_NEAR(local.x, 2, 1e-12);
  EXPECT_NEAR(local.y, 1, 1e-12);
  const OdGePoint2d back = micui::to_parent(*made, local);
  EXPECT_NEAR(back.x, 2, 1e-12);
  EXPECT_NEAR(back.y, 6, 1e-12);
  EXPECT_TRUE((micui::to_parent_matrix(*made) * OdGePoint3d{2, 1, 0}).isEqualTo({2, 6, 0}));
}

TEST(Control, has_the_extents_of_its_rectangle_and_of_all_children) {
  const auto parent = box(10, -5);
  {
    const auto child = parent->add_child<control>(u"child");
    child->x = 9;
    child->width = 4;
    child->height = 2;
  }
  EXPECT_EQ(parent->local_extents(), (extents{0, 13, -5, 2}));
  parent->x = 100;
  EXPECT_EQ(parent->parent_extents(), (extents{100, 113, -5, 2}));
  parent->rotation = std::numbers::pi;
  const extents turned = parent->parent_extents();
  EXPECT_NEAR(turned.min_x, 87, 1e-12);
  EXPECT_NEAR(turned.max_y, 5, 1e-12);
}

TEST(Extents, that_are_empty_change_nothing_when_merged) {
  extents box;
  EXPECT_TRUE(box.is_empty());
  box.merge(extents());
  EXPECT_TRUE(box.is_empty());
  box.add({1, 2});
  box.merge(extents());
  EXPECT_EQ(box, (extents{1, 1, 2, 2}));
}

TEST(Control, a_layout_that_asks_for_a_name_nobody_made_throws) {
  const auto parent = odNew<control>();
  try {
    parent->child<control>(u"absent");
    FAIL() << "nothing was thrown";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "micui::control::layout: child not found");
  }
}

TEST(Control, child_is_the_first_direct_one_of_its_name) {
  const auto parent = odNew<control>();
  parent->add_child<control>(u"other")->add_child<control>(u"notch");
  parent->add_child<control>(u"notch")->x = 1;
  parent->add_child<control>(u"notch")->x = 2;
  EXPECT_EQ(parent->child<control>(u"notch")->x, 1);
}
