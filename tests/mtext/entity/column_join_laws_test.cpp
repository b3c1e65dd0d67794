#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "mtext/parse.h"
#include "od/db/column_join.h"

// What holds for the columns of any text, however it is written.

using namespace mtext;

namespace {

/// A part of one letter, or one that has none.
struct letter {
  std::uint32_t type = 0;
  std::u16string text;
  format::string look;

  friend bool operator==(const letter&, const letter&) = default;
};

/// A text as it is seen: each letter, and each paragraph with the number of its first letter.
struct seen {
  std::vector<letter> letters;
  std::vector<std::pair<std::size_t, format::paragraph>> paragraphs;
  bool ends_paragraph = true;
};

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

seen seen_in(const std::u16string& codes) {
  multitext text;
  parse(codes, format::string(), text, {});
  seen result;
  result.paragraphs.emplace_back(0, text.paragraph);
  for (const part& each : text.parts) see(each, result);
  return result;
}

bool same_stop(const format::tab_stop& a, const format::tab_stop& b) {
  return a.position == b.position && a.kind == b.kind && a.decimal_char == b.decimal_char;
}

/// Whether lengths are multiples of the text height is no matter where there are none.
bool look_alike(format::paragraph a, format::paragraph b) {
  for (format::paragraph* each : {&a, &b})
    if (each->indent == 0 && each->left == 0 && each->right == 0 && each->before == 0 && each->after == 0)
      each->relative = true;
  return a.relative == b.relative && a.indent == b.indent && a.left == b.left && a.right == b.right &&
         a.before == b.before && a.after == b.after && a.alignment == b.alignment && a.spacing == b.spacing &&
         std::equal(a.tabs.begin(), a.tabs.end(), b.tabs.begin(), b.tabs.end(), same_stop);
}

/// Texts one after the other, each as it stands alone. A paragraph that goes on looks as it began.
seen seen_after_one_another(const std::vector<std::u16string>& texts) {
  seen all;
  for (const std::u16string& text : texts) {
    if (text.empty()) continue;
    const seen one = seen_in(text);
    const std::size_t before = all.letters.size();
    const bool begins_one = all.ends_paragraph;
    if (begins_one && !all.paragraphs.empty() && all.paragraphs.back().first == before)
      all.paragraphs.pop_back();
    for (const auto& [first, paragraph] : one.paragraphs)
      if (first > 0 || begins_one) all.paragraphs.emplace_back(before + first, paragraph);
    all.letters.insert(all.letters.end(), one.letters.begin(), one.letters.end());
    if (!one.letters.empty()) all.ends_paragraph = one.ends_paragraph;
  }
  return all;
}

void expect_same_paragraphs(const seen& one, const seen& other) {
  ASSERT_EQ(one.paragraphs.size(), other.paragraphs.size());
  for (std::size_t i = 0; i < one.paragraphs.size(); ++i) {
    EXPECT_EQ(one.paragraphs[i].first, other.paragraphs[i].first);
    EXPECT_TRUE(look_alike(one.paragraphs[i].second, other.paragraphs[i].second)) << i;
  }
}

/// Words and codes, whole and broken off.
constexpr const char16_t* k_tokens[] = {u"word",
                                        u"ab c",
                                        u" ",
                                        u"\\P",
                                        u"\\P",
                                        u"\\N",
                                        u"{",
                                        u"}",
                                        u"{\\C1;",
                                        u"\\C2;",
                                        u"\\C3",
                                        u"\\C",
                                        u"\\c255;",
                                        u"\\A1;",
                                        u"\\A",
                                        u"\\H2x;",
                                        u"\\H3;",
                                        u"\\H1.",
                                        u"\\W0.5",
                                        u"\\Q15;",
                                        u"\\T2;",
                                        u"\\L",
                                        u"\\l",
                                        u"\\O",
                                        u"\\o",
                                        u"\\K",
                                        u"\\k",
                                        u"\\fArial|b1|i0|c0|p34;",
                                        u"\\fArial",
                                        u"\\f",
                                        u"\\Ftxt;",
                                        u"\\F|;",
                                        u"\\S1/2;",
                                        u"\\S1\\;2^;",
                                        u"\\S{#",
                                        u"\\S1\\",
                                        u"\\",
                                        u"\\\\",
                                        u"\\{",
                                        u"\\}",
                                        u"\\~",
                                        u"\\U+0041",
                                        u"\\U",
                                        u"+0041",
                                        u"%",
                                        u"%%d",
                                        u"d",
                                        u"%<",
                                        u"<",
                                        u">%",
                                        u"%<\\AcVar Date \\f \"{M;\">%",
                                        u";",
                                        u"x",
                                        u"5",
                                        u".5",
                                        u"-",
                                        u"\t",
                                        u"\n",
                                        u"\\X",
                                        u"e1",
                                        u","};

/// What stands in paragraph codes, whole and broken off.
constexpr const char16_t* k_items[] = {u"i1,l2;", u"r1,b2,a3;", u"qc;", u"q*;", u"q",
                                       u"q;i1;",  u"sm1.5;",    u"s",   u"s*;", u"i-1,l1,t1,c2,D.3;",
                                       u"tz;",    u"t1,D",      u"t1,", u"i1",  u","};

/// With lengths all of one kind: `x` is "x" for multiples of the height, or nothing.
std::vector<std::u16string> tokens(const std::u16string& x) {
  std::vector<std::u16string> found(std::begin(k_tokens), std::end(k_tokens));
  for (const char16_t* items : k_items) found.push_back(u"\\p" + x + items);
  return found;
}

}  // namespace

TEST(ColumnJoinLaws, joined_texts_show_each_as_it_stands_alone) {
  std::mt19937 random(20260301);
  const std::vector<std::u16string> kinds[] = {tokens(u""), tokens(u"x")};
  for (int round = 0; round < 20000; ++round) {
    const std::vector<std::u16string>& all = kinds[round % 2];
    std::vector<std::u16string> texts(1 + random() % 4);
    for (std::u16string& text : texts)
      for (auto length = random() % 7; length > 0; --length) text += all[random() % all.size()];
    const std::u16string joined = odJoinColumns(texts);
    std::string told;
    for (const std::u16string& text : texts) told += "|" + odToUtf8(text);
    SCOPED_TRACE(told + "| -> " + odToUtf8(joined));
    const seen one = seen_in(joined), each = seen_after_one_another(texts);
    ASSERT_EQ(one.letters.size(), each.letters.size());
    for (std::size_t i = 0; i < one.letters.size(); ++i) ASSERT_EQ(one.letters[i], each.letters[i]) << i;
    if (!each.letters.empty()) expect_same_paragraphs(one, each);
    if (testing::Test::HasFailure()) return;
  }
}
