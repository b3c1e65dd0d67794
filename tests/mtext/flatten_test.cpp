#include "mtext/flatten.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

const field& field_at(const multitext& text, std::size_t at) {
  return dynamic_cast<const field&>(text.parts[at]);
}

TEST(Flatten, an_empty_text_gives_an_empty_one_with_the_same_paragraph) {
  const multitext flat = flatten(decoded(u"\\pxl2,t1,3;"));
  EXPECT_TRUE(flat.parts.empty());
  EXPECT_EQ(flat.paragraph.left, 2);
  EXPECT_EQ(flat.paragraph.tabs.size(), 2u);
}

TEST(Flatten, a_text_without_marks_gives_as_many_parts_as_it_has_elements) {
  const multitext flat = flatten(decoded(u"ab  \\S1/2;\\Pc\td"));
  ASSERT_EQ(flat.parts.size(), 9u);
  EXPECT_EQ(dynamic_cast<const string&>(flat.parts[1]).text, u"b");
  EXPECT_EQ(dynamic_cast<const spaces&>(flat.parts[2]).count, 1u);
  EXPECT_EQ(dynamic_cast<const stack&>(flat.parts[4]).denominator, u"2");
}

TEST(Flatten, a_field_comes_back_as_one_part_without_value) {
  const multitext flat = flatten(decoded(u"a%<code>%b"));
  ASSERT_EQ(flat.parts.size(), 3u);
  EXPECT_EQ(field_at(flat, 1).code, u"code");
  EXPECT_FALSE(field_at(flat, 1).value);
}

TEST(Flatten, a_field_at_the_very_end_is_the_last_part) {
  const multitext flat = flatten(decoded(u"a%<code>%"));
  ASSERT_EQ(flat.parts.size(), 2u);
  EXPECT_EQ(field_at(flat, 1).code, u"code");
}

TEST(Flatten, a_field_partly_erased_has_the_format_of_its_first_surviving_character) {
  geom_multitext text = decoded(u"a%<code>%b");
  text.parts[2].part().format.height = 77;
  text.erase(1, 1, true);
  const multitext flat = flatten(text);
  ASSERT_EQ(flat.parts.size(), 3u);
  EXPECT_EQ(field_at(flat, 1).format.height, 77);
}

TEST(Flatten, of_overlapping_fields_the_first_in_the_list_counts) {
  geom_multitext text = decoded(u"abcdef");
  text.marks.push_back(new marks::field(2, 5, u"first"));
  text.marks.push_back(new marks::field(0, 4, u"second"));
  const multitext flat = flatten(text);
  // At 0 only the second covers; it reaches to 4, where the first still covers, up to 5.
  ASSERT_EQ(flat.parts.size(), 3u);
  EXPECT_EQ(field_at(flat, 0).code, u"second");
  EXPECT_EQ(field_at(flat, 1).code, u"first");
}

TEST(Flatten, a_field_that_covers_nothing_is_lost) {
  geom_multitext text = decoded(u"ab");
  text.marks.push_back(new marks::field(1, 1, u"code"));
  EXPECT_EQ(flatten(text).parts.size(), 2u);
}

TEST(Flatten, labels_and_selections_are_dropped_and_their_text_stays) {
  geom_multitext text = decoded(u"1.\ta");
  text.marks.push_back(new marks::numbering(0, 3, {{1, 0, 0}}));
  text.marks.push_back(new marks::selection(1, 2));
  EXPECT_EQ(flatten(text).parts.size(), 4u);
}

TEST(Flatten, a_line_end_comes_back_in_the_default_format) {
  EXPECT_EQ(flatten(decoded(u"\\H3x;a\nb")).parts[1].format.height, 1);
}

}  // namespace
}  // namespace mtext
