#include "od/ge/OdGeMatrix3d.h"

#include <gtest/gtest.h>

#include <numbers>

#include "od/base/OdError.h"
#include "od/ge/OdGePlane.h"

TEST(OdGeMatrix3d, applies_the_right_factor_first) {
  OdGeMatrix3d moveThenTurn = OdGeMatrix3d::rotation(std::numbers::pi / 2, OdGeVector3d::kZAxis) *
                              OdGeMatrix3d::translation({1, 0, 0});

  EXPECT_TRUE((moveThenTurn * OdGePoint3d{0, 0, 0}).isEqualTo({0, 1, 0}));
}

TEST(OdGeMatrix3d, vectors_are_not_moved) {
  EXPECT_EQ(OdGeMatrix3d::translation({5, 6, 7}) * OdGeVector3d::kXAxis, OdGeVector3d::kXAxis);
}

TEST(OdGeMatrix3d, rotation_and_scaling_leave_their_centre_in_place) {
  OdGePoint3d center{3, 4, 5};
  EXPECT_TRUE((OdGeMatrix3d::rotation(1.2, {1, 2, 3}, center) * center).isEqualTo(center));
  EXPECT_TRUE((OdGeMatrix3d::scaling(7, center) * center).isEqualTo(center));
}

TEST(OdGeMatrix3d, inverse_undoes_a_skew_transformation) {
  OdGeMatrix3d m = OdGeMatrix3d::coordSystem({1, 2, 3}, {2, 0.5, 0}, {0.1, 3, 0}, {0, 1, -4});

  EXPECT_TRUE((m * m.inverse()).isEqualTo(OdGeMatrix3d::kIdentity));
  EXPECT_LT(m.det(), 0);
}

TEST(OdGeMatrix3d, a_flat_transformation_has_no_inverse) {
  EXPECT_THROW(OdGeMatrix3d::scaling(1, 0, 1).inverse(), OdError);
}

TEST(OdGeMatrix3d, plane_and_world_are_each_others_inverse) {
  OdGePlane plane({10, 20, 30}, {0, 1, 1}, {1, 0, 0});

  OdGePoint3d inWorld = OdGeMatrix3d::planeToWorld(plane) * OdGePoint3d{2, 3, 0};

  EXPECT_TRUE(inWorld.isEqualTo(plane.evalPoint({2, 3})));
  EXPECT_TRUE((OdGeMatrix3d::worldToPlane(plane) * inWorld).isEqualTo({2, 3, 0}));
}
