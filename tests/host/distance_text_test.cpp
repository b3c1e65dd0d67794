#include "host/distance_text.h"

#include <gtest/gtest.h>

#include "host/windowless/application.h"
#include "od/base/unicode.h"
#include "od/db/OdDbDatabase.h"

namespace {

using host::distance_format;
using host::length_units;

std::string written(double distance, const distance_format& format) {
  return odToUtf8(host::distance_text(distance, format));
}

TEST(DistanceText, decimals_have_as_many_digits_as_the_precision_says) {
  EXPECT_EQ(written(15.5, {.units = length_units::decimal, .precision = 2, .zeros = 0}), "15.50");
  EXPECT_EQ(written(0.125, {.units = length_units::decimal, .precision = 1, .zeros = 0}), "0.1");
  EXPECT_EQ(written(2, {.units = length_units::decimal, .precision = 0, .zeros = 0}), "2");
}

TEST(DistanceText, zeros_before_and_behind_the_point_can_be_left_out) {
  EXPECT_EQ(written(0.5, {.precision = 4, .zeros = 8}), "0.5");
  EXPECT_EQ(written(0.5, {.precision = 4, .zeros = 4}), ".5000");
  EXPECT_EQ(written(0.5, {.precision = 4, .zeros = 12}), ".5");
  EXPECT_EQ(written(100, {.precision = 4, .zeros = 8}), "100");
  EXPECT_EQ(written(100, {.precision = 0, .zeros = 8}), "100");
}

TEST(DistanceText, what_rounds_to_zero_has_no_sign) {
  EXPECT_EQ(written(-0.001, {.precision = 2, .zeros = 0}), "0.00");
  EXPECT_EQ(written(-0.01, {.precision = 2, .zeros = 0}), "-0.01");
}

TEST(DistanceText, scientific_units_have_an_exponent) {
  EXPECT_EQ(written(15.5, {.units = length_units::scientific, .precision = 2}), "1.55E+01");
  EXPECT_EQ(written(-0.00155, {.units = length_units::scientific, .precision = 4}), "-1.5500E-03");
}

TEST(DistanceText, engineering_units_have_feet_and_decimal_inches) {
  EXPECT_EQ(written(15.5, {.units = length_units::engineering, .precision = 2, .zeros = 0}), "1'-3.50\"");
  EXPECT_EQ(written(15.5, {.units = length_units::engineering, .precision = 2, .zeros = 8}), "1'-3.5\"");
  EXPECT_EQ(written(3.5, {.units = length_units::engineering, .precision = 2, .zeros = 0}), "3.50\"");
}

TEST(DistanceText, architectural_units_have_feet_inches_and_fractions) {
  EXPECT_EQ(written(15.5, {.units = length_units::architectural, .precision = 4, .zeros = 0}), "1'-3 1/2\"");
  EXPECT_EQ(written(12.5, {.units = length_units::architectural, .precision = 4, .zeros = 0}), "1'-0 1/2\"");
  EXPECT_EQ(written(0.5, {.units = length_units::architectural, .precision = 4, .zeros = 0}), "1/2\"");
  EXPECT_EQ(written(0.3, {.units = length_units::architectural, .precision = 4, .zeros = 0}), "5/16\"");
  EXPECT_EQ(written(-15.5, {.units = length_units::architectural, .precision = 4, .zeros = 0}),
            "-1'-3 1/2\"");
}

TEST(DistanceText, inches_that_round_up_to_twelve_are_a_foot) {
  EXPECT_EQ(written(11.99, {.units = length_units::architectural, .precision = 2, .zeros = 0}), "1'");
  EXPECT_EQ(written(23.999, {.units = length_units::engineering, .precision = 2, .zeros = 1}), "2'-0.00\"");
}

TEST(DistanceText, feet_and_inches_that_are_zero_are_written_as_the_drawing_says) {
  const auto foot_and_half_inch = [](double distance, int zeros) {
    return written(distance, {.units = length_units::architectural, .precision = 4, .zeros = zeros});
  };
  EXPECT_EQ(foot_and_half_inch(12, 0), "1'");
  EXPECT_EQ(foot_and_half_inch(12, 1), "1'-0\"");
  EXPECT_EQ(foot_and_half_inch(12, 2), "1'");
  EXPECT_EQ(foot_and_half_inch(12, 3), "1'-0\"");
  EXPECT_EQ(foot_and_half_inch(0.5, 0), "1/2\"");
  EXPECT_EQ(foot_and_half_inch(0.5, 1), "0'-0 1/2\"");
  EXPECT_EQ(foot_and_half_inch(0.5, 2), "0'-0 1/2\"");
  EXPECT_EQ(foot_and_half_inch(0.5, 3), "0 1/2\"");
  EXPECT_EQ(foot_and_half_inch(0, 0), "0\"");
  EXPECT_EQ(foot_and_half_inch(0, 2), "0'");
}

TEST(DistanceText, fractional_units_have_a_fraction_of_the_finest_denominator_reduced) {
  EXPECT_EQ(written(15.5, {.units = length_units::fractional, .precision = 4}), "15 1/2");
  EXPECT_EQ(written(0.3, {.units = length_units::fractional, .precision = 3}), "1/4");
  EXPECT_EQ(written(7, {.units = length_units::fractional, .precision = 3}), "7");
  EXPECT_EQ(written(6.999, {.units = length_units::fractional, .precision = 2}), "7");
}

TEST(DistanceText, the_form_for_typing_has_a_dash_before_the_fraction_and_no_blank) {
  EXPECT_EQ(written(15.5, {.units = length_units::architectural, .zeros = 0, .typed_form = true}),
            "1'3-1/2\"");
  EXPECT_EQ(written(15.5, {.units = length_units::fractional, .typed_form = true}), "15-1/2");
  EXPECT_EQ(written(15.5, {.units = length_units::engineering, .precision = 1, .typed_form = true}),
            "1'3.5\"");
}

TEST(DistanceText, a_number_with_an_exponent_is_a_distance_in_all_units) {
  EXPECT_EQ(host::typed_distance(u" 2.5 ", length_units::decimal), 2.5);
  EXPECT_EQ(host::typed_distance(u".5", length_units::architectural), 0.5);
  EXPECT_EQ(host::typed_distance(u"+1e3", length_units::scientific), 1000);
  EXPECT_EQ(host::typed_distance(u"-4", length_units::decimal), -4);
  EXPECT_EQ(host::typed_distance(u"1.5E-01", length_units::fractional), 0.15);
}

TEST(DistanceText, fractions_are_read_with_a_blank_and_with_a_dash) {
  EXPECT_EQ(host::typed_distance(u"1/2", length_units::decimal), 0.5);
  EXPECT_EQ(host::typed_distance(u"2-1/2", length_units::fractional), 2.5);
  EXPECT_EQ(host::typed_distance(u"-2 1/2", length_units::fractional), -2.5);
}

TEST(DistanceText, feet_and_inches_are_read_in_the_units_that_have_them) {
  EXPECT_EQ(host::typed_distance(u"1'", length_units::architectural), 12);
  EXPECT_EQ(host::typed_distance(u"1'6", length_units::architectural), 18);
  EXPECT_EQ(host::typed_distance(u"1'-6 1/2\"", length_units::architectural), 18.5);
  EXPECT_EQ(host::typed_distance(u"1'6-1/2\"", length_units::engineering), 18.5);
  EXPECT_EQ(host::typed_distance(u"1.5'", length_units::engineering), 18);
  EXPECT_EQ(host::typed_distance(u"3.5\"", length_units::engineering), 3.5);
  EXPECT_EQ(host::typed_distance(u"1'", length_units::decimal), std::nullopt);
}

TEST(DistanceText, a_length_with_a_tail_cannot_be_read) {
  for (const char16_t* text : {u"7x", u"x7", u"", u" ", u"1/0", u"1/", u"--1", u"1 2", u"2-", u"nan", u"inf",
                               u"1e999", u"0x10", u"1,5", u"1''", u"1'-", u"1'6\"7"})
    EXPECT_EQ(host::typed_distance(text, length_units::architectural), std::nullopt) << odToUtf8(text);
}

TEST(DistanceText, what_is_written_is_read_again_in_every_manner) {
  for (int units = 1; units <= 5; ++units) {
    for (const bool typed_form : {false, true}) {
      for (int zeros = 0; zeros < 16; ++zeros) {
        for (const double distance : {0.0, 0.5, 11.75, 12.0, 12.25, 15.5, 144.0, -15.5, 12345.625}) {
          const distance_format format{static_cast<length_units>(units), 7, zeros, typed_form};
          const auto text = host::distance_text(distance, format);
          EXPECT_EQ(host::typed_distance(text, format.units), distance) << odToUtf8(text);
        }
      }
    }
  }
}

class DistancesOfADrawing : public testing::Test {
 protected:
  WindowlessApplication m_application{OdDbDatabase::createEmpty()};
  OdDbDatabase& database() { return m_application.activeDocument()->database(); }
};

TEST_F(DistancesOfADrawing, are_written_and_read_in_its_units) {
  database().setSysVarInt(u"LUNITS", 4);
  database().setSysVarInt(u"LUPREC", 2);
  database().setSysVarInt(u"DIMZIN", 0);
  EXPECT_EQ(hostdbRToS(18.5), u"1'-6 1/2\"");
  EXPECT_EQ(hostdbDisToF(u"1'6-1/2"), 18.5);
}

TEST_F(DistancesOfADrawing, can_be_written_and_read_in_other_units) {
  database().setSysVarInt(u"LUNITS", 4);
  EXPECT_EQ(hostdbRToS(18.5, 2, 3), u"18.5");
  EXPECT_EQ(hostdbDisToF(u"1'6", 2), std::nullopt);
}

TEST_F(DistancesOfADrawing, settings_out_of_their_range_count_as_not_set) {
  database().setSysVarInt(u"LUNITS", 17);
  database().setSysVarInt(u"LUPREC", -3);
  EXPECT_EQ(host::distance_format_of(database()).units, length_units::decimal);
  EXPECT_EQ(host::distance_format_of(database()).precision, 4);
}

TEST(Distances, without_a_drawing_are_decimal) {
  EXPECT_EQ(hostdbRToS(2.5), u"2.5");
  EXPECT_EQ(hostdbDisToF(u"2.5"), 2.5);
}

}  // namespace
