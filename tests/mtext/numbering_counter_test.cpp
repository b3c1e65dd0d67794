#include "mtext/numbering_counter.h"

#include <gtest/gtest.h>

#include "mtext/ensure.h"

namespace mtext::marks {
namespace {

TEST(NumberCounter, has_a_slot_for_numbers_one_for_bullets_and_two_for_each_alphabet) {
  const number_counter counter(2);
  EXPECT_EQ(counter.value, std::vector<std::uint64_t>(6));
  EXPECT_EQ(counter.index_of(0, 0), 0u);
  EXPECT_EQ(counter.index_of(3, 0), 1u);
  EXPECT_EQ(counter.index_of(1, 0), 2u);
  EXPECT_EQ(counter.index_of(2, 0), 3u);
  EXPECT_EQ(counter.index_of(1, 1), 4u);
  EXPECT_EQ(counter.index_of(2, 1), 5u);
}

TEST(NumberCounter, any_other_kind_counts_with_the_numbers_whatever_its_alphabet) {
  const number_counter counter(1);
  EXPECT_EQ(counter.index_of(7, 5), 0u);
  EXPECT_EQ(counter.index_of(0, 5), 0u);
  EXPECT_EQ(counter.index_of(3, 5), 1u);
}

TEST(NumberCounter, an_alphabet_beyond_the_dictionary_fails_with_its_condition) {
  const number_counter counter(1);
  for (const std::uint64_t alphabet : {std::uint64_t{1}, std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
    try {
      counter.index_of(1, alphabet);
      FAIL() << "a slot was found for the alphabet " << alphabet;
    } catch (const ensure_error& error) {
      EXPECT_STREQ(error.what(),
                   "ensure 'ret < value.size()' fails: number_counter::index_of: too big index");
    }
  }
}

TEST(NumberCounter, what_was_not_counted_becomes_1_when_it_is_asked_for) {
  number_counter counter(0);
  EXPECT_EQ(counter.current(0, 0), 1u);
  counter.increment(0, 0);
  EXPECT_EQ(counter.current(0, 0), 2u);
  EXPECT_EQ(counter.value, (std::vector<std::uint64_t>{2, 0}));
}

}  // namespace
}  // namespace mtext::marks
