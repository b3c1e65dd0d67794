#include "ui/toolbar/popup_place.h"

#include <gtest/gtest.h>

using toolbar::monitor;
using toolbar::popup_place;
using toolbar::screen_box;

namespace {

constexpr monitor kScreens[] = {{{0, 0, 1000, 800}, {40, 0, 1000, 770}},
                                {{1000, 0, 1800, 600}, {1000, 0, 1800, 600}}};

}  // namespace

TEST(PopupPlace, is_at_the_left_edge_of_the_control_and_2_pixels_below_it) {
  const HostPixel at = popup_place({100, 200, 120, 220}, kScreens);
  EXPECT_EQ(at.x, 100);
  EXPECT_EQ(at.y, 222);
}

TEST(PopupPlace, stays_where_any_monitor_shows_it_even_under_a_panel) {
  EXPECT_EQ(popup_place({10, 200, 30, 220}, kScreens).x, 10);
  EXPECT_EQ(popup_place({1700, 200, 1720, 220}, kScreens).x, 1700);
}

TEST(PopupPlace, moves_sideways_into_the_work_area_of_the_nearest_monitor) {
  const HostPixel left = popup_place({-50, 200, -30, 220}, kScreens);
  EXPECT_EQ(left.x, 40);
  EXPECT_EQ(left.y, 222);
  EXPECT_EQ(popup_place({1900, 200, 1920, 220}, kScreens).x, 1799);
}

TEST(PopupPlace, without_monitors_it_is_what_it_is) { EXPECT_EQ(popup_place({-50, 0, -30, 20}, {}).x, -50); }
