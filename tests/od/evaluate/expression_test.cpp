#include "od/evaluate/expression.h"

#include <gtest/gtest.h>

#include "od/base/unicode.h"

namespace {

std::optional<double> of(std::u16string_view text) {
  return odEvaluateExpression(text, [](std::u16string_view) { return std::optional(7.0); });
}

}  // namespace

TEST(Expression, binds_as_in_school) {
  EXPECT_EQ(of(u"1+2*3"), 7);
  EXPECT_EQ(of(u"(1 + 2) * 3"), 9);
  EXPECT_EQ(of(u"8-2-1"), 5);
  EXPECT_EQ(of(u"2^3^2"), 512);
  EXPECT_EQ(of(u"-2^2"), -4);
  EXPECT_EQ(of(u"2^-1*4"), 2);
  EXPECT_EQ(of(u"--3"), 3);
  EXPECT_EQ(of(u"1.5e1 / +3"), 5);
}

TEST(Expression, asks_for_the_numbers_of_references) { EXPECT_EQ(of(u"%<\\_FldIdx 0>%*2"), 14); }

TEST(Expression, that_is_none_has_no_value) {
  for (const auto* text :
       {u"", u"1+", u"*2", u"(1", u"1)", u"1 2", u"()", u"a", u"1~2", u"%<x", u"1..2", u"e5"})
    EXPECT_FALSE(of(text)) << odToUtf8(text);
}

TEST(Expression, without_an_outcome_has_no_value) {
  EXPECT_FALSE(of(u"1/0"));
  EXPECT_FALSE(of(u"9^9^9"));
  EXPECT_FALSE(of(u"(-1)^0.5"));
}

TEST(Expression, of_a_million_brackets_costs_no_stack) {
  const std::u16string deep = std::u16string(1'000'000, u'(') + u"1" + std::u16string(1'000'000, u')');
  EXPECT_EQ(of(deep), 1);
  EXPECT_EQ(of(std::u16string(1'000'000, u'-') + u"1"), 1);
}
