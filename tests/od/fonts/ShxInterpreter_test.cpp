#include "od/fonts/ShxInterpreter.h"

#include <gtest/gtest.h>

#include "od/fonts/glyph_geometry.h"
#include "tests/od/fonts/glyph_text.h"
#include "tests/od/fonts/shp_compiler.h"

namespace {

constexpr double kTolerance = 0.001;

/// Runs shape 65 of a font of shapes whose vertical mode is allowed. More shapes may follow its bytes.
std::string run(const std::string& bytes, bool vertical = false) {
  ShxFile file = ShxFile::parse(compileShp("*0,4,a\n6,2,2,0\n*65,0,a\n" + bytes), "test.shx");
  return glyphText(ShxInterpreter(file, kTolerance).run(65, vertical));
}

/// Where the pen ends after shape 65, in whole tenths of thousandths.
OdGePoint2d endOf(const std::string& bytes) {
  ShxFile file = ShxFile::parse(compileShp("*0,4,a\n6,2,2,0\n*65,0,a\n" + bytes), "test.shx");
  ShxInterpreter interpreter(file, kTolerance);
  interpreter.run(65, false);
  return interpreter.penEnd();
}

/// All points of shape 65.
std::vector<OdGePoint2d> pointsOf(const std::string& bytes) {
  ShxFile file = ShxFile::parse(compileShp("*0,4,a\n6,2,2,0\n*65,0,a\n" + bytes), "test.shx");
  std::vector<OdGePoint2d> points;
  for (const auto& contour : ShxInterpreter(file, kTolerance).run(65, false).contours) {
    points.insert(points.end(), contour.begin(), contour.end());
  }
  return points;
}

void expectAt(const OdGePoint2d& p, double x, double y) {
  EXPECT_NEAR(p.x, x, 1e-9);
  EXPECT_NEAR(p.y, y, 1e-9);
}

}  // namespace

TEST(ShxInterpreter, draws_vectors_in_sixteen_directions) {
  EXPECT_EQ(run("020,021,022,023,024,0"), "0,0 2,0 4,1 6,3 7,5 7,7 > 7,0");
  EXPECT_EQ(run("025,026,027,028,0"), "0,0 -1,2 -3,4 -5,5 -7,5 > -7,0");
  EXPECT_EQ(run("029,02A,02B,02C,0"), "0,0 -2,-1 -4,-3 -5,-5 -5,-7 > -5,0");
  EXPECT_EQ(run("02D,02E,02F,0"), "0,0 1,-2 3,-4 5,-5 > 5,0");
}

TEST(ShxInterpreter, code_0_ends_the_shape) { EXPECT_EQ(run("010,0,010,0"), "0,0 1,0 > 1,0"); }

TEST(ShxInterpreter, codes_1_and_2_set_the_pen_down_and_up) {
  EXPECT_EQ(run("010,2,010,1,010,0"), "0,0 1,0 | 2,0 3,0 > 3,0");
}

TEST(ShxInterpreter, codes_3_and_4_divide_and_multiply_what_follows_and_add_up) {
  EXPECT_EQ(run("3,2,020,4,6,020,0"), "0,0 1,0 7,0 > 7,0");
}

TEST(ShxInterpreter, a_factor_of_0_changes_nothing) { EXPECT_EQ(run("3,0,4,0,020,0"), "0,0 2,0 > 2,0"); }

TEST(ShxInterpreter, codes_5_and_6_keep_a_place_and_go_back_to_it) {
  EXPECT_EQ(run("5,030,6,034,0"), "0,0 3,0 | 0,0 0,3 > 0,0");
}

TEST(ShxInterpreter, a_pop_without_push_is_passed_over) { EXPECT_EQ(run("6,010,6,0"), "0,0 1,0 > 1,0"); }

TEST(ShxInterpreter, code_7_runs_a_subshape_in_place) {
  EXPECT_EQ(run("010,7,66,010,0\n*66,0,b\n024,0\n"), "0,0 1,0 1,2 2,2 > 2,0");
}

TEST(ShxInterpreter, the_pen_is_down_at_the_start_of_a_subshape_and_stays_as_it_left_it) {
  EXPECT_EQ(run("2,010,7,66,010,0\n*66,0,b\n014,2,0\n"), "1,0 1,1 > 2,0");
}

TEST(ShxInterpreter, scale_and_stack_are_shared_with_subshapes) {
  EXPECT_EQ(run("7,66,010,7,67,014,0\n*66,0,b\n4,3,5,0\n*67,0,c\n6,3,3,0\n"), "0,0 3,0 | 0,0 0,1 > 0,0");
}

TEST(ShxInterpreter, code_8_draws_a_vector_of_signed_bytes) {
  EXPECT_EQ(run("8,(-3,10),8,(127,-128),0"), "0,0 -3,10 124,-118 > 124,0");
}

TEST(ShxInterpreter, code_9_draws_vectors_up_to_a_pair_of_zeros) {
  EXPECT_EQ(run("9,(1,2),(0,3),(-4,0),(0,0),010,0"), "0,0 1,2 1,5 -3,5 -2,5 > -2,0");
}

TEST(ShxInterpreter, code_10_draws_an_octant_arc_counter_clockwise) {
  // Radius 10 from octant 1 (45 degrees) over two octants to 135 degrees: straight to the left.
  OdGePoint2d end = endOf("10,(10,012),0");
  expectAt(end, -10 * std::sqrt(2.0), 0);
  for (const OdGePoint2d& p : pointsOf("10,(10,012),0")) {
    OdGePoint2d center{-10 / std::sqrt(2.0), -10 / std::sqrt(2.0)};
    EXPECT_NEAR(p.distanceTo(center), 10, 1e-9);
    EXPECT_GE(p.y, -1e-9) << "the arc goes over the top";
  }
}

TEST(ShxInterpreter, code_10_with_a_negative_octant_byte_runs_clockwise) {
  // From 0 degrees over two octants down to -90 degrees.
  expectAt(endOf("10,(4,-002),0"), -4, -4);
}

TEST(ShxInterpreter, code_10_with_no_octants_is_a_full_circle_and_ends_where_it_began) {
  std::vector<OdGePoint2d> points = pointsOf("10,(5,040),0");
  expectAt(endOf("10,(5,040),0"), 0, 0);
  expectAt(points.back(), 0, 0);
  double right = 0;
  for (const OdGePoint2d& p : points) right = std::max(right, p.x);
  EXPECT_NEAR(right, 10, 0.01) << "octant 4 starts on the left of the circle";
}

TEST(ShxInterpreter, an_arc_with_the_pen_up_only_moves) { EXPECT_EQ(run("2,10,(4,-002),0"), "> -4,0"); }

TEST(ShxInterpreter, code_11_starts_and_ends_within_octants) {
  // From 55 to 95 degrees with radius 3: offsets (55 - 45) * 256 / 45 = 56 and (95 - 90) * 256 / 45 = 28.
  double from = (45 + 56 * 45.0 / 256) * M_PI / 180, to = (90 + 28 * 45.0 / 256) * M_PI / 180;
  expectAt(endOf("11,(56,28,0,3,012),0"), 3 * (std::cos(to) - std::cos(from)),
           3 * (std::sin(to) - std::sin(from)));
}

TEST(ShxInterpreter, code_11_clockwise_mirrors_the_counting) {
  double from = (90 - 56 * 45.0 / 256) * M_PI / 180, to = (45 - 28 * 45.0 / 256) * M_PI / 180;
  expectAt(endOf("11,(56,28,0,3,-022),0"), 3 * (std::cos(to) - std::cos(from)),
           3 * (std::sin(to) - std::sin(from)));
}

TEST(ShxInterpreter, code_11_with_end_offset_0_ends_at_the_far_border_of_the_last_octant) {
  expectAt(endOf("11,(0,0,0,8,002),0"), -8, 8);
}

TEST(ShxInterpreter, code_11_counts_its_high_radius_byte_256_times) {
  expectAt(endOf("11,(0,0,1,44,002),0"), -300, 300);
}

TEST(ShxInterpreter, code_12_bulges_over_its_chord) {
  // 127 is a half circle, counter-clockwise: from (0,0) to (8,0) it hangs below.
  std::vector<OdGePoint2d> points = pointsOf("12,(8,0,127),0");
  double lowest = 0;
  for (const OdGePoint2d& p : points) {
    EXPECT_NEAR(p.distanceTo({4, 0}), 4, 1e-9);
    lowest = std::min(lowest, p.y);
  }
  EXPECT_NEAR(lowest, -4, 0.01);
  expectAt(endOf("12,(8,0,127),0"), 8, 0);
  // The height of an arc over half its chord is the bulge over 127: negative bends the other way.
  double highest = 0;
  for (const OdGePoint2d& p : pointsOf("12,(8,0,-64),0")) highest = std::max(highest, p.y);
  EXPECT_NEAR(highest, 4 * 64 / 127.0, 0.01);
}

TEST(ShxInterpreter, code_12_with_bulge_0_is_a_straight_line) {
  EXPECT_EQ(run("12,(8,6,0),0"), "0,0 8,6 > 8,0");
}

TEST(ShxInterpreter, code_13_draws_bulges_up_to_a_pair_of_zeros_without_a_third) {
  EXPECT_EQ(run("13,(1,2,0),(3,0,0),(0,0),010,0"), "0,0 1,2 4,2 5,2 > 5,0");
}

TEST(ShxInterpreter, code_14_keeps_the_next_instruction_for_vertical_text) {
  const std::string letter = "2,14,8,(-3,-6),1,064,2,060,14,8,(-3,-4),0";
  EXPECT_EQ(run(letter), "0,0 0,6 > 6,0");
  EXPECT_EQ(run(letter, /*vertical=*/true), "-3,-6 -3,0 > 0,-4");
}

TEST(ShxInterpreter, code_14_skips_every_instruction_with_all_its_operands) {
  EXPECT_EQ(run("14,020,14,1,14,2,14,3,2,14,4,2,14,5,14,6,010,0"), "0,0 1,0 > 1,0");
  EXPECT_EQ(run("14,7,65,14,8,(1,1),14,9,(1,0),(0,1),(0,0),010,0"), "0,0 1,0 > 1,0");
  EXPECT_EQ(run("14,10,(1,2),14,11,(1,2,3,4,5),14,12,(1,2,3),010,0"), "0,0 1,0 > 1,0");
  EXPECT_EQ(run("14,13,(1,0,9),(0,1,9),(0,0),14,14,010,010,0"), "0,0 1,0 > 1,0");
}

TEST(ShxInterpreter, code_14_is_skipped_in_a_font_without_vertical_mode) {
  ShxFile file = ShxFile::parse(compileShp("*0,4,a\n6,2,0,0\n*65,0,a\n14,020,010,0\n"), "test.shx");
  EXPECT_EQ(glyphText(ShxInterpreter(file, kTolerance).run(65, true)), "0,0 1,0 > 0,0");
}

TEST(ShxInterpreter, code_15_does_nothing) { EXPECT_EQ(run("15,010,0"), "0,0 1,0 > 1,0"); }

TEST(ShxInterpreter, calls_subshapes_of_a_unifont_by_two_bytes_high_first) {
  ShxFile file = ShxFile::parse(
      compileShp("*UNIFONT,6,a\n6,2,0,0,0,0\n*65,0,a\n7,020AC,010,0\n*020AC,0,e\n024,0\n"), "test.shx");
  EXPECT_EQ(glyphText(ShxInterpreter(file, kTolerance).run(65, false)), "0,0 0,2 1,2 > 1,0");
}

TEST(ShxInterpreter, fits_the_part_of_an_extended_bigfont_into_its_box_and_comes_back) {
  // The part fills the box of 10 by 20; it is drawn at (2,3), 5 wide and 10 high.
  ShxFile file = ShxFile::parse(compileShp("*BIGFONT 3,1,081,09F\n*0,5,a\n20,0,2,10,0\n"
                                           "*0889F,0,a\n7,0,08140,2,3,5,10,2,080,0\n"
                                           "*08140,0,p\n8,(10,20),0\n"),
                                "test.shx");
  EXPECT_EQ(glyphText(ShxInterpreter(file, kTolerance).run(0x889F, false)), "2,3 7,13 > 8,0");
}

TEST(ShxInterpreter, draws_shapes_that_a_bigfont_lacks_with_the_glyphs_of_another_font) {
  ShxFile file = ShxFile::parse(
      compileShp("*BIGFONT 2,1,07E,07E\n*0,4,a\n21,7,2,0\n*07E41,0,a\n010,7,65,010,0\n"), "test.shx");
  OdFontGlyph letter{.contours = {{{0, 0}, {0, 5}}}, .advance = {4, 0}};
  ShxInterpreter interpreter(file, kTolerance,
                             [&](unsigned number) { return number == 65 ? &letter : nullptr; });
  EXPECT_EQ(glyphText(interpreter.run(0x7E41, false)), "0,0 1,0 | 1,0 1,5 | 5,0 6,0 > 6,0");
}

TEST(ShxInterpreter, a_shape_that_calls_itself_comes_to_an_end) {
  ShxFile file = ShxFile::parse(compileShp("*0,4,a\n6,2,2,0\n*65,0,a\n010,7,65,7,65,7,65,0\n"), "test.shx");
  OdFontGlyph glyph = ShxInterpreter(file, kTolerance).run(65, false);
  EXPECT_FALSE(odGlyphBox(glyph).isEmpty);
}

TEST(ShxInterpreter, two_shapes_that_call_each_other_are_drawn_to_the_greatest_depth) {
  std::string text = run("010,7,66,0\n*66,0,b\n014,7,65,0\n");
  EXPECT_TRUE(text.starts_with("0,0 1,0 1,1 2,1 2,2 ")) << text;
  EXPECT_TRUE(text.ends_with("> 16,0")) << "32 shapes deep, half of them to the right: " << text;
}

TEST(ShxInterpreter, a_scale_that_grows_without_end_stops_the_shape) {
  std::string bytes = "010,";
  for (int i = 0; i < 200; ++i) bytes += "4,255,";
  EXPECT_EQ(run(bytes + "010,010,0"), "0,0 1,0 > 1,0");
}

TEST(ShxInterpreter, instructions_that_break_off_end_the_shape) {
  EXPECT_EQ(run("010,8,1"), "0,0 1,0 2,0 > 2,0");
  EXPECT_EQ(run("010,9"), "0,0 1,0 > 1,0");
  EXPECT_EQ(run("010,14"), "0,0 1,0 > 1,0");
}
