#include "od/gi/OdGsView.h"

#include <gtest/gtest.h>

#include "od/base/OdError.h"

namespace {

/// 200 by 100 pixels that show 20 by 10 units about (5, 5).
OdGsView plan() {
  OdGsView view;
  view.setDeviceRect({0, 0, 200, 100});
  view.setView({5, 5, 1}, {5, 5, 0}, {0, 1, 0}, 20, 10);
  return view;
}

void expectNear(const OdGePoint2d& a, const OdGePoint2d& b) {
  EXPECT_NEAR(a.x, b.x, 1e-9);
  EXPECT_NEAR(a.y, b.y, 1e-9);
}

}  // namespace

TEST(OdGsView, shows_the_target_in_the_middle_and_y_upwards) {
  OdGsView view = plan();
  expectNear(view.toDevice({5, 5, 0}), {100, 50});
  expectNear(view.toDevice({-5, 10, 0}), {0, 0});
  expectNear(view.toDevice({15, 0, 0}), {200, 100});
}

TEST(OdGsView, finds_the_world_under_a_pixel) {
  EXPECT_TRUE(plan().toWorld({0, 0}).isEqualTo({-5, 10, 0}));
  EXPECT_TRUE(plan().deviceToWorldMatrix().isEqualTo(plan().worldToDeviceMatrix().inverse()));
}

TEST(OdGsView, knows_the_size_of_a_pixel) {
  OdGePoint2d perUnit;
  plan().getNumPixelsInUnitSquare({}, perUnit);
  EXPECT_EQ(perUnit, (OdGePoint2d{10, 10}));
  EXPECT_DOUBLE_EQ(plan().pixelSize(), 0.1);
}

TEST(OdGsView, keeps_circles_round_where_field_and_device_differ_in_shape) {
  OdGsView view = plan();
  view.setView({5, 5, 1}, {5, 5, 0}, {0, 1, 0}, 10, 10);
  expectNear(view.toDevice({5, 10, 0}), {100, 0});
  expectNear(view.toDevice({10, 5, 0}), {150, 50});
  EXPECT_EQ(view.fieldWidth(), 10) << "as it was set";
}

TEST(OdGsView, a_device_rectangle_need_not_begin_at_0) {
  OdGsView view = plan();
  view.setDeviceRect({1000, 500, 1200, 600});
  expectNear(view.toDevice({-5, 10, 0}), {1000, 500});
}

TEST(OdGsView, turns_with_its_up_vector) {
  OdGsView view = plan();
  view.setView({5, 5, 1}, {5, 5, 0}, {1, 0, 0}, 20, 10);
  expectNear(view.toDevice({10, 5, 0}), {100, 0});
  expectNear(view.toDevice({5, 15, 0}), {0, 50});
}

TEST(OdGsView, looks_from_any_side) {
  OdGsView view;
  view.setDeviceRect({0, 0, 100, 100});
  view.setView({0, -9, 0}, {0, 0, 0}, {0.5, -3, 2}, 10, 10);
  EXPECT_TRUE(view.viewDir().isEqualTo({0, -1, 0}));
  EXPECT_NEAR(view.upVector().dotProduct(view.viewDir()), 0, 1e-12) << "made upright";
  EXPECT_NEAR(view.upVector().length(), 1, 1e-12);
}

TEST(OdGsView, gives_eye_coordinates_in_drawing_units_about_the_target) {
  OdGsView view = plan();
  EXPECT_TRUE((view.getWorldToEyeTransform() * OdGePoint3d{6, 7, 3}).isEqualTo({1, 2, 3}));
  EXPECT_TRUE((view.getEyeToWorldTransform() * OdGePoint3d{1, 2, 3}).isEqualTo({6, 7, 3}));
}

TEST(OdGsView, refuses_a_view_without_direction_or_size) {
  OdGsView view = plan();
  EXPECT_THROW(view.setView({1, 1, 1}, {1, 1, 1}, {0, 1, 0}, 1, 1), OdError);
  EXPECT_THROW(view.setView({0, 0, 1}, {0, 0, 0}, {0, 0, 5}, 1, 1), OdError);
  EXPECT_THROW(view.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, 0, 1), OdError);
  EXPECT_THROW(view.setDeviceRect({5, 5, 5, 9}), OdError);
  expectNear(view.toDevice({5, 5, 0}), {100, 50});
}

TEST(OdGsView, tells_its_background) {
  OdGsView view = plan();
  EXPECT_EQ(view.backgroundColor(), OdCmEntityColor(0, 0, 0));
  view.setBackgroundColor(OdCmEntityColor(255, 255, 255));
  EXPECT_EQ(view.backgroundColor().red(), 255);
}
