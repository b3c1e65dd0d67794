#include "od/ge/OdGePlane.h"

#include <gtest/gtest.h>

#include "od/ge/OdGeLine3d.h"

TEST(OdGePlane, gives_parameters_along_axes_that_are_skew_and_not_of_length_one) {
  OdGePlane plane({1, 1, 5}, {2, 0, 0}, {1, 1, 0});

  OdGePoint2d param = plane.paramOf(plane.evalPoint({3, -4}) + OdGeVector3d{0, 0, 9});

  EXPECT_NEAR(param.x, 3, 1e-12);
  EXPECT_NEAR(param.y, -4, 1e-12);
}

TEST(OdGePlane, made_from_a_normal_takes_the_arbitrary_axes) {
  OdGePlane plane({0, 0, 0}, {0, 0, -1});
  EXPECT_TRUE(plane.uAxis().isEqualTo({-1, 0, 0}));
  EXPECT_TRUE(plane.vAxis().isEqualTo({0, 1, 0}));
  EXPECT_TRUE(plane.normal().isEqualTo({0, 0, -1}));
}

TEST(OdGeLine3d, meets_a_plane_that_it_is_not_parallel_to) {
  OdGeLine3d line({3, 4, 10}, {0, 0, -2});
  OdGePoint3d at;

  ASSERT_TRUE(line.intersectWith(OdGePlane::kXYPlane, at));

  EXPECT_TRUE(at.isEqualTo({3, 4, 0}));
}

TEST(OdGeLine3d, along_the_plane_gives_no_point_and_leaves_the_place_alone) {
  OdGePoint3d at{7, 7, 7};
  EXPECT_FALSE(OdGeLine3d({0, 0, 1}, {1, 1, 0}).intersectWith(OdGePlane::kXYPlane, at));
  EXPECT_FALSE(OdGeLine3d({0, 0, 1}, {0, 0, 0}).intersectWith(OdGePlane::kXYPlane, at));
  EXPECT_EQ(at, (OdGePoint3d{7, 7, 7}));
}
