#include <gtest/gtest.h>

#include <cmath>

#include "mtext/entity/dtext_size_finder.h"
#include "od/db/OdDbDatabase.h"

namespace {

mtext::format::string sans(double height) {
  return {.height = height, .height_kind = 0, .font = u"Liberation Sans"};
}

mtext::format::string shape(double height) {
  return {.height = height, .height_kind = 0, .font = u"txt.shx", .is_shx = true};
}

void expect_equal(const mtext::string_metrics& a, const mtext::string_metrics& b) {
  EXPECT_EQ(a.head, b.head);
  EXPECT_EQ(a.above, b.above);
  EXPECT_EQ(a.below, b.below);
  EXPECT_EQ(a.gap, b.gap);
  EXPECT_EQ(a.advance, b.advance);
  EXPECT_EQ(a.left_bearing, b.left_bearing);
  EXPECT_EQ(a.right_bearing, b.right_bearing);
  EXPECT_EQ(a.ink_top, b.ink_top);
  EXPECT_EQ(a.ink_bottom, b.ink_bottom);
}

struct SizeFinder : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  mtext::mtext_size_finder finder{database};

  mtext::dtext_size_finder single_line(OdDb::TextVertMode mode, std::uint32_t attachment = 0) const {
    return {database, mode, attachment};
  }
};

}  // namespace

TEST_F(SizeFinder, above_is_the_height_of_the_format) {
  EXPECT_DOUBLE_EQ(finder.font_metrics(sans(2.5)).above, 2.5);
  EXPECT_DOUBLE_EQ(finder.font_metrics(shape(4)).above, 4);
}

TEST_F(SizeFinder, a_height_of_0_gives_all_font_values_0) {
  const auto font = finder.font_metrics(sans(0));
  EXPECT_EQ(font.head, 0);
  EXPECT_EQ(font.above, 0);
  EXPECT_EQ(font.below, 0);
  EXPECT_EQ(font.gap, 0);
}

TEST_F(SizeFinder, a_shape_font_s_line_pitch_is_five_thirds_of_its_height_whatever_its_file_reports) {
  const auto font = finder.font_metrics(shape(3));
  EXPECT_NEAR(font.head + font.above + font.below + font.gap, 5, 1e-9);
}

TEST_F(SizeFinder, measuring_one_blank_yields_the_advance_of_a_space_without_ink) {
  const auto blank = finder.measure(sans(2.5), u" ");
  EXPECT_GT(blank.advance, 0);
  EXPECT_EQ(blank.right_bearing, blank.advance);
}

TEST_F(SizeFinder, measuring_the_empty_text_yields_the_font_and_zeros) {
  const auto nothing = finder.measure(sans(2.5), u"");
  EXPECT_DOUBLE_EQ(nothing.above, 2.5);
  EXPECT_EQ(nothing.advance, 0);
  EXPECT_EQ(nothing.ink_top, 0);
  EXPECT_EQ(nothing.ink_bottom, 0);
}

TEST_F(SizeFinder, the_width_factor_widens_the_advance) {
  auto wide = sans(2.5);
  wide.width_factor = 2;
  EXPECT_NEAR(finder.measure(wide, u"a").advance, 2 * finder.measure(sans(2.5), u"a").advance, 1e-9);
}

TEST_F(SizeFinder, what_is_remembered_has_the_numbers_of_the_first_look) {
  for (const char16_t* text : {u"a", u"g", u" ", u"", u"W"}) {
    const auto first = finder.measure(sans(2.5), text);
    expect_equal(finder.measure(sans(2.5), text), first);
    expect_equal(mtext::mtext_size_finder(finder).measure(sans(2.5), text), first);
  }
}

TEST_F(SizeFinder, bold_and_upright_text_are_remembered_apart) {
  auto bold = sans(2.5);
  bold.flags = mtext::format::flag_bold;
  const double upright = finder.measure(sans(2.5), u"i").advance;
  EXPECT_NE(finder.measure(bold, u"i").advance, upright);
  EXPECT_EQ(finder.measure(sans(2.5), u"i").advance, upright);
}

TEST_F(SizeFinder, a_height_that_is_no_number_is_remembered_apart) {
  const double advance = finder.measure(sans(2.5), u"a").advance;
  finder.measure(sans(std::nan("")), u"a");
  EXPECT_EQ(finder.measure(sans(2.5), u"a").advance, advance);
  EXPECT_NEAR(finder.measure(sans(5), u"a").advance, 2 * advance, 1e-9);
}

TEST_F(SizeFinder, single_line_text_never_uses_the_ink_depth_of_a_letter) {
  EXPECT_EQ(single_line(OdDb::kTextBase).measure(sans(2.5), u"a").ink_bottom,
            finder.font_metrics(sans(2.5)).below);
  EXPECT_EQ(single_line(OdDb::kTextVertMid, 1).measure(sans(2.5), u"g").ink_bottom, 0);
}

TEST_F(SizeFinder, with_vertical_mode_0_or_1_bearings_never_shift_whatever_the_oblique_angle) {
  auto slanted = sans(2.5);
  slanted.oblique = 0.5;
  const auto plain = finder.measure(slanted, u"a");
  for (const auto mode : {OdDb::kTextBase, OdDb::kTextBottom}) {
    EXPECT_EQ(single_line(mode).measure(slanted, u"a").left_bearing, plain.left_bearing);
    EXPECT_EQ(single_line(mode).measure(slanted, u"a").right_bearing, plain.right_bearing);
  }
}

TEST_F(SizeFinder, a_slanted_line_keeps_its_reference_point_under_the_height_of_its_attachment) {
  auto slanted = sans(2);
  slanted.oblique = 0.5;
  const auto plain = finder.measure(slanted, u"a");
  const auto middle = single_line(OdDb::kTextVertMid).measure(slanted, u"a");
  const auto top = single_line(OdDb::kTextTop).measure(slanted, u"a");
  EXPECT_NEAR(middle.left_bearing - plain.left_bearing, std::tan(0.5), 1e-12);
  EXPECT_NEAR(plain.right_bearing - middle.right_bearing, std::tan(0.5), 1e-12);
  EXPECT_NEAR(top.left_bearing - plain.left_bearing, 2 * std::tan(0.5), 1e-12);
}

TEST(VerticalAttachment, follows_the_modes_of_the_text) {
  using mtext::vertical_attachment;
  EXPECT_EQ(vertical_attachment(OdDb::kTextLeft, OdDb::kTextBase), 0U);
  EXPECT_EQ(vertical_attachment(OdDb::kTextMid, OdDb::kTextBase), 1U);
  EXPECT_EQ(vertical_attachment(OdDb::kTextMid, OdDb::kTextBottom), 2U);
  EXPECT_EQ(vertical_attachment(OdDb::kTextLeft, OdDb::kTextVertMid), 1U);
  EXPECT_EQ(vertical_attachment(OdDb::kTextRight, OdDb::kTextTop), 0U);
}
