#include "mtext/geom_part.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/mtext/stub_finder.h"

namespace mtext {
namespace {

format::string ten_high() {
  format::string format;
  format.height = 10;
  format.height_kind = 0;
  return format;
}

template <class Element>
Element updated(Element element) {
  element.update(stub_finder());
  return element;
}

TEST(GeomPart, a_fresh_one_is_all_zeros) {
  const geom_tab part{tab(ten_high())};
  EXPECT_EQ(part.x, 0);
  EXPECT_EQ(part.y, 0);
  EXPECT_EQ(part.size.above, 0);
  EXPECT_EQ(part.size.advance, 0);
}

TEST(GeomPart, a_word_measures_its_character) {
  const geom_word word = updated(geom_word(string(ten_high(), u"m")));
  EXPECT_DOUBLE_EQ(word.size.advance, 9);
  EXPECT_DOUBLE_EQ(word.size.above, 10);
}

TEST(GeomPart, spaces_measure_one_blank) {
  EXPECT_DOUBLE_EQ(updated(geom_spaces(spaces(ten_high(), 1))).size.advance, 3);
}

TEST(GeomPart, a_tab_has_the_height_of_its_font_and_no_width) {
  const geom_tab part = updated(geom_tab(tab(ten_high())));
  EXPECT_DOUBLE_EQ(part.size.above, 10);
  EXPECT_EQ(part.size.advance, 0);
}

TEST(GeomPart, line_end_and_paragraph_end_are_a_fifth_of_their_line_height_wide) {
  const double height = 10 + 10 / 3.0 + 10 / 3.0;
  EXPECT_DOUBLE_EQ(updated(geom_new_line(new_line(ten_high()))).size.advance, height * 0.2);
  const geom_new_paragraph end = updated(geom_new_paragraph(new_paragraph({}, ten_high(), false)));
  EXPECT_DOUBLE_EQ(end.size.advance, height * 0.2);
}

TEST(GeomPart, a_stack_is_as_wide_as_its_wider_half_at_seven_tenths_of_the_height) {
  const geom_stack part = updated(geom_stack(stack(ten_high(), u"a", u"bcd", 0)));
  EXPECT_DOUBLE_EQ(part.top_size.advance, 4.2);
  EXPECT_DOUBLE_EQ(part.bottom_size.advance, 12.6);
  EXPECT_DOUBLE_EQ(part.size.advance, 12.6);
  EXPECT_DOUBLE_EQ(part.size.above, 14);
  EXPECT_DOUBLE_EQ(part.size.ink_top, 14);
  EXPECT_EQ(part.size.ink_bottom, 0);
  EXPECT_EQ(part.size.left_bearing, 0);
  EXPECT_EQ(part.size.right_bearing, 0);
}

TEST(GeomPart, a_diagonal_stack_is_as_wide_as_both_halves) {
  EXPECT_DOUBLE_EQ(updated(geom_stack(stack(ten_high(), u"a", u"bcd", 2))).size.advance, 16.8);
}

TEST(GeomPart, update_leaves_the_place_alone) {
  geom_word word(string(ten_high(), u"a"));
  word.x = 5;
  word.y = -7;
  word.update(stub_finder());
  EXPECT_EQ(word.x, 5);
  EXPECT_EQ(word.y, -7);
}

TEST(GeomPart, a_clone_has_class_size_and_place) {
  geom_stack part = updated(geom_stack(stack(ten_high(), u"a", u"bcd", 1)));
  part.x = 3;
  const std::unique_ptr<geom_part> copy(static_cast<const geom_part&>(part).clone());
  const auto* stacked = dynamic_cast<const geom_stack*>(copy.get());
  ASSERT_TRUE(stacked);
  EXPECT_EQ(stacked->x, 3);
  EXPECT_DOUBLE_EQ(stacked->bottom_size.advance, 12.6);
  EXPECT_EQ(stacked->denominator, u"bcd");
}

TEST(GeomPart, a_clone_of_a_line_end_keeps_its_format_but_its_logical_clone_does_not) {
  const geom_new_line part{new_line(ten_high())};
  const std::unique_ptr<geom_part> element(static_cast<const geom_part&>(part).clone());
  const std::unique_ptr<mtext::part> logical(part.part().clone());
  EXPECT_EQ(element->part().format.height, 10);
  EXPECT_EQ(logical->format.height, 1);
}

TEST(GeomPart, the_logical_clone_is_no_element) {
  const geom_word word(string(ten_high(), u"a"));
  const std::unique_ptr<mtext::part> logical(word.part().clone());
  EXPECT_EQ(dynamic_cast<const geom_part*>(logical.get()), nullptr);
}

TEST(GeomPart, every_class_bears_the_number_of_its_logical_part) {
  EXPECT_EQ(geom_word(string({}, u"a")).type(), 0u);
  EXPECT_EQ(geom_spaces(spaces({}, 1)).type(), 1u);
  EXPECT_EQ(geom_tab(tab({})).type(), 2u);
  EXPECT_EQ(geom_new_line(new_line({})).type(), 3u);
  EXPECT_EQ(geom_stack(stack({}, u"", u"", 0)).type(), 4u);
  EXPECT_EQ(geom_new_paragraph(new_paragraph({}, {}, false)).type(), 5u);
}

}  // namespace
}  // namespace mtext
