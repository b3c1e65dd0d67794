#include <gtest/gtest.h>

#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline_of;
using mtext_test::part_at;
using mtext_test::read;

TEST(ParseStack, a_bare_stack_stands_higher_than_one_in_its_own_height) {
  double bare = part_at<stack>(read(u"\\S1/2;"), 0).format.height;
  double reduced = part_at<stack>(read(u"{\\H0.7x;\\S1/2;}"), 0).format.height;

  EXPECT_DOUBLE_EQ(bare, 1 / 0.7);
  EXPECT_DOUBLE_EQ(reduced, 1.0);
}

TEST(ParseStack, a_backslash_takes_the_next_character_of_an_operand) {
  auto text = read(u"\\S1\\/2#3;");
  const auto& read_stack = part_at<stack>(text, 0);

  EXPECT_EQ(read_stack.numerator, u"1/2");
  EXPECT_EQ(read_stack.kind, 2u);
  EXPECT_EQ(read_stack.denominator, u"3");
}

TEST(ParseStack, a_backslash_at_the_end_of_the_input_stands_for_itself) {
  EXPECT_EQ(outline_of(u"\\Sa\\"), "<a\\/>");
}

TEST(ParseStack, without_a_separator_the_denominator_is_empty) {
  EXPECT_EQ(outline_of(u"\\Sabc;"), "<abc/>");
}

TEST(ParseStack, separators_are_plain_in_the_denominator) {
  EXPECT_EQ(outline_of(u"\\S1^2/3#4;"), "<1^2/3#4>");
}

TEST(ParseStack, operands_know_no_groups) { EXPECT_EQ(outline_of(u"{\\S1}/2;a}b"), "<1}/2> [ab]"); }

TEST(ParseStack, a_stack_without_operands_is_a_part) { EXPECT_EQ(outline_of(u"a\\S;b"), "[a] </> [b]"); }
