#include "host/text_pattern.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

using testing::ElementsAre;

namespace {

constexpr HostTextPattern::Options kExpression{.is_expression = true};

/// The text with every match put in brackets.
std::u16string marked(std::u16string_view wanted, HostTextPattern::Options options,
                      std::u16string_view text) {
  std::u16string result;
  std::size_t at = 0;
  for (const auto& match : HostTextPattern(wanted, options).matches(text)) {
    result.append(text.substr(at, match.first - at)).append(u"[");
    result.append(text.substr(match.first, match.last - match.first)).append(u"]");
    at = match.last;
  }
  return result.append(text.substr(at));
}

std::vector<std::u16string> replacements(std::u16string_view wanted, HostTextPattern::Options options,
                                         std::u16string_view text, std::u16string_view replacement) {
  std::vector<std::u16string> result;
  for (const auto& match : HostTextPattern(wanted, options).matches(text, replacement))
    result.push_back(match.replacement);
  return result;
}

}  // namespace

TEST(TextPattern, words_are_found_as_they_stand) {
  EXPECT_EQ(marked(u"a.c", {}, u"abc a.c A.C a.ca.c"), u"abc [a.c] A.C [a.c][a.c]");
}

TEST(TextPattern, case_may_be_ignored_in_every_script) {
  EXPECT_EQ(marked(u"план", {.ignores_case = true}, u"ПЛАН, План"), u"[ПЛАН], [План]");
}

TEST(TextPattern, an_expression_is_read_as_one) {
  EXPECT_EQ(marked(u"\\d+ mm", kExpression, u"12 mm and 7 mm"), u"[12 mm] and [7 mm]");
  EXPECT_EQ(marked(u"^b", kExpression, u"ab\nb"), u"ab\n[b]");
}

TEST(TextPattern, nothing_is_no_match) { EXPECT_EQ(marked(u"x*", kExpression, u"axxb"), u"a[xx]b"); }

TEST(TextPattern, a_replacement_is_taken_as_it_stands) {
  EXPECT_THAT(replacements(u"a", {}, u"a a", u"$1\\"), ElementsAre(u"$1\\", u"$1\\"));
}

TEST(TextPattern, a_replacement_for_an_expression_has_its_groups) {
  EXPECT_THAT(replacements(u"(\\d+)x(\\d+)", kExpression, u"see 2x3, 40x50", u"$2 by $1"),
              ElementsAre(u"3 by 2", u"50 by 40"));
  EXPECT_THAT(replacements(u"(x*)", kExpression, u"axxbx", u"<$1>"), ElementsAre(u"<xx>", u"<x>"));
}

TEST(TextPattern, what_is_no_expression_is_told) {
  EXPECT_THROW(HostTextPattern(u"(", kExpression), std::invalid_argument);
  EXPECT_THROW(HostTextPattern(u"", {}), std::invalid_argument);
  EXPECT_THROW(replacements(u"a", kExpression, u"a", u"$7"), std::invalid_argument);
}

TEST(TextPattern, an_expression_that_never_ends_is_given_up) {
  const std::u16string text(40, u'a');
  EXPECT_THROW(HostTextPattern(u"(a+)+b", kExpression).matches(text), std::invalid_argument);
}

TEST(TextPattern, is_in_a_text_where_it_has_one_place_that_is_not_empty) {
  EXPECT_TRUE(HostTextPattern(u"b", {}).isIn(u"abc"));
  EXPECT_FALSE(HostTextPattern(u"d", {}).isIn(u"abc"));
  EXPECT_FALSE(HostTextPattern(u"x*", kExpression).isIn(u"abc"));
  EXPECT_TRUE(HostTextPattern(u"x*", kExpression).isIn(u"abx"));
}

TEST(TextPattern, what_stands_behind_the_first_place_is_not_searched_to_tell_that_it_is_in_a_text) {
  const std::u16string text = u"ab" + std::u16string(40, u'a');
  const HostTextPattern endless(u"(a+)+b", kExpression);
  EXPECT_TRUE(endless.isIn(text));
  EXPECT_THROW(endless.matches(text), std::invalid_argument);
  EXPECT_THROW(endless.isIn(text.substr(2)), std::invalid_argument);
}
