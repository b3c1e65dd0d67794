#include "mtext/part.h"

#include <gtest/gtest.h>

#include <memory>

#include "mtext/multitext.h"

using namespace mtext;

namespace {

const format::string tall = {.height = 5.0};

template <typename Part>
std::unique_ptr<Part> cloned(const Part& part) {
  return std::unique_ptr<Part>(part.clone());
}

/// A part that tells when it is destroyed.
struct watched_part : tab {
  explicit watched_part(int& count) : tab(format::string()), destroyed(count) {}
  ~watched_part() override { ++destroyed; }
  int& destroyed;
};

}  // namespace

TEST(Part, a_stack_with_empty_operands_is_a_valid_part) {
  stack empty(tall, u"", u"", 0);

  EXPECT_EQ(empty.type(), 4u);
  EXPECT_EQ(cloned(empty)->numerator, u"");
}

TEST(Part, a_new_line_that_went_through_clone_carries_the_default_format) {
  EXPECT_TRUE(cloned(new_line(tall))->format == format::string());
}

TEST(Part, every_other_clone_keeps_its_format_and_fields) {
  EXPECT_EQ(cloned(string(tall, u"ab"))->text, u"ab");
  EXPECT_EQ(cloned(spaces(tall, 3))->count, 3u);
  EXPECT_EQ(cloned(tab(tall))->format.height, 5.0);
  EXPECT_EQ(cloned(stack(tall, u"1", u"2", 2))->kind, 2u);
  EXPECT_EQ(cloned(new_paragraph({.left = 2.0}, tall, true))->paragraph.left, 2.0);
}

TEST(Part, a_cloned_field_has_a_value_only_if_the_field_has_one) {
  field code(tall, u"date");
  EXPECT_FALSE(cloned(code)->value);

  code.value = u"today";
  EXPECT_EQ(cloned(code)->value, u"today");
}

TEST(Part, the_marker_of_a_field_holds_its_code_unchanged) {
  EXPECT_EQ(field({}, u"\\_FldIdx 0").marker(), u"%<\\_FldIdx 0>%");
}

TEST(Multitext, destroying_it_destroys_its_parts_through_the_virtual_destructor) {
  int destroyed = 0;
  {
    multitext text;
    text.parts.push_back(new watched_part(destroyed));
  }
  EXPECT_EQ(destroyed, 1);
}

TEST(Multitext, a_default_one_has_no_parts_and_a_relative_paragraph) {
  multitext text;

  EXPECT_TRUE(text.parts.empty());
  EXPECT_TRUE(text.paragraph.relative);
}

TEST(Multitext, a_copy_clones_the_parts) {
  multitext text;
  text.parts.push_back(new string(tall, u"ab"));

  multitext copy = text;

  EXPECT_NE(&copy.parts[0], &text.parts[0]);
  EXPECT_EQ(dynamic_cast<const string&>(copy.parts[0]).text, u"ab");
}

TEST(Multitext, a_null_part_is_refused) {
  multitext text;
  try {
    text.parts.push_back(nullptr);
    FAIL() << "a null part was taken";
  } catch (const boost::bad_pointer& error) {
    EXPECT_STREQ(error.what(), "Null pointer in 'push_back()'");
  }
}

TEST(Multitext, a_new_paragraph_holds_a_full_record_and_no_difference) {
  new_paragraph part({.indent = 1.0, .left = 2.0}, {}, false);

  EXPECT_EQ(part.paragraph.indent, 1.0);
  EXPECT_EQ(part.paragraph.left, 2.0);
}
