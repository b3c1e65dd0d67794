#include "mtext/line_pitch.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

string_metrics line_of_height(double above) { return {0, above, above / 3, above / 3, 0, 0, 0, 0, 0}; }

TEST(LinePitch, at_least_has_its_baseline_one_height_below_the_top_at_single_spacing) {
  const line_pitch pitch = pitch_of_line({spacing_style::at_least, 1}, line_of_height(10), frame());
  EXPECT_DOUBLE_EQ(pitch.rise, 10);
  EXPECT_DOUBLE_EQ(pitch.pitch, 50 / 3.0);
}

TEST(LinePitch, at_least_takes_the_greater_of_its_value_and_the_line) {
  EXPECT_DOUBLE_EQ(pitch_of_line({spacing_style::at_least, 2}, line_of_height(10), frame()).pitch, 100 / 3.0);
  EXPECT_DOUBLE_EQ(pitch_of_line({spacing_style::at_least, 1}, line_of_height(20), frame()).pitch, 100 / 3.0);
  EXPECT_DOUBLE_EQ(pitch_of_line({spacing_style::at_least, 2}, line_of_height(10), frame()).rise, 70 / 3.0);
}

TEST(LinePitch, with_exactly_the_pitch_does_not_depend_on_the_fonts_of_the_line) {
  const line_pitch low = pitch_of_line({spacing_style::exactly, 1}, line_of_height(5), frame());
  const line_pitch high = pitch_of_line({spacing_style::exactly, 1}, line_of_height(50), frame());
  EXPECT_DOUBLE_EQ(low.pitch, 50 / 3.0);
  EXPECT_EQ(low.pitch, high.pitch);
  EXPECT_EQ(low.rise, high.rise);
}

TEST(LinePitch, multiple_is_a_factor_of_the_line_itself) {
  const line_pitch pitch = pitch_of_line({spacing_style::multiple, 2}, line_of_height(20), frame());
  EXPECT_DOUBLE_EQ(pitch.rise, 20);
  EXPECT_DOUBLE_EQ(pitch.pitch, 200 / 3.0);
}

TEST(LinePitch, multiple_counts_ink_above_the_height_in_ink_mode) {
  convert_info info = frame();
  info.extents_mode = 1;
  string_metrics line = line_of_height(9);
  line.ink_top = 12;
  const line_pitch pitch = pitch_of_line({spacing_style::multiple, 2}, line, info);
  EXPECT_DOUBLE_EQ(pitch.rise, 12);
  EXPECT_DOUBLE_EQ(pitch.pitch, (6 + 12) * 2);
}

TEST(LinePitch, an_unknown_style_takes_no_room) {
  const line_pitch pitch = pitch_of_line({7, 1}, line_of_height(10), frame());
  EXPECT_EQ(pitch.rise, 0);
  EXPECT_EQ(pitch.pitch, 0);
}

TEST(LinePitch, the_paragraph_goes_before_the_entity_and_single_lines_stand_behind_both) {
  convert_info info = frame();
  info.spacing = {spacing_style::exactly, 3};
  format::paragraph paragraph;
  paragraph.spacing = {spacing_style::at_least, 2};
  EXPECT_EQ(effective_spacing(paragraph, info).style, spacing_style::at_least);
  paragraph.spacing.style = spacing_style::none;
  EXPECT_EQ(effective_spacing(paragraph, info).value, 3);
  info.spacing.style = spacing_style::none;
  EXPECT_EQ(effective_spacing(paragraph, info).style, spacing_style::multiple);
  EXPECT_EQ(effective_spacing(paragraph, info).value, 1);
}

}  // namespace
}  // namespace mtext
