#include <gtest/gtest.h>

#include "mtext/ensure.h"
#include "tests/mtext/labelled.h"

namespace mtext {
namespace {

constexpr bool deeper = true;
constexpr bool up = false;

/// Indents the first label of a text that starts with it.
void indent(geom_multitext& text, bool direction) {
  indent_numbering(text, *labels_of(text)[0], text.format, stub_finder(), direction,
                   marks::default_letters());
}

geom_multitext indented(const std::u16string& codes, bool direction) {
  geom_multitext text = labelled(codes);
  indent(text, direction);
  return text;
}

/// The positions of the tab stops.
places stops_of(const geom_multitext& text) {
  places found;
  for (const format::tab_stop& each : text.format.tabs) found.push_back(each.position);
  return found;
}

TEST(IndentNumbering, deeper_adds_a_level_of_the_same_kind_and_lowers_the_one_above) {
  EXPECT_EQ(drawn(indented(u"3.\tx", deeper)), "2.1.>x");
  EXPECT_EQ(drawn(indented(u"c.\tx", deeper)), "b.a.>x");
  EXPECT_EQ(drawn(indented(u"\u00b7\tx", deeper)), "\xb7\xb7>x");
}

TEST(IndentNumbering, deeper_leaves_a_first_item_and_a_zero_as_they_are) {
  EXPECT_EQ(drawn(indented(u"1.\tx", deeper)), "1.1.>x");
  EXPECT_EQ(drawn(indented(u"0.\tx", deeper)), "0.1.>x");
}

TEST(IndentNumbering, deeper_hangs_the_label_two_heights_to_the_left_of_a_text_three_heights_in) {
  const geom_multitext text = indented(u"1.\tx", deeper);
  EXPECT_EQ(text.format.indent, -2.0);
  EXPECT_EQ(text.format.left, 3.0);
  EXPECT_EQ(stops_of(text), places{6.0});
}

TEST(IndentNumbering, the_first_tab_stop_moves_and_the_others_go) {
  EXPECT_EQ(stops_of(indented(u"\\pxt4,9;1.\tx", deeper)), places{7.0});
  EXPECT_EQ(stops_of(indented(u"\\pxt4,9;1.1.\tx", up)), places{1.0});
}

TEST(IndentNumbering, a_stop_that_is_made_is_a_left_one_with_a_blank) {
  const geom_multitext text = indented(u"1.\tx", deeper);
  EXPECT_EQ(text.format.tabs[0].kind, 0u);
  EXPECT_EQ(text.format.tabs[0].decimal_char, u' ');
}

TEST(IndentNumbering, the_alphabet_of_a_number_does_not_go_down_with_it) {
  geom_multitext text = decoded(u"xyz");
  text.marks.push_back(new marks::numbering(0, 1, {{2, 0, 5}}));
  indent(text, deeper);
  EXPECT_EQ(labels_of(text)[0]->indices, (levels{{1, 0, 5}, {1, 0, 0}}));
}

TEST(IndentNumbering, up_removes_a_level_and_counts_the_one_above_on) {
  const geom_multitext text = indented(u"2.5.\tx", up);
  EXPECT_EQ(drawn(text), "3.>x");
  EXPECT_EQ(text.format.indent, 2.0);
  EXPECT_EQ(text.format.left, -3.0);
  EXPECT_EQ(stops_of(text), places{3.0});
}

TEST(IndentNumbering, up_on_an_item_of_one_level_leaves_a_plain_paragraph_without_indents_and_tabs) {
  geom_multitext text = indented(u"\\pxi-2,l3,r1,t3;1.\tx", up);
  EXPECT_EQ(drawn(text), "x");
  EXPECT_EQ(text.format.indent, 0.0);
  EXPECT_EQ(text.format.left, 0.0);
  EXPECT_EQ(text.format.right, 1.0);
  EXPECT_TRUE(text.format.tabs.empty());
  ASSERT_EQ(labels_of(text).size(), 1u);
  EXPECT_TRUE(labels_of(text)[0]->empty());
}

TEST(IndentNumbering, down_twice_and_up_twice_comes_back_to_the_next_number) {
  geom_multitext text = labelled(u"\\pxi-1,l3,t3;1.\tx");
  for (const bool direction : {deeper, deeper, up, up}) indent(text, direction);
  EXPECT_EQ(drawn(text), "2.>x");
  EXPECT_EQ(text.format.indent, -1.0);
  EXPECT_EQ(text.format.left, 3.0);
  EXPECT_EQ(stops_of(text), places{3.0});
}

TEST(IndentNumbering, of_a_label_without_levels_is_an_error) {
  geom_multitext text = decoded(u"xyz");
  text.marks.push_back(new marks::numbering());
  EXPECT_THROW(indent(text, deeper), ensure_error);
}

TEST(ClearNumbering, takes_the_label_and_the_indents_and_leaves_an_empty_mark) {
  geom_multitext text = labelled(u"\\pxi-2,l3,r1,t3;1.2.\tx");
  clear_numbering(text, *labels_of(text)[0], text.format);
  EXPECT_EQ(drawn(text), "x");
  EXPECT_EQ(text.format.left, 0.0);
  EXPECT_EQ(text.format.right, 1.0);
  EXPECT_TRUE(text.format.tabs.empty());
  EXPECT_TRUE(labels_of(text)[0]->empty());
}

TEST(ClearNumbering, of_a_mark_beyond_the_text_throws_and_leaves_the_paragraph) {
  geom_multitext text = decoded(u"\\pxl3;abc");
  marks::numbering label(1, 9, {{1, 0, 0}});
  EXPECT_THROW(clear_numbering(text, label, text.format), std::invalid_argument);
  EXPECT_EQ(text.format.left, 3.0);
}

}  // namespace
}  // namespace mtext
