#include <gtest/gtest.h>

#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline_of;
using mtext_test::read;

namespace {

/// The format of the first part of the text.
format::string format_of(const std::u16string& text, const format::string& base = {}) {
  return read(text, base).parts.at(0).format;
}

}  // namespace

TEST(ParseCode, a_height_with_x_multiplies_and_keeps_its_kind) {
  auto format = format_of(u"\\H1.5x;a", {.height = 2.0, .height_kind = 0});

  EXPECT_EQ(format.height, 3.0);
  EXPECT_EQ(format.height_kind, 0u);
}

TEST(ParseCode, a_height_without_x_is_in_drawing_units) {
  auto format = format_of(u"\\H1.5;a", {.height = 2.0, .height_kind = 1});

  EXPECT_EQ(format.height, 1.5);
  EXPECT_EQ(format.height_kind, 0u);
}

TEST(ParseCode, a_height_without_digits_is_0) {
  EXPECT_EQ(format_of(u"\\H;a").height, 0.0);
  EXPECT_EQ(format_of(u"\\Hx;a").height, 0.0);
}

TEST(ParseCode, a_number_that_ends_at_its_dot_leaves_the_code_in_the_text) {
  EXPECT_EQ(outline_of(u"\\H5.;"), "[\\H5.;]");
}

TEST(ParseCode, the_semicolon_behind_a_number_is_optional) {
  EXPECT_EQ(outline_of(u"\\H2a"), "[a]");
  EXPECT_EQ(outline_of(u"\\C1a"), "[a]");
}

TEST(ParseCode, angles_are_degrees_in_the_text_and_radians_in_the_record) {
  EXPECT_DOUBLE_EQ(format_of(u"\\Q90;a").oblique, 1.5707963267948966);
  EXPECT_DOUBLE_EQ(format_of(u"\\Q2x;a", {.oblique = 0.25}).oblique, 0.5);
}

TEST(ParseCode, width_and_tracking_are_set_or_multiplied) {
  EXPECT_EQ(format_of(u"\\W0.5;a", {.width_factor = 3.0}).width_factor, 0.5);
  EXPECT_EQ(format_of(u"\\W0.5x;a", {.width_factor = 3.0}).width_factor, 1.5);
  EXPECT_EQ(format_of(u"\\T2;a", {.tracking = 3.0}).tracking, 2.0);
  EXPECT_EQ(format_of(u"\\T2x;a", {.tracking = 3.0}).tracking, 6.0);
}

TEST(ParseCode, lines_above_and_below_are_switched_by_the_case_of_the_letter) {
  EXPECT_EQ(format_of(u"\\L\\Oa").flags, format::flag_underline | format::flag_overline);
  EXPECT_EQ(format_of(u"\\L\\O\\l\\oa").flags, 0u);
}

TEST(ParseCode, a_colour_index_keeps_its_low_16_bits) {
  auto color = format_of(u"\\C65537;a").color;

  EXPECT_EQ(color.kind, 0u);
  EXPECT_EQ(color.index, 1);
}

TEST(ParseCode, a_true_colour_is_taken_apart_from_red_up) {
  auto color = format_of(u"\\c67305985;a").color;  // 0x04030201

  EXPECT_EQ(color, (format::text_color{.kind = 1, .top = 4, .red = 1, .green = 2, .blue = 3}));
}

TEST(ParseCode, a_colour_without_digits_is_text) { EXPECT_EQ(outline_of(u"\\C;\\c-1;"), "[\\C;\\c-1;]"); }

TEST(ParseCode, alignments_other_than_1_and_2_are_0) {
  EXPECT_EQ(format_of(u"\\A1;a").align, 1u);
  EXPECT_EQ(format_of(u"\\A2;a").align, 2u);
  EXPECT_EQ(format_of(u"\\A3;a", {.align = 2}).align, 0u);
}

TEST(ParseFont, a_typeface_takes_its_options) {
  auto format = format_of(u"\\fArial|b1|i0|c204|p34;a", {.flags = format::flag_italic});

  EXPECT_EQ(format.font, u"Arial");
  EXPECT_EQ(format.flags, format::flag_bold);
  EXPECT_EQ(format.charset, 204u);
  EXPECT_EQ(format.pitch, 34u);
  EXPECT_FALSE(format.is_shx);
}

TEST(ParseFont, a_shape_font_gets_its_suffix_unless_it_has_it) {
  EXPECT_EQ(format_of(u"\\Ftxt|c0;a").font, u"txt.shx");
  EXPECT_TRUE(format_of(u"\\Ftxt|c0;a").is_shx);
  EXPECT_EQ(format_of(u"\\Ftxt.shx;a").font, u"txt.shx");
  EXPECT_EQ(format_of(u"\\Ftxt.SHX;a").font, u"txt.SHX.shx");
  EXPECT_EQ(format_of(u"\\Fa;a").font, u"a.shx");
}

TEST(ParseFont, options_that_are_not_given_are_inherited) {
  auto format = format_of(u"\\fA;a", {.pitch = 7, .flags = format::flag_bold, .charset = 9});

  EXPECT_EQ(format.pitch, 7u);
  EXPECT_EQ(format.charset, 9u);
  EXPECT_EQ(format.flags, format::flag_bold);
}

TEST(ParseFont, a_font_without_a_name_is_text) {
  EXPECT_EQ(outline_of(u"\\f;"), "[\\f;]");
  EXPECT_EQ(outline_of(u"\\F|b1;"), "[\\F|b1;]");
  EXPECT_EQ(outline_of(u"\\f"), "[\\f]");
}

TEST(ParseFont, an_option_without_its_digits_ends_the_options) {
  auto format = format_of(u"\\fA|c|b1;a", {.charset = 3});

  EXPECT_EQ(format.charset, 3u);
  EXPECT_EQ(format.flags, 0u);
}
