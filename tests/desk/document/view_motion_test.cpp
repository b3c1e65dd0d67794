#include "desk/document/view_motion.h"

#include <gtest/gtest.h>

namespace {
OdGsView sheet() {
  OdGsView view;
  view.setDeviceRect({0, 0, 400, 300});
  view.setView({50, 30, 1}, {50, 30, 0}, {0, 1, 0}, 400, 300);
  return view;
}
}  // namespace

TEST(ViewMotion, the_point_under_the_cursor_stays_when_the_view_zooms) {
  OdGsView view = sheet();
  const OdGePoint3d before = view.toWorld({100, 40});
  zoomAt(view, {100, 40}, 1.25);
  EXPECT_TRUE(view.toWorld({100, 40}).isEqualTo(before));
  EXPECT_DOUBLE_EQ(view.pixelSize(), 1 / 1.25);
}

TEST(ViewMotion, zooming_ends_before_numbers_do) {
  OdGsView view = sheet();
  for (int i = 0; i < 1000; ++i) zoomAt(view, {10, 10}, 1.25);
  EXPECT_GT(view.fieldWidth(), 0);
  for (int i = 0; i < 2000; ++i) zoomAt(view, {10, 10}, 0.8);
  EXPECT_LT(view.fieldWidth(), 1e16);
}

TEST(ViewMotion, panning_carries_what_was_grabbed) {
  OdGsView view = sheet();
  const OdGePoint3d grabbed = view.toWorld({10, 20});
  pan(view, {10, 20}, {70, 5});
  EXPECT_TRUE(view.toWorld({70, 5}).isEqualTo(grabbed));
}

TEST(ViewMotion, a_box_is_shown_whole_in_the_middle) {
  OdGsView view = sheet();
  showBox(view, OdGeExtents3d({0, 0, 0}, {1000, 10, 0}));
  EXPECT_TRUE(view.toWorld({200, 150}).isEqualTo({500, 5, 0}));
  EXPECT_TRUE(view.deviceRect().contains(view.toDevice({0, 0, 0})));
  EXPECT_TRUE(view.deviceRect().contains(view.toDevice({1000, 10, 0})));
  EXPECT_GT(view.toDevice({1000, 10, 0}).x, 380);
}

TEST(ViewMotion, a_box_without_extent_is_shown_and_an_empty_one_changes_nothing) {
  OdGsView view = sheet();
  showBox(view, OdGeExtents3d({7, 8, 0}, {7, 8, 0}));
  EXPECT_TRUE(view.toWorld({200, 150}).isEqualTo({7, 8, 0}));
  const double width = view.fieldWidth();
  showBox(view, OdGeExtents3d());
  EXPECT_EQ(view.fieldWidth(), width);
}
