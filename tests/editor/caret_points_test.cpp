#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

namespace {

OdGePoint2d top_of(const edited_text& text) {
  OdGePoint2d top, bottom;
  text.text().caretPoints(text.text().selections()[0], top, bottom);
  return top;
}

}  // namespace

TEST(CaretPoints, stand_at_the_left_of_the_part_behind_the_caret) {
  edited_text text("a|bc");
  OdGePoint2d top, bottom;
  text.text().caretPoints(text.text().selections()[0], top, bottom);
  EXPECT_DOUBLE_EQ(top.x, 1.5);
  EXPECT_NEAR(top.y, 0, 1e-12);
  EXPECT_DOUBLE_EQ(bottom.y, -2.5 - 2.5 / 3);
}

TEST(CaretPoints, at_the_end_stand_behind_the_last_part) {
  EXPECT_DOUBLE_EQ(top_of(edited_text("abc|")).x, 4.5);
}

TEST(CaretPoints, behind_a_break_at_the_end_stand_in_the_empty_line) {
  const OdGePoint2d top = top_of(edited_text("abc¶|"));
  EXPECT_DOUBLE_EQ(top.x, 0);
  EXPECT_NEAR(top.y, -2.5 * 5 / 3, 1e-12);
}

TEST(CaretPoints, in_an_empty_text_follow_alignment_and_attachment) {
  mtext::convert_info info = wrapping(20);
  info.alignment = 2;
  EXPECT_DOUBLE_EQ(top_of(edited_text("|", info)).x, 10);
  info.alignment = 3;
  EXPECT_DOUBLE_EQ(top_of(edited_text("|", info)).x, 20);
  info.vertical = 2;
  info.columns.heights = {8};
  EXPECT_DOUBLE_EQ(top_of(edited_text("|", info)).y, -8);
}

TEST(CaretPoints, in_an_empty_text_follow_the_paragraph) {
  auto text = edited_text::on_codes("\\pxl2;", wrapping(20));
  EXPECT_DOUBLE_EQ(top_of(text).x, 5);
}
