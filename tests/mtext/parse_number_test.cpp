#include "mtext/parse_number.h"

#include <gtest/gtest.h>

#include <string_view>

using namespace mtext::reading;

namespace {

/// What a reader gives for the text, and how many characters it took.
struct reading_of {
  std::optional<double> value;
  std::ptrdiff_t taken;
};

reading_of number(std::u16string_view text) {
  text_cursor cursor{text.data(), text.data() + text.size()};
  auto value = read_number(cursor);
  return {value, cursor.at - text.data()};
}

void expect_number(std::u16string_view text, double value, std::ptrdiff_t taken) {
  auto read = number(text);
  ASSERT_TRUE(read.value);
  EXPECT_DOUBLE_EQ(*read.value, value);
  EXPECT_EQ(read.taken, taken);
}

}  // namespace

TEST(ReadNumber, reads_sign_digits_fraction_and_exponent) {
  expect_number(u"12;", 12, 2);
  expect_number(u"-12.5;", -12.5, 5);
  expect_number(u".5", 0.5, 2);
  expect_number(u"2e3", 2000, 3);
  expect_number(u"2.5E-1", 0.25, 6);
}

TEST(ReadNumber, the_sign_is_lost_where_the_integer_part_is_0) {
  expect_number(u"-0.5", 0.5, 4);
  expect_number(u"-0", 0.0, 2);
}

TEST(ReadNumber, a_sign_before_the_dot_is_not_passed) { expect_number(u"-.5", 0.0, 0); }

TEST(ReadNumber, no_digits_at_all_are_0_and_move_nothing) {
  expect_number(u"", 0.0, 0);
  expect_number(u"x", 0.0, 0);
  expect_number(u"-", 0.0, 0);
  expect_number(u"e5", 0.0, 0);
}

TEST(ReadNumber, a_dot_without_digits_fails_and_moves_nothing) {
  for (auto text : {u"5.", u".", u"-5.;"}) {
    EXPECT_FALSE(number(text).value);
    EXPECT_EQ(number(text).taken, 0);
  }
}

TEST(ReadNumber, an_exponent_without_digits_is_0) {
  expect_number(u"2e;", 2, 2);
  expect_number(u"2e-x", 2, 2);
}

TEST(ReadNumber, integers_wrap_at_32_bits) {
  expect_number(u"4294967297", 1, 10);
  expect_number(u"2147483648", -2147483648.0, 10);
}

TEST(ReadUnsigned, wraps_at_32_bits_and_knows_no_sign) {
  std::u16string_view text = u"4294967298", negative = u"-1";
  text_cursor cursor{text.data(), text.data() + text.size()};
  EXPECT_EQ(read_unsigned(cursor), 2u);

  text_cursor at_sign{negative.data(), negative.data() + negative.size()};
  EXPECT_FALSE(read_unsigned(at_sign));
}
