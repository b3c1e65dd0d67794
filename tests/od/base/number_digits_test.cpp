#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "od/base/printed_number.h"
#include "od/base/whole_number.h"

TEST(PrintedNumber, has_a_point_and_as_many_digits_as_are_asked_for) {
  EXPECT_EQ(odPrintedNumber(2.5, std::chars_format::fixed, 3), u"2.500");
  EXPECT_EQ(odPrintedNumber(-1234.5, std::chars_format::scientific, 2), u"-1.23e+03");
  EXPECT_EQ(odPrintedNumber(2.5, std::chars_format::general, 6), u"2.5");
}

TEST(PrintedNumber, has_room_for_the_greatest_real_with_all_its_digits) {
  const double greatest = std::numeric_limits<double>::lowest();
  EXPECT_EQ(odPrintedNumber(greatest, std::chars_format::fixed, 64).size(), 1U + 309 + 1 + 64);
}

TEST(WholeNumber, is_what_all_of_a_text_says) {
  EXPECT_EQ(odWholeNumber<int>("-12"), -12);
  EXPECT_EQ(odWholeNumber<unsigned>("1f", 16), 31U);
  EXPECT_EQ(odWholeNumber<double>("2.5e1"), 25);
}

TEST(WholeNumber, is_none_where_anything_is_left_over_or_missing_or_does_not_fit) {
  for (const char* text : {"", " 1", "1 ", "1.5", "+1", "x", "2147483648"})
    EXPECT_FALSE(odWholeNumber<int>(text)) << text;
  EXPECT_FALSE(odWholeNumber<std::uint64_t>("-1"));
  EXPECT_FALSE(odWholeNumber<double>("1e999"));
  EXPECT_FALSE(odWholeNumber<double>("2,5"));
}
