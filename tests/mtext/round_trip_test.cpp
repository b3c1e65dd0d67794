#include <gtest/gtest.h>

#include <random>

#include "mtext/escape.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline;
using mtext_test::read;

namespace {

constexpr double base_height = 2.5;

/// Pieces whose formats come back by codes: no absolute heights, no stacks, no shape fonts. Their numbers may
/// have more digits than are written, but no differences below the tolerance of `merge`, which equality sees
/// and no code can tell, and no exponents above 5, which are written with a plus that is not read.
const std::vector<std::u16string> k_stable_pieces = {u"word",
                                                     u"x",
                                                     u" ",
                                                     u"  ",
                                                     u"\\~",
                                                     u"\t",
                                                     u"\n",
                                                     u"\r",
                                                     u"{",
                                                     u"{",
                                                     u"}",
                                                     u"}",
                                                     u"\\P",
                                                     u"\\P",
                                                     u"\\N",
                                                     u"\\L",
                                                     u"\\l",
                                                     u"\\O",
                                                     u"\\o",
                                                     u"\\C1;",
                                                     u"\\C256;",
                                                     u"\\c255;",
                                                     u"\\c4294967295;",
                                                     u"\\H2x;",
                                                     u"\\H0.5x;",
                                                     u"\\H0.333333x;",
                                                     u"\\H1.7x;",
                                                     u"\\H3x;",
                                                     u"\\W0.8;",
                                                     u"\\W1;",
                                                     u"\\W1.5x;",
                                                     u"\\W0.123456789;",
                                                     u"\\Q15;",
                                                     u"\\Q0;",
                                                     u"\\Q1.1x;",
                                                     u"\\T1.5;",
                                                     u"\\T1;",
                                                     u"\\A0;",
                                                     u"\\A1;",
                                                     u"\\A2;",
                                                     u"\\fArial|b1|i0|c0|p34;",
                                                     u"\\fTimes;",
                                                     u"\\f;",
                                                     u"\\pxi1,l2;",
                                                     u"\\pi0,l0,r0;",
                                                     u"\\pxqc;",
                                                     u"\\pq*;",
                                                     u"\\pxsm1.5;",
                                                     u"\\ps*;",
                                                     u"\\pxt4,c8,D.12;",
                                                     u"\\ptz;",
                                                     u"\\pxi0.123456;",
                                                     u"\\pt1.2345678,c8.7654321;",
                                                     u"\\pxb1,a0.5;",
                                                     u"\\pl5,r2.5;",
                                                     u"\\pxi-1,l4;",
                                                     u"%%c",
                                                     u"%%d",
                                                     u"%%p",
                                                     u"%<field>%",
                                                     u"%<",
                                                     u"\\Z1;",
                                                     u"\\\\",
                                                     u"\\{",
                                                     u"\\}",
                                                     u"\\U+00E9",
                                                     u"\\u+0041",
                                                     u"\\H5.;",
                                                     u"\u4e2d"};

/// Pieces of codes, to be put together to anything.
constexpr std::u16string_view k_characters =
    u"\\\\\\{}{}%%<>;;,.-+019xHWQTACcfFSpPNLloOUuilrbaqstzDemj*|# ~\t\n";

std::u16string generated(std::mt19937& random, const std::vector<std::u16string>& pieces) {
  std::u16string text;
  for (auto count = random() % 40; count > 0; --count) text += pieces[random() % pieces.size()];
  return text;
}

std::u16string scrambled(std::mt19937& random) {
  std::u16string text;
  for (auto count = random() % 60; count > 0; --count) text += k_characters[random() % k_characters.size()];
  return text;
}

/// The format of an entity's text: in drawing units, with a shape font and a colour of the palette.
format::string entity_format() {
  format::string base{
      .height = base_height, .height_kind = 0, .font = u"txt.shx", .charset = 1, .is_shx = true};
  base.color = {.kind = 0, .index = 256};
  base.width_factor = 0.8;
  base.oblique = 0.25;
  return base;
}

std::u16string written(const multitext& text, const format::string& base = {}) {
  return serialize(text, base, base_height);
}

multitext read_in(const format::string& base, const std::u16string& text) {
  multitext result;
  parse(text, base, result, {});
  return result;
}

bool neighbours_differ(const part& a, const part& b) {
  bool joinable = a.type() == b.type() && (a.type() == part_string || a.type() == part_spaces);
  return !joinable || !(a.format == b.format);
}

bool holds_what_the_reader_promises(const part& p) {
  if (p.type() == part_string) {
    const auto& text = static_cast<const mtext::string&>(p).text;
    return !text.empty() && text.find_first_of(u"\t\n") == text.npos;
  }
  return p.type() != part_spaces || static_cast<const spaces&>(p).count >= 1;
}

}  // namespace

TEST(RoundTrip, what_was_written_once_is_written_the_same_again) {
  std::mt19937 random(1001);
  for (int round = 0; round < 20000; ++round) {
    auto text = generated(random, k_stable_pieces);
    auto once = written(read(text));
    ASSERT_EQ(written(read(once)), once) << "read from: " << testing::PrintToString(text);
  }
}

TEST(RoundTrip, what_was_written_once_in_the_format_of_an_entity_is_written_the_same_again) {
  std::mt19937 random(1006);
  const format::string base = entity_format();
  for (int round = 0; round < 20000; ++round) {
    auto text = generated(random, k_stable_pieces);
    auto once = written(read_in(base, text), base);
    ASSERT_EQ(written(read_in(base, once), base), once) << "read from: " << testing::PrintToString(text);
  }
}

TEST(RoundTrip, what_was_written_reads_as_the_same_parts_but_for_the_number_of_blanks) {
  std::mt19937 random(1002);
  for (int round = 0; round < 20000; ++round) {
    auto text = generated(random, k_stable_pieces);
    auto first = read(written(read(text)));
    auto second = read(written(first));
    ASSERT_EQ(outline(second), outline(first)) << "read from: " << testing::PrintToString(text);
  }
}

TEST(RoundTrip, any_input_is_read_to_parts_that_keep_their_promises) {
  std::mt19937 random(1003);
  for (int round = 0; round < 50000; ++round) {
    auto text = scrambled(random);
    auto parsed = read(text);
    for (std::size_t i = 0; i < parsed.parts.size(); ++i) {
      ASSERT_TRUE(holds_what_the_reader_promises(parsed.parts[i])) << testing::PrintToString(text);
      ASSERT_TRUE(i == 0 || neighbours_differ(parsed.parts[i - 1], parsed.parts[i]))
          << testing::PrintToString(text);
    }
  }
}

TEST(RoundTrip, any_input_that_was_read_can_be_written_and_read_again) {
  std::mt19937 random(1004);
  for (int round = 0; round < 50000; ++round) {
    auto text = scrambled(random);
    multitext again;
    ASSERT_TRUE(parse(written(read(text)), format::string(), again, {})) << testing::PrintToString(text);
    ASSERT_EQ(unformat_mtext(text.c_str()).empty(), read(text).parts.empty()) << testing::PrintToString(text);
  }
}

TEST(RoundTrip, escaped_plain_text_reads_as_itself) {
  std::mt19937 random(1005);
  constexpr std::u16string_view plain = u"ab\\{}; ,\t";
  for (int round = 0; round < 20000; ++round) {
    std::u16string text;
    for (auto count = random() % 30; count > 0; --count) {
      char16_t c = plain[random() % plain.size()];
      if (c != u' ' || text.empty() || text.back() != u' ') text += c;
    }
    ASSERT_EQ(unformat_mtext(escape_mtext(text.c_str(), true).c_str()), text);
  }
}
