#include "mtext/bijective.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "mtext/ensure.h"

namespace mtext::marks {
namespace {

constexpr std::u16string_view english = u"abcdefghijklmnopqrstuvwxyz";
constexpr std::uint64_t greatest = std::numeric_limits<std::uint64_t>::max();

/// The number of a label in letters; 0 if it is none.
std::uint64_t number_of(std::u16string_view text, std::u16string_view letters = english) {
  return read_letters(text, letters).value_or(0);
}

TEST(Letters, a_is_1_and_z_is_26_and_aa_is_27) {
  EXPECT_EQ(number_of(u"a."), 1u);
  EXPECT_EQ(number_of(u"z."), 26u);
  EXPECT_EQ(number_of(u"aa."), 27u);
  EXPECT_EQ(write_letters(1, english), u"a");
  EXPECT_EQ(write_letters(26, english), u"z");
  EXPECT_EQ(write_letters(27, english), u"aa");
}

TEST(Letters, a_carry_goes_through_all_places) {
  EXPECT_EQ(write_letters(702, english), u"zz");
  EXPECT_EQ(write_letters(703, english), u"aaa");
}

TEST(Letters, nothing_stands_for_zero_with_any_letters) {
  EXPECT_EQ(write_letters(0, english), u"");
  EXPECT_EQ(write_letters(0, u""), u"");
}

TEST(Letters, reading_takes_the_full_stop_and_leaves_what_follows) {
  std::u16string_view text = u"b.c.";
  EXPECT_EQ(read_letters(text, english), 2u);
  EXPECT_EQ(text, u"c.");
}

TEST(Letters, what_is_no_label_is_not_read_and_nothing_is_taken) {
  for (const std::u16string_view each : {u"", u".", u"a", u"aB.", u"a1.", u" a."}) {
    std::u16string_view text = each;
    EXPECT_FALSE(read_letters(text, english));
    EXPECT_EQ(text, each);
  }
}

TEST(Letters, alphabets_of_different_lengths_work_independently_of_each_other) {
  EXPECT_EQ(number_of(u"ba.", u"abc"), 7u);
  EXPECT_EQ(number_of(u"ba.", u"ab"), 5u);
  EXPECT_EQ(number_of(u"ba."), 53u);
  EXPECT_EQ(write_letters(7, u"abc"), u"ba");
  EXPECT_EQ(write_letters(7, u"ab"), u"aaa");
}

TEST(Letters, a_letter_that_stands_twice_counts_by_its_first_place) {
  EXPECT_EQ(number_of(u"a.", u"aba"), 1u);
}

TEST(Letters, no_letters_read_nothing_and_write_nothing) {
  EXPECT_EQ(number_of(u"a.", u""), 0u);
  EXPECT_THROW(write_letters(1, u""), ensure_error);
}

TEST(Letters, writing_and_reading_are_inverse_up_to_the_greatest_number) {
  for (const std::u16string_view letters : {u"ab", u"abc", u"abcdefghij", u"abcdefghijklmnopqrstuvwxyz"}) {
    for (const std::uint64_t value :
         {std::uint64_t{1}, std::uint64_t{1000}, greatest / 3, greatest - 1, greatest}) {
      EXPECT_EQ(number_of(write_letters(value, letters) + u".", letters), value);
    }
  }
}

TEST(Letters, a_number_beyond_the_greatest_wraps_around) {
  const std::u16string beyond = write_letters(greatest, u"ab") + u"a.";  // 2 * greatest + 1
  EXPECT_EQ(number_of(beyond, u"ab"), greatest);
}

TEST(Letters, a_single_letter_writes_as_many_as_it_counts_up_to_ten_million) {
  EXPECT_EQ(write_letters(4, u"i"), u"iiii");
  EXPECT_EQ(write_letters(10'000'000, u"i").size(), 10'000'000u);
  EXPECT_THROW(write_letters(10'000'001, u"i"), std::length_error);
  EXPECT_THROW(write_letters(greatest, u"i"), std::length_error);
}

}  // namespace
}  // namespace mtext::marks
