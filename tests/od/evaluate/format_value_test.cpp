#include "od/evaluate/format_value.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

std::string shown(const OdFieldValue& value, std::u16string_view format, const OdFieldUnits& units = {}) {
  return odFormatFieldValue(value, format, units).toUtf8();
}

constexpr OdFieldDate kAfternoon{2020, 4, 2, 1, 16, 5, 9, 0};
constexpr OdFieldDate kMidnight{1999, 12, 5, 31, 0, 0, 0, 0};

}  // namespace

TEST(FormatDate, knows_the_usual_letters) {
  EXPECT_EQ(shown(kAfternoon, u"d dd ddd dddd"), "1 01 Tue Tuesday");
  EXPECT_EQ(shown(kAfternoon, u"M MM MMM MMMM"), "4 04 Apr April");
  EXPECT_EQ(shown(kAfternoon, u"y yy yyyy"), "20 20 2020");
  EXPECT_EQ(shown(kAfternoon, u"h:mm:ss t, hh tt; H HH"), "4:05:09 P, 04 PM; 16 16");
  EXPECT_EQ(shown(kMidnight, u"h:m:s tt"), "12:0:0 AM");
}

TEST(FormatDate, leaves_other_characters_and_quoted_ones_as_they_are) {
  EXPECT_EQ(shown(kAfternoon, u"'day' dd/MM."), "day 01/04.");
  EXPECT_EQ(shown(kAfternoon, u"dd'"), "01'");
}

TEST(FormatDate, knows_whole_forms_and_their_long_ones) {
  EXPECT_EQ(shown(kAfternoon, u"%c"), "2020-04-01 16:05:09");
  EXPECT_EQ(shown(kAfternoon, u"%#x"), "Tuesday, April 01, 2020");
  EXPECT_EQ(shown(kAfternoon, u"%X %"), "16:05:09 %");
}

TEST(FormatDate, without_a_format_is_year_month_and_day) { EXPECT_EQ(shown(kAfternoon, u""), "2020-04-01"); }

TEST(FormatLength, counts_in_the_units_of_the_format) {
  EXPECT_EQ(shown(15.5, u"%lu1%pr2"), "1.55E+01");
  EXPECT_EQ(shown(15.5, u"%lu2%pr3"), "15.500");
  EXPECT_EQ(shown(15.5, u"%lu3%pr2"), "1'-3.50\"");
  EXPECT_EQ(shown(15.5, u"%lu4%pr4"), "1'-3 1/2\"");
  EXPECT_EQ(shown(15.5, u"%lu5%pr4"), "15 1/2");
  EXPECT_EQ(shown(11.999, u"%lu4%pr2"), "1'-0\"");
  EXPECT_EQ(shown(-0.001, u"%lu2%pr2"), "0.00");
  EXPECT_EQ(shown(-0.75, u"%lu5%pr2"), "-3/4");
}

TEST(FormatLength, takes_units_and_precision_of_the_drawing_where_none_are_told) {
  EXPECT_EQ(shown(1.25, u"", {.length = 2, .length_precision = 3}), "1.250");
  EXPECT_EQ(shown(1.25, u"%lu6", {.length = 5, .length_precision = 3}), "1 1/4");
}

TEST(FormatLength, has_factor_signs_zeros_and_words_around_it) {
  EXPECT_EQ(shown(1234567.5, u"%lu2%pr2%ds44%th46"), "1.234.567,50");
  EXPECT_EQ(shown(0.5, u"%lu2%pr4%zs12"), ".5");
  EXPECT_EQ(shown(3.0, u"%lu2%pr4%zs8"), "3");
  EXPECT_EQ(shown(2500.0, u"%lu2%pr2%ct8[0.001]%ps[L = , m]"), "L = 2.50 m");
  EXPECT_EQ(shown(2.0, u"%.3f"), "2.000");
}

TEST(FormatAngle, counts_in_the_units_of_the_format) {
  const OdFieldAngle angle{std::numbers::pi / 3};
  EXPECT_EQ(shown(angle, u"%au0%pr1"), "60.0");
  EXPECT_EQ(shown(angle, u"%au1%pr2"), "60d0'0\"");
  EXPECT_EQ(shown(angle, u"%au2%pr2"), "66.67g");
  EXPECT_EQ(shown(angle, u"%au3%pr3"), "1.047r");
  EXPECT_EQ(shown(angle, u"%au4%pr1"), "N 30d0' E");
}

TEST(FormatText, changes_the_case_of_letters) {
  const OdString text(u"ground floor, SHEET é");
  EXPECT_EQ(shown(text, u"%tc0"), "ground floor, SHEET é");
  EXPECT_EQ(shown(text, u"%tc1"), "GROUND FLOOR, SHEET É");
  EXPECT_EQ(shown(text, u"%tc2"), "ground floor, sheet é");
  EXPECT_EQ(shown(text, u"%tc3"), "Ground floor, sheet é");
  EXPECT_EQ(shown(text, u"%tc4"), "Ground Floor, Sheet É");
}

TEST(FormatText, takes_the_parts_of_a_file_s_name) {
  const OdString path(u"/drawings/plans/first.floor.dxf");
  EXPECT_EQ(shown(path, u"%fn1"), "/drawings/plans");
  EXPECT_EQ(shown(path, u"%fn2"), "first.floor");
  EXPECT_EQ(shown(path, u"%fn4"), ".dxf");
  EXPECT_EQ(shown(path, u"%fn6"), "first.floor.dxf");
  EXPECT_EQ(shown(path, u"%fn7"), "/drawings/plans/first.floor.dxf");
  EXPECT_EQ(shown(OdString(u"C:\\plans\\.hidden"), u"%fn6%tc1"), ".HIDDEN");
}

TEST(FormatValue, writes_points_whole_or_by_coordinate_and_sizes_in_bytes) {
  EXPECT_EQ(shown(OdFieldPoint{1, 2.5, 0}, u"%lu2%pr1"), "1.0,2.5,0.0");
  EXPECT_EQ(shown(OdFieldPoint{1, 2.5, 0}, u"%lu2%pr1%pt2"), "2.5");
  EXPECT_EQ(shown(std::int32_t{4096}, u"%by2"), "4");
  EXPECT_EQ(shown(std::int32_t{4096}, u""), "4096");
}

TEST(FormatValue, shows_nothing_as_four_dashes) {
  EXPECT_EQ(shown({}, u""), "----");
  EXPECT_EQ(shown(OdString(), u"%tc1"), "----");
}

TEST(FormatValue, a_format_of_nonsense_does_no_harm) {
  EXPECT_EQ(shown(2.0, u"%lu99%pr999999999999%th0%ps["), "2.00000000");
  EXPECT_EQ(shown(1e300, u"%lu4%pr8").size(), 310U);
  EXPECT_EQ(shown(OdString(u"a"), u"%"), "a");
}
