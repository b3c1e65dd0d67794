#include <gtest/gtest.h>

#include <random>

#include "od/base/unicode.h"
#include "od/db/column_join.h"
#include "tests/mtext/entity/seen_text.h"

// What holds for the columns of any text, however it is written.

using mtext_test::expect_alike;
using mtext_test::seen;
using mtext_test::seen_in;

namespace {

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
    expect_alike(seen_in(joined), seen_after_one_another(texts));
    if (testing::Test::HasFailure()) return;
  }
}
