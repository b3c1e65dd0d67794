#include "od/ge/OdGeExtents3d.h"

#include <gtest/gtest.h>

#include <numbers>

TEST(OdGeExtents3d, starts_empty_and_takes_no_empty_box_in) {
  OdGeExtents3d box;
  EXPECT_FALSE(box.isValidExtents());

  box.addExt(OdGeExtents3d());

  EXPECT_FALSE(box.isValidExtents());
}

TEST(OdGeExtents3d, grows_to_hold_every_point) {
  OdGeExtents3d box;
  box.addPoint({1, 5, 0});
  box.addPoint({-2, 3, 0});

  EXPECT_EQ(box.minPoint(), (OdGePoint3d{-2, 3, 0}));
  EXPECT_EQ(box.maxPoint(), (OdGePoint3d{1, 5, 0}));
  EXPECT_TRUE(box.contains({-2, 5, 0}));
  EXPECT_FALSE(box.contains({-2, 5.001, 0}));
  EXPECT_EQ(box.center(), (OdGePoint3d{-0.5, 4, 0}));
}

TEST(OdGeExtents3d, turned_becomes_the_box_around_the_turned_box) {
  OdGeExtents3d box({0, 0, 0}, {2, 1, 0});

  box.transformBy(OdGeMatrix3d::rotation(std::numbers::pi / 2, OdGeVector3d::kZAxis));

  EXPECT_TRUE(box.minPoint().isEqualTo({-1, 0, 0}));
  EXPECT_TRUE(box.maxPoint().isEqualTo({0, 2, 0}));
}
