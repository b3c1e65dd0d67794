#include "tests/mtext/entity/seen_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "mtext/parse.h"

using namespace mtext;

namespace mtext_test {

namespace {

void see(const part& each, seen& result) {
  const auto add = [&](const std::u16string& text) {
    result.letters.push_back({each.type(), text, each.format});
  };
  result.ends_paragraph = false;
  if (each.type() == part_string) {
    for (const char16_t unit : static_cast<const string&>(each).text) add(std::u16string(1, unit));
  } else if (each.type() == part_spaces) {
    for (auto left = static_cast<const spaces&>(each).count; left > 0; --left) add(u" ");
  } else if (each.type() == part_stack) {
    const auto& fraction = static_cast<const stack&>(each);
    add(fraction.numerator + char16_t(u'0' + fraction.kind) + fraction.denominator);
  } else if (each.type() == part_field) {
    add(static_cast<const field&>(each).marker());
  } else {
    add(u"");
  }
  if (each.type() != part_new_paragraph) return;
  const auto& begun = static_cast<const new_paragraph&>(each);
  result.letters.back().text = begun.column_break ? u"N" : u"P";
  result.paragraphs.emplace_back(result.letters.size(), begun.paragraph);
  result.ends_paragraph = true;
}

bool near(double a, double b) { return std::abs(a - b) <= 1e-3 * std::max(std::abs(a), std::abs(b)); }

bool look_alike(const format::string& a, format::string b) {
  if (!near(a.height, b.height)) return false;
  b.height = a.height;
  return a == b;
}

bool same_stop(const format::tab_stop& a, const format::tab_stop& b) {
  return near(a.position, b.position) && a.kind == b.kind && a.decimal_char == b.decimal_char;
}

/// Whether lengths are multiples of the text height is no matter where there are none.
bool look_alike(format::paragraph a, format::paragraph b) {
  for (format::paragraph* each : {&a, &b})
    if (each->indent == 0 && each->left == 0 && each->right == 0 && each->before == 0 && each->after == 0)
      each->relative = true;
  return a.relative == b.relative && near(a.indent, b.indent) && near(a.left, b.left) &&
         near(a.right, b.right) && near(a.before, b.before) && near(a.after, b.after) &&
         a.alignment == b.alignment && a.spacing.style == b.spacing.style &&
         near(a.spacing.value, b.spacing.value) &&
         std::equal(a.tabs.begin(), a.tabs.end(), b.tabs.begin(), b.tabs.end(), same_stop);
}

}  // namespace

seen seen_in(const std::u16string& codes, const format::string& base) {
  multitext text;
  parse(codes, base, text, {});
  seen result;
  result.paragraphs.emplace_back(0, text.paragraph);
  for (const part& each : text.parts) see(each, result);
  return result;
}

void expect_alike(const seen& one, const seen& other) {
  ASSERT_EQ(one.letters.size(), other.letters.size());
  for (std::size_t i = 0; i < one.letters.size(); ++i) {
    ASSERT_EQ(one.letters[i].type, other.letters[i].type) << i;
    ASSERT_EQ(one.letters[i].text, other.letters[i].text) << i;
    ASSERT_TRUE(look_alike(one.letters[i].look, other.letters[i].look)) << i;
  }
  if (one.letters.empty()) return;  // nobody sees a paragraph without letters
  ASSERT_EQ(one.paragraphs.size(), other.paragraphs.size());
  for (std::size_t i = 0; i < one.paragraphs.size(); ++i) {
    ASSERT_EQ(one.paragraphs[i].first, other.paragraphs[i].first);
    ASSERT_TRUE(look_alike(one.paragraphs[i].second, other.paragraphs[i].second)) << i;
  }
}

}  // namespace mtext_test
