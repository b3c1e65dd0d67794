#include <gtest/gtest.h>

#include "mtext/escape.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "tests/mtext/outline.h"
#include "tests/mtext/small_stack.h"

// Inputs made to exhaust the stack, or the patience of whatever reads a piece more than a few times. A reader
// that takes quadratic time does not come back from any of them.

using namespace mtext;
using mtext_test::on_small_stack;
using mtext_test::part_at;
using mtext_test::read;

namespace {

constexpr std::size_t million = 1'000'000;

std::u16string repeated(const std::u16string& piece, std::size_t count) {
  std::u16string text;
  text.reserve(piece.size() * count);
  for (; count > 0; --count) text += piece;
  return text;
}

/// The number of characters in the only part, a word.
std::size_t only_word_length(const multitext& text) {
  return text.parts.size() == 1 ? part_at<string>(text, 0).text.size() : 0;
}

}  // namespace

TEST(DepthAttack, a_million_groups_that_are_never_closed) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(repeated(u"{", million) + u"a")), 1u); });
}

TEST(DepthAttack, a_million_groups_within_each_other) {
  on_small_stack([] {
    EXPECT_EQ(only_word_length(read(repeated(u"{a", million) + repeated(u"b}", million))), 2 * million);
  });
}

TEST(DepthAttack, groups_that_each_change_the_format) {
  on_small_stack([] {
    constexpr std::size_t depth = million / 5;
    auto text = read(repeated(u"{\\C1;a\\C2;b", depth) + repeated(u"}", depth) + u"c");

    ASSERT_EQ(text.parts.size(), 2 * depth + 1);
    EXPECT_EQ(text.parts.back().format.color.kind, 1u);
  });
}

TEST(DepthAttack, a_million_groups_ended_by_a_broken_code_unit) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(repeated(u"{", million) + u"a\\U+00}}}b")), 1u); });
}

TEST(DepthAttack, a_million_closing_braces_without_partner) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(repeated(u"}", million) + u"a")), 1u); });
}

TEST(DepthAttack, a_million_fields_within_each_other) {
  on_small_stack([] {
    auto text = read(repeated(u"%<", million) + repeated(u">%", million));

    ASSERT_EQ(text.parts.size(), 1u);
    EXPECT_EQ(part_at<field>(text, 0).code.size(), 4 * (million - 1));
  });
}

TEST(DepthAttack, a_million_fields_without_an_end) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(repeated(u"%<", million))), 2 * million); });
}

TEST(DepthAttack, a_million_fields_with_an_end_behind_one_without) {
  on_small_stack([] { EXPECT_EQ(read(u"%<" + repeated(u"%<a>%", million)).parts.size(), 1 + million); });
}

TEST(DepthAttack, field_marks_that_share_their_percent_sign) {
  on_small_stack([] {
    auto text = read(repeated(u"%<", million) + repeated(u">%<", million / 2));

    ASSERT_EQ(text.parts.size(), 3u);
    EXPECT_EQ(part_at<string>(text, 0).text.size(), million);
    EXPECT_EQ(part_at<string>(text, 2).text, u"<");
  });
}

TEST(DepthAttack, ten_million_characters_in_one_word) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(std::u16string(10 * million, u'x'))), 10 * million); });
}

TEST(DepthAttack, a_million_words_that_join) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(repeated(u"{a}", million))), million); });
}

TEST(DepthAttack, a_million_runs_of_blanks_that_join) {
  on_small_stack([] {
    auto text = read(repeated(u"{ }", million));

    ASSERT_EQ(text.parts.size(), 1u);
    EXPECT_EQ(part_at<spaces>(text, 0).count, million);
  });
}

// Compared by EXPECT_TRUE, since a difference would print megabytes.
TEST(DepthAttack, a_million_paragraphs) {
  on_small_stack([] {
    auto text = repeated(u"\\P", million);

    EXPECT_TRUE(serialize(read(text), {}, 1.0) == text);
  });
}

TEST(DepthAttack, a_hundred_thousand_tabs_in_one_code) {
  on_small_stack([] {
    auto text = read(u"\\pxt" + repeated(u"4,", 100'000) + u"8;");

    EXPECT_EQ(text.paragraph.tabs.size(), 100'001u);
    EXPECT_EQ(serialize(text, {}, 1.0).size(), 4 + 2 * 100'000u + 2);
  });
}

TEST(DepthAttack, a_million_digits_in_one_number) {
  on_small_stack([] {
    EXPECT_EQ(read(u"\\W0." + repeated(u"1", million) + u";a").parts.size(), 1u);
    EXPECT_EQ(only_word_length(read(u"\\W" + repeated(u"1", million) + u".;")), million + 4);
  });
}

TEST(DepthAttack, a_million_codes_that_fail) {
  on_small_stack([] { EXPECT_EQ(only_word_length(read(repeated(u"\\H5.\\f;", million))), 7 * million); });
}

TEST(DepthAttack, one_code_over_the_whole_text) {
  for (auto start : {u"\\f", u"\\px", u"\\S", u"\\fA|", u"\\pxt"}) {
    on_small_stack([&] { EXPECT_LE(read(start + repeated(u"a\\{", million)).parts.size(), 1u); });
  }
}

TEST(DepthAttack, a_long_text_goes_out_and_in_again) {
  on_small_stack([] {
    auto text = repeated(u"{\\fArial|b0|i0|c0|p0;b}{\\C1;a}c ", million / 10);

    EXPECT_TRUE(serialize(read(text), {}, 1.0) == text);
  });
}

TEST(DepthAttack, escaping_a_long_text_doubles_it_at_most) {
  on_small_stack([] {
    auto text = repeated(u"{\\}", million);

    auto escaped = escape_mtext(text.c_str(), true);
    EXPECT_EQ(escaped.size(), 2 * text.size());
    EXPECT_TRUE(unformat_mtext(escaped.c_str()) == text);
  });
}
