#include "od/ge/OdGeVector3d.h"

#include <gtest/gtest.h>

#include <numbers>

using std::numbers::pi;

TEST(OdGeVector3d, a_zero_vector_stays_as_it_is_when_normalised) {
  EXPECT_EQ(OdGeVector3d{}.normal(), OdGeVector3d{});
  EXPECT_TRUE(OdGeVector3d{}.isZeroLength());
}

TEST(OdGeVector3d, measures_angles_without_and_with_a_side_to_look_from) {
  EXPECT_DOUBLE_EQ(OdGeVector3d::kXAxis.angleTo(-OdGeVector3d::kYAxis), pi / 2);
  EXPECT_DOUBLE_EQ(OdGeVector3d::kXAxis.angleTo(-OdGeVector3d::kYAxis, OdGeVector3d::kZAxis), 3 * pi / 2);
  EXPECT_DOUBLE_EQ(OdGeVector3d::kXAxis.angleTo(-OdGeVector3d::kXAxis), pi);
}

TEST(OdGeVector3d, turns_about_an_axis_of_any_length) {
  EXPECT_TRUE(OdGeVector3d::kXAxis.rotatedBy(pi / 2, {0, 0, 5}).isEqualTo(OdGeVector3d::kYAxis));
}

TEST(OdGeVector3d, the_arbitrary_axis_changes_its_rule_within_a_64th_of_the_z_axis) {
  EXPECT_TRUE(OdGeVector3d::kZAxis.perpVector().isEqualTo(OdGeVector3d::kXAxis));
  EXPECT_TRUE((-OdGeVector3d::kZAxis).perpVector().isEqualTo(-OdGeVector3d::kXAxis));
  EXPECT_TRUE(OdGeVector3d::kXAxis.perpVector().isEqualTo(OdGeVector3d::kYAxis));

  OdGeVector3d inside = OdGeVector3d{0, 1.0 / 65, 1}.normal();
  OdGeVector3d outside = OdGeVector3d{0, 1.0 / 63, 1}.normal();
  EXPECT_TRUE(inside.perpVector().isEqualTo(OdGeVector3d::kXAxis));
  EXPECT_TRUE(outside.perpVector().isEqualTo(-OdGeVector3d::kXAxis));
}

TEST(OdGeVector3d, tells_parallel_and_perpendicular_whatever_the_length) {
  EXPECT_TRUE((OdGeVector3d{2, 2, 0}).isParallelTo({-1, -1, 0}));
  EXPECT_TRUE((OdGeVector3d{2, 2, 0}).isPerpendicularTo({-7, 7, 3}));
  EXPECT_FALSE((OdGeVector3d{2, 2, 0}).isPerpendicularTo({1, 0, 0}));
}
