#include "ui/controls/number_text.h"

#include <gtest/gtest.h>

#include <clocale>

using controls::fixed_text;
using controls::leading_number;
using controls::short_text;
using controls::whole_number;

TEST(NumberText, the_empty_text_is_0_and_blanks_alone_are_no_number) {
  EXPECT_EQ(whole_number(u""), 0.0);
  EXPECT_FALSE(whole_number(u" "));
}

TEST(NumberText, blanks_may_stand_before_a_number_and_nothing_behind_it) {
  EXPECT_EQ(whole_number(u" 30"), 30.0);
  EXPECT_FALSE(whole_number(u"30 "));
}

TEST(NumberText, a_comma_is_no_point_in_any_language) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
  EXPECT_FALSE(whole_number(u"1,5"));
  EXPECT_EQ(whole_number(u"1.5"), 1.5);
  EXPECT_EQ(leading_number(u"2.5"), 2.5F);
  std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(NumberText, a_fixed_text_has_its_point_and_all_its_digits) {
  EXPECT_EQ(fixed_text(80, 3), u"80.000");
  EXPECT_EQ(fixed_text(-1e308, 3).size(), 314U);
}

TEST(NumberText, a_short_text_has_no_zeros_at_its_end) {
  EXPECT_EQ(short_text(2.50004, 4), u"2.5");
  EXPECT_EQ(short_text(12345.6, 4), u"1.235e+04");
}
