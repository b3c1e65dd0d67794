#include "host/typed_value.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

constexpr OdGePoint3d kBase{10, 20, 5};

TEST(TypedValue, a_number_is_decimal_with_blanks_around_it_at_most) {
  EXPECT_EQ(host::typed_number(u" 2.5 "), 2.5);
  EXPECT_EQ(host::typed_number(u".5"), 0.5);
  EXPECT_EQ(host::typed_number(u"+3"), 3);
  EXPECT_EQ(host::typed_number(u"-1e-3"), -0.001);
}

TEST(TypedValue, what_is_no_finite_number_is_none) {
  for (const char16_t* text : {u"", u"abc", u"2.5x", u"1 2", u"inf", u"nan", u"1e999", u"0x10", u"--1", u"²"})
    EXPECT_FALSE(host::typed_number(text));
}

TEST(TypedValue, a_point_has_two_or_three_coordinates) {
  EXPECT_EQ(host::typed_point(u"1,2", kBase), (OdGePoint3d{1, 2, 0}));
  EXPECT_EQ(host::typed_point(u" 1.5 , -2 , 3 ", kBase), (OdGePoint3d{1.5, -2, 3}));
}

TEST(TypedValue, an_at_sign_counts_from_the_base) {
  EXPECT_EQ(host::typed_point(u"@1,2", kBase), (OdGePoint3d{11, 22, 5}));
  EXPECT_EQ(host::typed_point(u"@1,2,3", kBase), (OdGePoint3d{11, 22, 8}));
}

TEST(TypedValue, a_length_and_an_angle_in_degrees_make_a_point) {
  const auto up = host::typed_point(u"@5<90", kBase);
  ASSERT_TRUE(up);
  EXPECT_TRUE(up->isEqualTo({10, 25, 5}));
  EXPECT_TRUE(host::typed_point(u"2<180", kBase)->isEqualTo({-2, 0, 0}));
}

TEST(TypedValue, a_number_beyond_all_reckoning_is_none) {
  EXPECT_EQ(host::typed_number(u"1e99"), 1e99);
  EXPECT_FALSE(host::typed_number(u"1e100"));
  EXPECT_FALSE(host::typed_number(u"-1e300"));
}

TEST(TypedValue, a_length_alone_lies_towards_the_cursor) {
  EXPECT_TRUE(host::typed_along(u"5", kBase, OdGePoint3d{40, 20, 5})->isEqualTo({15, 20, 5}));
  EXPECT_TRUE(host::typed_along(u"-5", kBase, OdGePoint3d{40, 20, 5})->isEqualTo({5, 20, 5}));
  EXPECT_FALSE(host::typed_along(u"5", kBase, std::nullopt));
  EXPECT_FALSE(host::typed_along(u"5", kBase, kBase));
}

TEST(TypedValue, an_angle_alone_turns_the_way_to_the_cursor) {
  EXPECT_TRUE(host::typed_along(u"<90", kBase, OdGePoint3d{40, 20, 5})->isEqualTo({10, 50, 5}));
  EXPECT_FALSE(host::typed_along(u"<90", kBase, std::nullopt));
}

TEST(TypedValue, a_length_with_an_angle_counts_from_the_base_and_needs_no_cursor) {
  EXPECT_TRUE(host::typed_along(u"3<180", kBase, std::nullopt)->isEqualTo({7, 20, 5}));
  EXPECT_FALSE(host::typed_along(u"1,2", kBase, std::nullopt));
}

TEST(TypedValue, an_angle_is_degrees_with_or_without_its_sign) {
  EXPECT_DOUBLE_EQ(*host::typed_angle(u"180"), std::numbers::pi);
  EXPECT_DOUBLE_EQ(*host::typed_angle(u" <90"), std::numbers::pi / 2);
  EXPECT_FALSE(host::typed_angle(u"<"));
}

TEST(TypedValue, nonsense_is_no_point) {
  for (const char16_t* text : {u"", u"@", u"1", u"1,", u"1,2,3,4", u"a,b", u"1<2<3", u"<90", u"1;2"})
    EXPECT_FALSE(host::typed_point(text, kBase));
}

}  // namespace
