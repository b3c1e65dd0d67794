#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "micui/frame.h"
#include "micui/layout_handle.h"
#include "tests/micui/canvas.h"

namespace {

/// Counts its layouts.
class counting : public micui::frame {
 public:
  void layout() override { ++layouts; }
  int layouts = 0;
};

/// Has a child that lives on, which it places at ten pixels.
class parent : public micui::control {
 public:
  void create_children() override { add_child<counting>(u"kept"); }
  void layout() override {
    ++layouts;
    child<counting>(u"kept")->width = 10 * scale;
  }
  counting& kept() const { return dynamic_cast<counting&>(*children.front()); }
  int layouts = 0;
};

OdSmartPtr<parent> new_parent() {
  const auto made = odNew<parent>();
  made->create_children();
  return made;
}

}  // namespace

TEST(Layout, a_handle_lays_its_child_out_when_the_scales_differ) {
  const auto child = odNew<counting>();
  { const micui::layout_handle<counting> handle(child, 0.5); }
  EXPECT_EQ(child->layouts, 1);
  EXPECT_EQ(child->scale, 0.5);
  { const micui::layout_handle<counting> handle(child, 0.5); }
  EXPECT_EQ(child->layouts, 1);
}

TEST(Layout, a_handle_of_scale_0_lays_nothing_out) {
  const auto child = odNew<counting>();
  child->scale = 7;
  { const micui::layout_handle<counting> handle(child, 0); }
  EXPECT_EQ(child->layouts, 0);
  EXPECT_EQ(child->scale, 7);
}

TEST(Layout, a_change_of_size_alone_lays_no_child_out) {
  const auto root = new_parent();
  root->scale = 0.5;
  root->layout();
  root->child<counting>(u"kept")->width = 99;
  EXPECT_EQ(root->kept().layouts, 1);
}

TEST(Layout, a_new_child_is_laid_out_at_once_unless_the_scale_is_1) {
  const auto root = odNew<micui::control>();
  root->scale = 0.5;
  root->add_child<counting>(u"fresh");
  EXPECT_EQ(dynamic_cast<counting&>(*root->children.front()).layouts, 1);
  root->scale = 1;
  root->add_child<counting>(u"fresh");
  EXPECT_EQ(dynamic_cast<counting&>(*root->children.back()).layouts, 0);
}

TEST(Layout, sizes_are_pixels_at_every_zoom) {
  const auto root = new_parent();
  canvas view(0.25);
  view.drawn(*root);
  EXPECT_NEAR(root->kept().width, 2.5, 1e-12);
  view.zoom(4);
  view.drawn(*root);
  EXPECT_NEAR(root->kept().width, 40, 1e-12);
  EXPECT_EQ(root->layouts, 2);
  EXPECT_EQ(root->kept().layouts, 2);
}

TEST(Layout, a_zoom_of_less_than_1024_epsilons_changes_nothing) {
  const auto root = new_parent();
  canvas view(0.25);
  view.drawn(*root);
  view.zoom(0.25 * (1 + 1e-14));
  view.drawn(*root);
  EXPECT_EQ(root->layouts, 1);
  view.zoom(0.25 * (1 + 1e-12));
  view.drawn(*root);
  EXPECT_EQ(root->layouts, 2);
}

TEST(Layout, a_pixel_is_measured_in_the_model_that_is_drawn) {
  const auto root = new_parent();
  canvas view(0.25);
  view.pen.pushModelTransform(OdGeMatrix3d::scaling(10));
  view.drawn(*root);
  EXPECT_NEAR(root->scale, 0.025, 1e-12);
}

TEST(Layout, a_fault_in_the_layout_of_a_child_reaches_the_caller) {
  class faulty : public micui::control {
   public:
    void layout() override { child<micui::control>(u"absent"); }
  };
  const auto root = odNew<micui::control>();
  root->scale = 0.5;
  EXPECT_THROW(root->add_child<faulty>(u"faulty"), std::runtime_error);
}

TEST(Layout, two_scales_are_equal_exactly_where_one_is_infinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(micui::nearly_equal(infinity, infinity));
  EXPECT_FALSE(micui::nearly_equal(infinity, 1e308));
  EXPECT_FALSE(micui::nearly_equal(infinity, -infinity));
  EXPECT_TRUE(micui::nearly_equal(0, 0));
}
