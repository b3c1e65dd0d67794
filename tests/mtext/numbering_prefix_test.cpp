#include "mtext/numbering_prefix.h"

#include <gtest/gtest.h>

#include <limits>

namespace mtext {
namespace {

using levels = std::vector<marks::index>;

std::optional<levels> read(std::u16string_view text,
                           const marks::letters_dictionary& dictionary = marks::default_letters()) {
  return read_label(text, dictionary);
}

constexpr std::optional<levels> none = std::nullopt;

TEST(ReadLabel, one_and_a_full_stop_is_the_number_one) { EXPECT_EQ(read(u"1."), (levels{{1, 0, 0}})); }

TEST(ReadLabel, one_without_a_full_stop_is_none) { EXPECT_EQ(read(u"1"), none); }

TEST(ReadLabel, two_numbers_are_two_levels) { EXPECT_EQ(read(u"1.2."), (levels{{1, 0, 0}, {2, 0, 0}})); }

TEST(ReadLabel, a_small_letter_is_of_kind_1_and_a_capital_of_kind_2) {
  EXPECT_EQ(read(u"a."), (levels{{1, 1, 0}}));
  EXPECT_EQ(read(u"A."), (levels{{1, 2, 0}}));
}

TEST(ReadLabel, a_letter_belongs_to_the_first_alphabet_in_which_it_occurs) {
  const marks::letters_dictionary dictionary{{u"x", u"", u"bcd", u"BCD"}, {u"y", u"", u"abc", u"ABC"}};
  EXPECT_EQ(read(u"b.", dictionary), (levels{{1, 1, 0}}));
  EXPECT_EQ(read(u"a.", dictionary), (levels{{1, 1, 1}}));
  EXPECT_EQ(read(u"A.", dictionary), (levels{{1, 2, 1}}));
}

TEST(ReadLabel, capitals_of_the_first_alphabet_come_before_small_letters_of_the_second) {
  const marks::letters_dictionary dictionary{{u"x", u"", u"xy", u"ba"}, {u"y", u"", u"ab", u"AB"}};
  EXPECT_EQ(read(u"a.", dictionary), (levels{{2, 2, 0}}));
}

TEST(ReadLabel, a_bullet_has_no_full_stop) {
  EXPECT_EQ(read(u"\u00b7"), (levels{{0, 3, 0}}));
  EXPECT_EQ(read(u"\u00b7."), none);
}

TEST(ReadLabel, levels_mix_all_kinds) {
  EXPECT_EQ(read(u"2.\u00b7b.C."), (levels{{2, 0, 0}, {0, 3, 0}, {2, 1, 0}, {3, 2, 0}}));
}

TEST(ReadLabel, a_number_may_have_blanks_a_sign_and_zeros_before_it) {
  EXPECT_EQ(read(u" +007."), (levels{{7, 0, 0}}));
  EXPECT_EQ(read(u"1.\t2."), (levels{{1, 0, 0}, {2, 0, 0}}));
  EXPECT_EQ(read(u"-1."), (levels{{std::numeric_limits<std::uint64_t>::max(), 0, 0}}));
  EXPECT_EQ(read(u"+-1."), none);
  EXPECT_EQ(read(u"-."), none);
}

TEST(ReadLabel, blanks_stand_before_numbers_alone) {
  EXPECT_EQ(read(u" a."), none);
  EXPECT_EQ(read(u" \u00b7"), none);
  EXPECT_EQ(read(u"1 ."), none);
  EXPECT_EQ(read(u"1. "), none);
}

TEST(ReadLabel, a_number_ends_at_64_bits) {
  EXPECT_EQ(read(u"18446744073709551615."), (levels{{std::numeric_limits<std::uint64_t>::max(), 0, 0}}));
  EXPECT_EQ(read(u"18446744073709551616."), none);
  EXPECT_EQ(read(u"99999999999999999999999999."), none);
}

TEST(ReadLabel, nothing_at_all_is_no_label) { EXPECT_EQ(read(u""), none); }

TEST(ReadLabel, without_alphabets_there_are_numbers_and_bullets) {
  EXPECT_EQ(read(u"4.\u00b7", {}), (levels{{4, 0, 0}, {0, 3, 0}}));
  EXPECT_EQ(read(u"a.", {}), none);
}

TEST(ReadLabel, an_alphabet_with_empty_letters_never_matches) {
  EXPECT_EQ(read(u"a.", {{u"x", u"", u"", u""}}), none);
  EXPECT_EQ(read(u".", {{u"x", u"", u"", u""}}), none);
}

TEST(ReadLabelIndex, takes_one_level_and_leaves_the_rest) {
  std::u16string_view text = u"3.b";
  EXPECT_EQ(read_label_index(text, marks::default_letters()), (marks::index{3, 0, 0}));
  EXPECT_EQ(text, u"b");
}

TEST(ReadLabelIndex, of_what_is_no_level_takes_nothing) {
  std::u16string_view text = u"b";
  EXPECT_EQ(read_label_index(text, marks::default_letters()), std::nullopt);
  EXPECT_EQ(text, u"b");
}

}  // namespace
}  // namespace mtext
