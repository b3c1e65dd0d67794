#include "mtext/to_geom.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

format::string high(double height, std::uint32_t kind) {
  format::string format;
  format.height = height;
  format.height_kind = kind;
  return format;
}

double height_of(const geom_multitext& text) { return text.parts[0].part().format.height; }

geom_multitext made(const part& source) { return to_geom(source, 10, stub_finder()); }

TEST(ToGeom, an_empty_string_part_yields_no_parts) { EXPECT_TRUE(made(string({}, u"")).parts.empty()); }

TEST(ToGeom, a_word_becomes_one_element_for_each_character) {
  const geom_multitext text = made(string({}, u"abc"));
  EXPECT_EQ(drawn(text), "abc");
  EXPECT_DOUBLE_EQ(text.parts[2].size.advance, 6);
  EXPECT_TRUE(text.lines.empty());
}

TEST(ToGeom, spaces_become_one_element_for_each_blank) {
  const geom_multitext text = made(spaces({}, 3));
  EXPECT_EQ(drawn(text), "   ");
  EXPECT_EQ(static_cast<const spaces&>(text.parts[0].part()).count, 1u);
}

TEST(ToGeom, tab_line_end_and_stack_become_one_element_each) {
  EXPECT_EQ(drawn(made(tab({}))), ">");
  EXPECT_EQ(drawn(made(new_line({}))), "/");
  EXPECT_EQ(drawn(made(stack({}, u"1", u"2", 0))), "#");
}

TEST(ToGeom, a_line_end_keeps_its_format) { EXPECT_EQ(height_of(made(new_line(high(4, 0)))), 4); }

TEST(ToGeom, a_height_in_drawing_units_stays_and_a_factor_is_multiplied_out) {
  EXPECT_EQ(height_of(made(string(high(4, 0), u"a"))), 4);
  EXPECT_EQ(height_of(made(string(high(4, 1), u"a"))), 40);
  EXPECT_EQ(height_of(made(string(high(4, 2), u"a"))), 10);
  EXPECT_EQ(made(string(high(4, 1), u"a")).parts[0].part().format.height_kind, 0u);
}

TEST(ToGeom, a_paragraph_in_drawing_units_becomes_relative_to_the_height_of_its_end) {
  format::paragraph paragraph;
  paragraph.relative = false;
  paragraph.left = 8;
  paragraph.tabs = {{20, 0, u' '}};
  const geom_multitext text = made(new_paragraph(paragraph, high(4, 0), true));
  const auto& made_part = static_cast<const new_paragraph&>(text.parts[0].part());
  EXPECT_TRUE(made_part.paragraph.relative);
  EXPECT_DOUBLE_EQ(made_part.paragraph.left, 2);
  EXPECT_DOUBLE_EQ(made_part.paragraph.tabs[0].position, 5);
  EXPECT_TRUE(made_part.column_break);
}

TEST(ToGeom, a_relative_paragraph_stays_as_it_is) {
  format::paragraph paragraph;
  paragraph.left = 8;
  make_relative(paragraph, 10);
  EXPECT_EQ(paragraph.left, 8);
}

TEST(ToGeom, the_first_paragraph_becomes_relative_to_the_base_height) {
  multitext text;
  text.paragraph.relative = false;
  text.paragraph.indent = 5;
  EXPECT_DOUBLE_EQ(to_geom(text, 10, stub_finder()).format.indent, 0.5);
}

TEST(ToGeom, a_field_without_value_shows_four_dashes) {
  const geom_multitext text = made(field({}, u"code"));
  EXPECT_EQ(drawn(text), "----");
  const auto& mark = dynamic_cast<const marks::field&>(text.marks[0]);
  EXPECT_EQ(mark.begin, 0u);
  EXPECT_EQ(mark.end, 4u);
  EXPECT_TRUE(mark.include_begin);
  EXPECT_EQ(mark.code, u"code");
}

TEST(ToGeom, a_field_shows_its_value_as_words_blanks_too) {
  field source({}, u"code");
  source.value = u"a b";
  const geom_multitext text = made(source);
  EXPECT_EQ(text.parts[1].type(), static_cast<std::uint32_t>(part_string));
  EXPECT_EQ(text.marks[0].end, 3u);
}

TEST(ToGeom, fields_of_a_text_are_marked_where_they_stand) {
  const geom_multitext text = decoded(u"ab%<code>%cd");
  EXPECT_EQ(drawn(text), "ab----cd");
  EXPECT_EQ(text.marks[0].begin, 2u);
  EXPECT_EQ(text.marks[0].end, 6u);
}

TEST(ToGeom, carriage_returns_disappear) {
  EXPECT_EQ(drawn(to_geom(u"a\r\nb", {}, 10, stub_finder())), "a/b");
}

TEST(ToGeom, typed_text_makes_tabs_line_ends_and_blanks) {
  EXPECT_EQ(drawn(to_geom(u"a\tb\n c", {}, 10, stub_finder())), "a>b/ c");
}

TEST(ToGeom, typed_text_takes_the_given_format) {
  EXPECT_EQ(height_of(to_geom(u'a', high(4, 0), 10, stub_finder())), 4);
  EXPECT_TRUE(to_geom(u'\r', {}, 10, stub_finder()).parts.empty());
}

}  // namespace
}  // namespace mtext
