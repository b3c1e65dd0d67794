#include "desk/window/value_tip.h"

#include <gtest/gtest.h>

namespace {

/// A view of 400 by 300 pixels, and where its tip stands for a mouse at a point.
struct ViewWithTip {
  ViewWithTip() { view.resize(400, 300); }

  QRect tip_for(int x, int y) {
    tip.showAt({x, y}, "Width: 40");
    return tip.geometry();
  }

  QWidget view;
  ValueTip tip{view};
};

}  // namespace

TEST(ValueTip, stands_behind_the_mouse_and_at_the_far_edges_before_it) {
  ViewWithTip shown;
  EXPECT_EQ(shown.tip_for(100, 100).topLeft(), QPoint(116, 116));
  EXPECT_EQ(shown.tip_for(390, 290).bottomRight(), QPoint(390 - 17, 290 - 17));
}

TEST(ValueTip, stays_within_the_view_wherever_a_drag_leads_the_mouse) {
  ViewWithTip shown;
  for (const QPoint mouse : {QPoint(-500, 100), QPoint(900, 100), QPoint(100, -500), QPoint(100, 900)})
    EXPECT_TRUE(shown.view.rect().contains(shown.tip_for(mouse.x(), mouse.y())))
        << mouse.x() << ' ' << mouse.y();
}
