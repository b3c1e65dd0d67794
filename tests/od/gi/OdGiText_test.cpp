#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "od/fonts/OdFont.h"
#include "od/gi/OdGiRecorder.h"
#include "od/gi/OdGiTextStyle.h"
#include "tests/od/gi/test_fonts.h"

namespace {

const TestFonts& fonts() {
  static const TestFonts all;
  return all;
}

/// The box font at a height of 9, so that its units are drawing units.
OdGiTextStyle boxStyle(double height = 9) {
  OdGiTextStyle style;
  style.setFileName(u"box.lff");
  style.setTextSize(height);
  style.loadStyleRec(fonts());
  return style;
}

std::string drawn(std::u16string_view text, const OdGiTextStyle& style, bool raw = true) {
  OdGiRecorder pen;
  pen.text({0, 0, 0}, {0, 0, 1}, {1, 0, 0}, text, raw, style);
  return pen.describe();
}

}  // namespace

TEST(OdGiText, of_a_stroke_font_is_drawn_as_polylines) {
  EXPECT_EQ(drawn(u"AI", boxStyle()), "polyline (0,0) (0,9) (6,9)\npolyline (9,0) (9,9)\n");
}

TEST(OdGiText, is_as_high_as_the_style_says) {
  EXPECT_EQ(drawn(u"A", boxStyle(2.5)), "polyline (0,0) (0,2.5) (1.66667,2.5)\n");
}

TEST(OdGiText, runs_along_its_direction_from_its_position) {
  OdGiRecorder pen;
  pen.text({100, 50, 7}, {0, 0, 1}, {0, 3, 0}, u"A", true, boxStyle());
  EXPECT_EQ(pen.describe(), "polyline (100,50,7) (91,50,7) (91,56,7)\n");
}

TEST(OdGiText, stands_up_where_its_normal_lies_down) {
  OdGiRecorder pen;
  pen.text({0, 0, 0}, {0, -1, 0}, {1, 0, 0}, u"A", true, boxStyle());
  EXPECT_EQ(pen.describe(), "polyline (0,0) (0,0,9) (6,0,9)\n");
}

TEST(OdGiText, goes_through_the_model_transform_and_keeps_the_traits) {
  OdGiRecorder pen;
  pen.pushModelTransform(OdGeMatrix3d::translation({10, 0, 0}));
  pen.traits().setColor(1);
  pen.text({0, 0, 0}, {0, 0, 1}, {1, 0, 0}, u"I", true, boxStyle());
  EXPECT_EQ(pen.describe(), "polyline (10,0) (10,9) color 1\n");
}

TEST(OdGiText, is_widened_by_the_width_factor_and_its_tracking) {
  OdGiTextStyle style = boxStyle();
  style.setXScale(2);
  EXPECT_EQ(drawn(u"AI", style), "polyline (0,0) (0,9) (12,9)\npolyline (18,0) (18,9)\n");
  style.setXScale(1);
  style.setTrackingPercent(1.5);
  EXPECT_EQ(drawn(u"AI", style), "polyline (0,0) (0,9) (6,9)\npolyline (13.5,0) (13.5,9)\n");
}

TEST(OdGiText, leans_by_the_obliquing_angle) {
  OdGiTextStyle style = boxStyle();
  style.setObliquingAngle(std::atan(1.0 / 3));
  EXPECT_EQ(drawn(u"AI", style), "polyline (0,0) (3,9) (9,9)\npolyline (9,0) (12,9)\n");
}

TEST(OdGiText, is_mirrored_backward_and_upside_down) {
  OdGiTextStyle style = boxStyle();
  style.setBackward(true);
  EXPECT_EQ(drawn(u"AI", style), "polyline (0,0) (0,9) (-6,9)\npolyline (-9,0) (-9,9)\n");
  style.setBackward(false);
  style.setUpsideDown(true);
  EXPECT_EQ(drawn(u"A", style), "polyline (0,0) (0,-9) (6,-9)\n");
}

TEST(OdGiText, runs_downwards_where_style_and_font_are_vertical) {
  OdGiTextStyle style;
  style.setFileName(u"down.shx");
  style.setTextSize(6);
  style.loadStyleRec(fonts());
  EXPECT_EQ(drawn(u"AA", style), "polyline (0,0) (0,6)\npolyline (6,0) (6,6)\n");
  style.setVertical(true);
  EXPECT_EQ(drawn(u"AA", style), "polyline (-3,-6) (-3,0)\npolyline (-3,-16) (-3,-10)\n");
  OdGiTextStyle level = boxStyle();
  level.setVertical(true);
  EXPECT_EQ(drawn(u"I", level), drawn(u"I", boxStyle())) << "a font without that mode stays level";
}

TEST(OdGiText, reads_percent_sequences_unless_it_is_raw) {
  EXPECT_EQ(drawn(u"%%d", boxStyle(), /*raw=*/false), "polyline (0,6) (3,6)\n");
  EXPECT_EQ(drawn(u"%%cI", boxStyle(), /*raw=*/false), "polyline (0,0) (6,0)\npolyline (9,0) (9,9)\n");
}

TEST(OdGiText, draws_the_lines_along_it_from_toggle_to_toggle) {
  EXPECT_EQ(drawn(u"I%%uA%%uI", boxStyle(), /*raw=*/false),
            "polyline (0,0) (0,9)\n"
            "polyline (3,0) (3,9) (9,9)\n"
            "polyline (12,0) (12,9)\n"
            "polyline (3,-1.8) (12,-1.8)\n");
  EXPECT_EQ(drawn(u"%%oI", boxStyle(), /*raw=*/false), "polyline (0,0) (0,9)\npolyline (0,10.8) (3,10.8)\n");
  EXPECT_EQ(drawn(u"%%kI", boxStyle(), /*raw=*/false), "polyline (0,0) (0,9)\npolyline (0,4.5) (3,4.5)\n");
}

TEST(OdGiText, of_a_typeface_is_one_filled_polygon_a_character) {
  OdGiTextStyle style;
  style.setFont(u"Liberation Sans", false, false, 0, 34);
  style.setTextSize(1409);
  style.loadStyleRec(fonts());
  OdGiRecorder pen;

  pen.text({0, 0, 0}, {0, 0, 1}, {1, 0, 0}, u"H o", true, style);

  ASSERT_EQ(pen.primitives().size(), 2u);
  const OdGiPrimitive &h = pen.primitives()[0], &o = pen.primitives()[1];
  EXPECT_EQ(
      h.describe(),
      "polygon (1121,0) (1121,653) (359,653) (359,0) (168,0) (168,1409) (359,1409) (359,813) (1121,813) "
      "(1121,1409) (1312,1409) (1312,0)");
  EXPECT_EQ(o.contours.size(), 2u);
  EXPECT_EQ(pen.traits().fillType(), kOdGiFillNever) << "the fill type in force is not touched";
}

TEST(OdGiText, a_surrogate_pair_is_one_polygon) {
  OdGiTextStyle style;
  style.setFont(u"DejaVu Sans", false, false, 0, 34);
  style.loadStyleRec(fonts());
  OdGiRecorder pen;
  pen.text({0, 0, 0}, {0, 0, 1}, {1, 0, 0}, u"😀", true, style);
  EXPECT_EQ(pen.primitives().size(), 1u);
}

TEST(OdGiText, with_a_style_that_is_not_loaded_throws) {
  OdGiRecorder pen;
  EXPECT_THROW(pen.text({0, 0, 0}, {0, 0, 1}, {1, 0, 0}, u"A", true, OdGiTextStyle()), OdError);
}

TEST(OdGiText, empty_draws_nothing) { EXPECT_EQ(drawn(u"", boxStyle()), ""); }
