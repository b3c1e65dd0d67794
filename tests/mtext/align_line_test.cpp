#include "mtext/align_line.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

convert_info inked(double width, std::uint32_t mode) {
  convert_info info = frame(width);
  info.extents_mode = mode;
  return info;
}

TEST(AlignLine, left_leaves_the_parts_where_they_are) {
  EXPECT_EQ(places_of(decoded(u"\\pxql;ab", frame(50))), (places{0, 6}));
}

TEST(AlignLine, centre_and_right_move_the_line_by_the_free_room) {
  EXPECT_EQ(places_of(decoded(u"\\pxqc;ab", frame(50))), (places{19, 25}));
  EXPECT_EQ(places_of(decoded(u"\\pxqr;ab", frame(50))), (places{38, 44}));
}

TEST(AlignLine, a_paragraph_without_alignment_takes_that_of_the_entity) {
  convert_info info = frame(50);
  info.alignment = 3;
  EXPECT_EQ(places_of(decoded(u"ab", info)), (places{38, 44}));
  EXPECT_EQ(places_of(decoded(u"\\pxql;ab", info)), (places{0, 6}));
}

TEST(AlignLine, a_line_that_ends_its_paragraph_is_aligned_by_the_paragraph_it_belongs_to) {
  const geom_multitext text = decoded(u"\\pxqr;ab\\P\\pxql;cd", frame(50));
  EXPECT_EQ(text.parts[0].x, 38);
  EXPECT_EQ(text.parts[3].x, 0);
}

TEST(AlignLine, with_width_0_a_centred_line_lies_around_0) {
  EXPECT_EQ(places_of(decoded(u"\\pxqc;ab")), (places{-6, 0}));
}

TEST(AlignLine, the_advance_counts_with_the_blanks_that_hang_over) {
  EXPECT_EQ(decoded(u"\\pxqr;aaa  bb", frame(20)).parts[0].x, 20 - 24);
}

TEST(AlignLine, in_ink_mode_text_starts_with_its_ink_and_the_ink_counts) {
  EXPECT_DOUBLE_EQ(decoded(u"ab", inked(50, 1)).parts[0].x, -0.5);
  EXPECT_DOUBLE_EQ(decoded(u"\\pxqr;ab", inked(50, 1)).parts[0].x, 50 - 11 - 0.5);
}

TEST(AlignLine, the_third_mode_goes_by_ink_for_shape_fonts_alone) {
  const std::u16string shape = u"\\pxqr;\\Ftxt|c0;ab";
  EXPECT_DOUBLE_EQ(decoded(shape, inked(50, 2)).parts[0].x, 50 - 11 - 0.5);
  EXPECT_DOUBLE_EQ(decoded(u"\\pxqr;ab", inked(50, 2)).parts[0].x, 38);
  EXPECT_DOUBLE_EQ(decoded(u"\\pxql;\\Ftxt|c0;ab", inked(50, 2)).parts[0].x, 0);
}

TEST(AlignLine, justified_spreads_between_words) {
  const geom_multitext text = decoded(u"\\pxqj;aa bb cccc", frame(40));
  ASSERT_EQ(lines_of(text), (texts{"aa bb ", "cccc"}));
  // The advance of 30 counts with the blank that hangs over; the free 10 go into the one blank between words.
  EXPECT_EQ(text.parts[3].x, 15 + 10);
  EXPECT_EQ(text.parts[5].x, 27 + 10);
}

TEST(AlignLine, justified_leaves_the_last_line_of_the_text) {
  EXPECT_EQ(places_of(decoded(u"\\pxqj;a b", frame(50))), (places{0, 6, 9}));
}

TEST(AlignLine, justified_does_not_stretch_a_line_that_ends_in_a_line_end) {
  EXPECT_EQ(decoded(u"\\pxqj;a b\nc", frame(50)).parts[2].x, 9);
  EXPECT_EQ(decoded(u"\\pxqj;a b\\Pc", frame(50)).parts[2].x, 9);
}

TEST(AlignLine, justified_begins_behind_the_last_tab) {
  const geom_multitext text = decoded(u"\\pxqj;a b\tc d eeeeee", frame(80));
  ASSERT_EQ(lines_of(text), (texts{"a b>c d ", "eeeeee"}));
  EXPECT_EQ(text.parts[2].x, 9);
  EXPECT_EQ(text.parts[4].x, 40);
  EXPECT_EQ(text.parts[6].x, 49 + (80 - 40 - 18));
}

TEST(AlignLine, distributed_spreads_between_characters_on_the_last_line_too) {
  EXPECT_EQ(places_of(decoded(u"\\pxqd;abc", frame(50))), (places{0, 22, 44}));
}

TEST(AlignLine, distributed_moves_a_paragraph_end_like_the_part_before_it_and_a_line_end_not_at_all) {
  const geom_multitext paragraphs = decoded(u"\\pxqd;abc\\Pd", frame(50));
  EXPECT_EQ(paragraphs.parts[3].x, 18 + 32);
  const geom_multitext lines = decoded(u"\\pxqd;abc\nd", frame(50));
  EXPECT_EQ(lines.parts[2].x, 44);
  EXPECT_EQ(lines.parts[3].x, 18);
}

TEST(AlignLine, distributed_leaves_one_character_at_its_start) {
  EXPECT_EQ(decoded(u"\\pxqd;a", frame(50)).parts[0].x, 0);
}

TEST(AlignLine, distributed_centres_a_line_that_overflows) {
  const geom_multitext text = decoded(u"\\pxqd;aaaaaa", frame(20));
  EXPECT_DOUBLE_EQ(text.parts[0].x, (20 - 35) * 0.5);
}

}  // namespace
}  // namespace mtext
