#include "mtext/dispose.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

constexpr double pitch = 50 / 3.0;

TEST(Dispose, an_empty_text_yields_no_lines_and_one_column_with_height_0) {
  const geom_multitext text = decoded(u"");
  EXPECT_TRUE(text.lines.empty());
  ASSERT_EQ(text.columns.size(), 1u);
  EXPECT_EQ(text.columns[0].height, 0);
}

TEST(Dispose, lines_follow_each_other_at_five_thirds_of_their_height) {
  const geom_multitext text = decoded(u"a\\Pb\\Pc");
  EXPECT_DOUBLE_EQ(text.lines[0].y, -10);
  EXPECT_DOUBLE_EQ(text.lines[1].y, -10 - pitch);
  EXPECT_DOUBLE_EQ(text.lines[2].y, -10 - 2 * pitch);
  EXPECT_DOUBLE_EQ(text.parts[2].y, text.lines[1].y);
  EXPECT_DOUBLE_EQ(text.columns[0].height, 3 * pitch);
}

TEST(Dispose, a_text_that_ends_in_a_paragraph_end_has_a_last_line_with_no_parts) {
  const geom_multitext text = decoded(u"ab\\P");
  ASSERT_EQ(lines_of(text), (texts{"ab|", ""}));
  EXPECT_EQ(text.lines[1].first, 3u);
  EXPECT_EQ(text.lines[1].last, 3u);
  EXPECT_DOUBLE_EQ(text.lines[1].y, -10 - pitch);
  EXPECT_EQ(text.lines[1].size.advance, 0);
  EXPECT_DOUBLE_EQ(text.lines[1].size.above, 10);
  EXPECT_DOUBLE_EQ(text.columns[0].height, 2 * pitch);
}

TEST(Dispose, the_last_empty_line_stands_where_the_alignment_of_its_paragraph_wants_the_caret) {
  EXPECT_EQ(decoded(u"a\\P\\pxi1,l2,ql;", frame(50)).lines[1].x, 30);
  EXPECT_EQ(decoded(u"a\\P\\pxqc;", frame(50)).lines[1].x, 25);
  EXPECT_EQ(decoded(u"a\\P\\pxqr,r1;", frame(50)).lines[1].x, 40);
}

TEST(Dispose, space_before_and_after_a_paragraph_plays_no_part) {
  EXPECT_DOUBLE_EQ(decoded(u"a\\P\\pxb2,a2;b").lines[1].y, -10 - pitch);
}

TEST(Dispose, a_tall_line_pushes_down_what_follows) {
  const geom_multitext text = decoded(u"{\\H2x;a}\\Pb");
  EXPECT_DOUBLE_EQ(text.lines[0].y, -20);
  EXPECT_DOUBLE_EQ(text.lines[1].y, -2 * pitch - 10);
}

TEST(Dispose, runs_anew_from_the_parts_alone) {
  geom_multitext text = decoded(u"aa bb", frame(20));
  text.lines.resize(7);
  text.info.columns.width = 0;
  dispose(text);
  EXPECT_EQ(lines_of(text), (texts{"aa bb"}));
  EXPECT_EQ(text.columns.size(), 1u);
}

TEST(Dispose, leaves_marks_alone) {
  geom_multitext text = decoded(u"ab");
  text.marks.push_back(new marks::selection(1, 2));
  dispose(text);
  EXPECT_EQ(text.marks[0].begin, 1u);
  EXPECT_EQ(text.marks[0].end, 2u);
}

TEST(Dispose, in_ink_mode_at_least_counts_from_the_baseline_of_the_line_before) {
  convert_info info = frame();
  info.extents_mode = 1;
  info.spacing = {1, 1};
  const geom_multitext text = decoded(u"a\n\\H2x;b", info);
  // The first line would end at -pitch; the second is placed by the descent of two heights below the
  // baseline.
  EXPECT_DOUBLE_EQ(text.lines[0].y, -10);
  EXPECT_DOUBLE_EQ(text.lines[1].y, -10 - 2 * pitch);
}

TEST(Dispose, in_ink_mode_a_column_ends_with_the_ink_of_its_last_line) {
  convert_info info = frame();
  info.extents_mode = 1;
  EXPECT_DOUBLE_EQ(decoded(u"a", info).columns[0].height, 10);
  EXPECT_DOUBLE_EQ(decoded(u"g", info).columns[0].height, 12);
}

}  // namespace
}  // namespace mtext
