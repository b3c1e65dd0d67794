#include "od/gi/OdGiRecorder.h"

#include <gtest/gtest.h>

TEST(OdGiRecorder, describes_the_traits_that_are_not_the_usual_ones) {
  OdGiRecorder pen;
  pen.traits().setTrueColor(OdCmEntityColor(0, 100, 200));
  pen.traits().setTransparency(OdGiTransparency(0x2000078));
  pen.traits().setFillType(kOdGiFillAlways);
  pen.polygon({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  EXPECT_EQ(pen.describe(), "polygon (0,0) (1,0) (1,1) rgb 0,100,200 alpha 120\n");

  pen.clear();
  pen.traits() = OdGiSubEntityTraits();
  pen.traits().setColor(0);
  pen.traits().setLayer(u"Wände");
  pen.traits().setLineType(u"DASHED");
  pen.traits().setLineWeight(25);
  pen.polyline({{0, 0, 0}, {1, 0, 0}});
  EXPECT_EQ(pen.describe(), "polyline (0,0) (1,0) color byblock layer Wände linetype DASHED weight 25\n");
}

TEST(OdGiRecorder, writes_six_digits_and_no_negative_zero) {
  OdGiRecorder pen;
  pen.polyline({{-1e-17, 1.0 / 3, 0}, {123456789, -2.50, 0}});
  EXPECT_EQ(pen.describe(), "polyline (0,0.333333) (1.23457e+08,-2.5)\n");
}

TEST(OdGiRecorder, counts_by_kind) {
  OdGiRecorder pen;
  pen.circle({0, 0, 0}, 1, {0, 0, 1});
  pen.polyline({{0, 0, 0}, {1, 0, 0}});
  pen.circle({0, 0, 0}, 2, {0, 0, 1});
  EXPECT_EQ(pen.count(OdGiPrimitive::kCircle), 2);
  EXPECT_EQ(pen.count(OdGiPrimitive::kPolygon), 0);
}

TEST(OdGiRecorder, has_the_extents_of_all_points_and_circles) {
  OdGiRecorder pen;
  EXPECT_FALSE(pen.extents().isValidExtents());
  pen.polyline({{-1, 0, 0}, {1, 7, 0}});
  pen.circle({10, 0, 0}, 3, {0, 0, 1});
  EXPECT_EQ(pen.extents().minPoint(), (OdGePoint3d{-1, -3, 0}));
  EXPECT_EQ(pen.extents().maxPoint(), (OdGePoint3d{13, 7, 0}));
}
