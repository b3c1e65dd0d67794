#include "mtext/next_tab_stop.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

TEST(NextTabStop, without_stops_a_grid_of_four_text_heights_lies_under_the_line) {
  EXPECT_EQ(places_of(decoded(u"a\tb\tc", frame(100))), (places{0, 6, 40, 46, 80}));
}

TEST(NextTabStop, the_grid_line_under_a_tab_is_not_its_stop) {
  EXPECT_EQ(decoded(u"\\pxi4;\ta", frame(100)).parts[1].x, 80);
}

TEST(NextTabStop, a_stop_of_the_paragraph_goes_before_the_grid) {
  EXPECT_EQ(places_of(decoded(u"\\pxt1,3;a\tb\tc", frame(100))), (places{0, 6, 10, 16, 30}));
}

TEST(NextTabStop, behind_the_last_stop_the_grid_goes_on) {
  EXPECT_EQ(places_of(decoded(u"\\pxt1;a\tb\tc", frame(100))), (places{0, 6, 10, 16, 40}));
}

TEST(NextTabStop, stops_are_sorted_before_use) {
  EXPECT_EQ(places_of(decoded(u"\\pxt3,1;a\tb\tc", frame(100))), (places{0, 6, 10, 16, 30}));
}

TEST(NextTabStop, centre_right_and_decimal_stops_place_their_text_like_left_ones) {
  EXPECT_EQ(decoded(u"\\pxtc3;\taa", frame(100)).parts[1].x, 30);
  EXPECT_EQ(decoded(u"\\pxtr3;\taa", frame(100)).parts[1].x, 30);
}

TEST(NextTabStop, a_grid_line_beyond_the_width_is_no_stop) {
  EXPECT_EQ(lines_of(decoded(u"a\tb", frame(39))), (texts{"a", ">b"}));
  EXPECT_EQ(lines_of(decoded(u"a\tb", frame(60))), (texts{"a>b"}));
}

TEST(NextTabStop, the_right_margin_counts_twice) {
  EXPECT_EQ(lines_of(decoded(u"\\pxr1;a\tb", frame(61))), (texts{"a>b"}));
  EXPECT_EQ(lines_of(decoded(u"\\pxr1;a\tb", frame(59))), (texts{"a", ">b"}));
}

TEST(NextTabStop, the_room_in_drawing_units_is_compared_with_a_stop_in_text_heights) {
  // The stop at 12 heights lies at 120, beyond the width of 100, and is taken all the same; the one at 101
  // isn't.
  EXPECT_EQ(lines_of(decoded(u"\\pxt12;a\tb", frame(100))), (texts{"a", ">b"}));
  EXPECT_EQ(decoded(u"\\pxt12;\tb", frame(100)).parts[1].x, 120);
  EXPECT_EQ(decoded(u"\\pxt101;\tb", frame(100)).parts[1].x, 40);
}

TEST(NextTabStop, a_word_that_does_not_fit_behind_its_stop_takes_the_tab_to_the_next_line) {
  const geom_multitext text = decoded(u"aaaaaaa\tbbb", frame(90));
  EXPECT_EQ(lines_of(text), (texts{"aaaaaaa", ">bbb"}));
  EXPECT_EQ(text.parts[7].x, 0);
  EXPECT_EQ(text.parts[7].size.advance, 40);
}

TEST(NextTabStop, the_label_of_a_hanging_paragraph_has_its_text_at_the_margin) {
  const geom_multitext text = decoded(u"\\pxi-2,l3;1.\tabc", frame(100));
  EXPECT_EQ(text.parts[0].x, 10);
  EXPECT_EQ(text.parts[3].x, 30);
}

TEST(NextTabStop, a_stop_before_the_margin_is_kept_by_a_hanging_paragraph) {
  EXPECT_EQ(decoded(u"\\pxi-2,l3,t2.5;1.\tabc", frame(100)).parts[3].x, 25);
}

TEST(NextTabStop, a_stop_behind_the_margin_gives_way_to_it_in_a_hanging_paragraph) {
  EXPECT_EQ(decoded(u"\\pxi-2,l3,t5;1.\tabc", frame(100)).parts[3].x, 30);
}

TEST(NextTabStop, only_the_first_line_of_a_paragraph_hangs) {
  const geom_multitext text = decoded(u"\\pxi-2,l3;1.\n\tabc", frame(100));
  EXPECT_EQ(text.parts[4].x, 40);
}

}  // namespace
}  // namespace mtext
